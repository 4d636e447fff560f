#include "window/WindowHarness.h"

#include "lib/i18n/locale/LocaleCatalogue.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/password/CSetKeyAndIvDialog.h"

#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <map>

namespace {

QStringList textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts += action->text();
    return texts;
}

/// The texts in the window that may give their widget a key.
QStringList textsOf(QWidget& window)
{
    QStringList texts;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        if (const auto* button = qobject_cast<QAbstractButton*>(widget))
            texts += button->text();
        else if (const auto* label = qobject_cast<QLabel*>(widget); label && label->buddy())
            texts += label->text();
        else if (const auto* group = qobject_cast<QGroupBox*>(widget))
            texts += group->title();
        else if (const auto* bar = qobject_cast<QMenuBar*>(widget))
            texts += textsOf(bar->actions());
        else if (const auto* tabs = qobject_cast<QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts += tabs->tabText(i);
    }
    return texts;
}

void expectDistinctKeys(const QStringList& texts)
{
    std::map<QString, QString> owners;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        const auto [owner, isNew] = owners.emplace(key, text);
        EXPECT_TRUE(isNew || key.isEmpty()) << key.toStdString() << " is the key of \"" << text.toStdString()
                                            << "\" and \"" << owner->second.toStdString() << '"';
    }
}

template <class Dialog>
void checkDialog(Dialog&& dialog)
{
    SCOPED_TRACE(dialog.metaObject()->className());
    dialog.show();
    auto* tabs = dialog.template findChild<QTabWidget*>();
    for (int i = 0; i < (tabs ? tabs->count() : 1); ++i) {
        if (tabs)
            tabs->setCurrentIndex(i);
        expectDistinctKeys(textsOf(dialog));
    }
}

/// A key that two share only moves the focus between them.
TEST(Languages, GiveEachMenuAndFormDistinctKeys)
{
    tessaly::i18n::TranslationManager translations(tessaly::platform::widePath(TRANSLATIONS_DIR), "Quillet");
    ASSERT_TRUE(translations.load().ok());
    thisapp::Translators translators(translations);
    for (const auto& language : translations.languages()) {
        SCOPED_TRACE(language.displayName);
        ASSERT_TRUE(translations.use(language.lcid).ok());
        translators.install();
        const test::WindowHarness harness;
        expectDistinctKeys(textsOf(*harness.window));
        for (const QAction* menu : harness.window->menuBar()->actions())
            expectDistinctKeys(textsOf(menu->menu()->actions()));
        checkDialog(COptionsDialog());
        checkDialog(CSetPasswordDialog());
        checkDialog(CSetKeyAndIvDialog());
        checkDialog(CSetAlgDialog());
        checkDialog(CAlgInfoDialog());
        checkDialog(CTextViewDialog());
        checkDialog(CAboutDialog());
        checkDialog(CkeyboardShortcutInfoDialog());
    }
    ASSERT_TRUE(translations.use(tessaly::i18n::EnglishLcid).ok());
    translators.install();
}

} // namespace
