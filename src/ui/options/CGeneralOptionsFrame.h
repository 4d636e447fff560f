#pragma once

#include "lib/i18n/locale/Language.h"
#include "ui/shortcuts/Shortcut.h"

#include <QFrame>

#include <memory>
#include <vector>

class QCheckBox;

namespace thisapp {
class ICryptoAlgProvider;
struct SAppOptions;
} // namespace thisapp
namespace Ui {
class CGeneralOptionsFrame;
}

/// The "General settings" tab of the options dialog: two columns where there is the room, else one.
class CGeneralOptionsFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CGeneralOptionsFrame(QWidget* parent = nullptr);
    ~CGeneralOptionsFrame() override;

    void setLanguages(const std::vector<tessaly::i18n::Language>& languages);
    /// Refills the algorithms; what the provider doesn't accept can't be chosen.
    void setAlgProvider(const thisapp::ICryptoAlgProvider& provider);

    /// What the tab lists for reading.
    void setShortcuts(const thisapp::Shortcuts& shortcuts);

    void setLanguage(std::uint32_t localeId);
    void setOptions(const thisapp::SAppOptions& options);
    /// Sets the values of this tab, and nothing else. A language that isn't offered stays as it was.
    /// The default output folder is spelt out where its text means one (see common/settings/TextRules.h).
    void store(thisapp::SAppOptions& options) const;

    /// The default output folder, as typed.
    QString outputDir() const;
    void setOutputDir(const QString& path);
    void focusOutputDir();
    void setConfirmDeleteEnabled(bool enabled);

    /// Of two columns, however many there are now.
    QSize sizeHint() const override;
    /// Of one column.
    QSize minimumSizeHint() const override;

signals:
    void browseClicked();
    void languageChanged(int index);
    void deleteSourceChanged(int state);
    void changed();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize twoColumns(const QSize& left, const QSize& right) const;

    struct Box;
    std::vector<Box> boxes() const;
    void indentDependents();
    void fillTexts();
    void fillShortcuts();

    std::unique_ptr<Ui::CGeneralOptionsFrame> m_ui;
    thisapp::Shortcuts m_shortcuts;
};
