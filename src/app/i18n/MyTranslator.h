#pragma once

#include "lib/i18n/AppTranslator.h"

namespace thisapp {

/// The translator that the application installs.
class MyTranslator final : public tessaly::AppTranslator
{
public:
    using AppTranslator::AppTranslator;

    /// The translation, or the source text itself when there is none: the translators installed before
    /// this one are never asked. The disambiguation and the plural count do not matter.
    QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                      int n = -1) const override;
};

} // namespace thisapp
