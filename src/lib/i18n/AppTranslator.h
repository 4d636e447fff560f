#pragma once

#include "lib/i18n/IStrBundle.h"

#include <QString>
#include <QTranslator>

namespace tessaly {

/// A Qt translator over a string bundle, which must outlive it.
class AppTranslator : public QTranslator
{
public:
    explicit AppTranslator(const i18n::IStrBundle& bundle, QObject* parent = nullptr);

    /// Never, as the bundle may get its texts at any time.
    bool isEmpty() const override { return false; }

protected:
    /// The translation, or a null string. For any thread.
    QString find(const char* context, const char* sourceText) const;

private:
    const i18n::IStrBundle& m_bundle;
};

} // namespace tessaly
