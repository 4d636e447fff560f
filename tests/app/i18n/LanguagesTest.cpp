#include "window/WindowHarness.h"

#include "lib/i18n/locale/LocaleCatalogue.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/password/CSetKeyAndIvDialog.h"

namespace test {

static QStringList textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts += action->text();
    return texts;
}

/// The texts in the window that may give their widget a key.
static QStringList textsOf(QWidget& window)
{
    QStringList texts;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        if (const auto* bar = qobject_cast<QMenuBar*>(widget))
            texts += textsOf(bar->actions());
        else if (const auto* tabs = qobject_cast<QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts += tabs->tabText(i);
        else if (const auto* label = qobject_cast<QLabel*>(widget); !label || label->buddy())
            texts += widget->property(qobject_cast<QGroupBox*>(widget) ? "title" : "text").toString();
    }
    return texts;
}

static void expectDistinctKeys(const QStringList& texts)
{
    std::map<QString, QString> owners;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        const auto [owner, isNew] = owners.emplace(key, text);
        EXPECT_TRUE(isNew || key.isEmpty()) << key.toStdString() << " is the key of \"" << text.toStdString()
                                            << "\" and \"" << owner->second.toStdString() << '"';
    }
}

template <class... Dialogs>
void checkDialogs()
{
    const auto check = [](QDialog&& dialog) {
        SCOPED_TRACE(dialog.metaObject()->className());
        dialog.setAttribute(Qt::WA_DontShowOnScreen); // its texts are all that is looked at
        dialog.show();
        auto* tabs = dialog.findChild<QTabWidget*>();
        for (int i = 0; i < (tabs ? tabs->count() : 1); ++i) {
            if (tabs)
                tabs->setCurrentIndex(i);
            expectDistinctKeys(textsOf(dialog));
        }
    };
    (check(Dialogs()), ...);
}

/// A key that two share only moves the focus between them.
TEST(Languages, GiveEachMenuAndFormDistinctKeys)
{
    tessaly::i18n::TranslationManager translations(tessaly::platform::widePath(TRANSLATIONS_DIR), "Quillet");
    ASSERT_TRUE(translations.load().ok());
    Translators translators(translations);
    for (const auto& language : translations.languages()) {
        SCOPED_TRACE(language.displayName);
        ASSERT_TRUE(translations.use(language.lcid).ok());
        translators.install();
        const WindowHarness harness;
        expectDistinctKeys(textsOf(*harness.window));
        for (const QAction* menu : harness.window->menuBar()->actions())
            expectDistinctKeys(textsOf(menu->menu()->actions()));
        checkDialogs<COptionsDialog, CSetPasswordDialog, CSetKeyAndIvDialog, CSetAlgDialog, CAlgInfoDialog,
                     CTextViewDialog, CAboutDialog, CkeyboardShortcutInfoDialog>();
    }
    ASSERT_TRUE(translations.use(tessaly::i18n::EnglishLcid).ok());
    translators.install();
}

} // namespace test
