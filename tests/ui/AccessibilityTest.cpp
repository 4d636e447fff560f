#include "ui/Widgets.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CTextViewDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/options/COptionsDialog.h"
#include "ui/password/CPasswordGeneratorDialog.h"
#include "ui/password/CSetKeyAndIvDialog.h"
#include "ui/password/CSetPasswordDialog.h"
#include "ui/style/CLinkLabel.h"

#include <QAccessible>
#include <QScreen>
#include <QSignalSpy>

namespace {

constexpr QAccessible::Role Controls[] = {
    QAccessible::Button, QAccessible::CheckBox,    QAccessible::ComboBox, QAccessible::EditableText,
    QAccessible::Link,   QAccessible::SpinBox,     QAccessible::List,     QAccessible::ListItem,
    QAccessible::Table,  QAccessible::ProgressBar, QAccessible::PageTab};

/// What a screen reader cannot name, by role, object name and class.
QStringList nameless(QAccessibleInterface* parent)
{
    QStringList found;
    for (int at = 0; at < parent->childCount(); ++at) {
        QAccessibleInterface* child = parent->child(at);
        if (child == nullptr || child->state().invisible)
            continue;
        const bool control = std::ranges::find(Controls, child->role()) != std::end(Controls);
        if (control && child->text(QAccessible::Name).isEmpty())
            found += QString("%1 %2")
                         .arg(child->role())
                         .arg(child->object() ? child->object()->objectName() + ' ' +
                                                    child->object()->metaObject()->className()
                                              : QString());
        found += nameless(child);
    }
    return found;
}

TEST(Accessibility, EveryControlOfEveryDialogHasAName)
{
    const thisapp::CCryptoAlgProvider provider;
    CSetPasswordDialog password;
    CPasswordGeneratorDialog generator;
    CSetKeyAndIvDialog key;
    key.setExpectedLengths(32, 16);
    COptionsDialog options;
    options.setAlgProvider(provider);
    options.setLanguages({{1033, "English"}});
    CSetAlgDialog setAlg;
    setAlg.setProvider(provider);
    CAlgInfoDialog algInfo;
    algInfo.setProvider(provider);
    CTextViewDialog text;
    text.setWindowTitle("Log file");
    text.setSource([] { return QString("log"); });
    CkeyboardShortcutInfoDialog shortcuts;
    CAboutDialog about;
    for (QDialog* dialog : std::initializer_list<QDialog*>{&password, &generator, &key, &options, &setAlg,
                                                           &algInfo, &text, &shortcuts, &about}) {
        open(*dialog);
        EXPECT_EQ(nameless(QAccessible::queryAccessibleInterface(dialog)).join(", ").toStdString(), "")
            << dialog->metaObject()->className();
        EXPECT_FALSE(dialog->windowTitle().isEmpty());
        // No larger than the screen, nor, if need be, than one of 1366x768 at 200 %.
        const QSize room = dialog->screen()->availableSize();
        EXPECT_EQ(dialog->size().boundedTo(room), dialog->size()) << dialog->metaObject()->className();
        EXPECT_LE(dialog->minimumSizeHint().height(), 330) << dialog->metaObject()->className();
        EXPECT_LE(dialog->minimumSizeHint().width(), 680) << dialog->metaObject()->className();
        dialog->close();
    }
}

TEST(Accessibility, LinksCanBePressed)
{
    CLinkLabel label;
    label.setLinkText("Show <more>");
    QSignalSpy followed(&label, &QLabel::linkActivated);
    QAccessibleInterface* link = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(link->role(), QAccessible::Link);
    EXPECT_EQ(link->text(QAccessible::Name), "Show <more>");
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(followed.count(), 1);
}

TEST(Accessibility, LinksAreReadableInEveryTheme)
{
    const QPalette before = QApplication::palette();
    CLinkLabel label;
    label.setLinkText("more");
    const struct
    {
        const char *window, *link, *shown;
    } cases[] = {{"#ffffff", "#0000ff", "#0000ff"},
                 {"#2a2e32", "#0000ff", "#8ac6ff"}, // of a theme that sets none
                 {"#2a2e32", "#3daee9", "#3daee9"},
                 {"#2a2e32", "#1d99f3", "#8ac6ff"}, // a little less than enough
                 {"#ffffff", "#8ac6ff", "#0000c0"}};
    for (const auto& [window, link, shown] : cases) {
        QPalette theme{QColor(window)};
        theme.setColor(QPalette::Link, QColor(link));
        QApplication::setPalette(theme);
        QApplication::processEvents();
        EXPECT_TRUE(label.text().contains(shown))
            << window << ' ' << link << ' ' << label.text().toStdString();
    }
    QApplication::setPalette(before);
}

} // namespace
