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

namespace {

/// What can have the focus and a screen reader cannot name, by role and object name.
QString nameless(QAccessibleInterface* parent)
{
    QString found;
    for (int at = 0; at < parent->childCount(); ++at) {
        QAccessibleInterface* child = parent->child(at);
        if (child == nullptr || child->state().invisible)
            continue;
        // The tabs have names, not what holds them.
        const bool focusable = child->state().focusable && child->role() != QAccessible::Client;
        if (focusable && child->text(QAccessible::Name).isEmpty())
            found += QString("%1 %2, ")
                         .arg(child->role())
                         .arg(child->object() ? child->object()->objectName() : "item");
        found += nameless(child);
    }
    return found;
}

TEST(Accessibility, EveryControlOfEveryDialogHasANameAndRoom)
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
        SCOPED_TRACE(dialog->metaObject()->className());
        open(*dialog);
        EXPECT_EQ(nameless(QAccessible::queryAccessibleInterface(dialog)), "");
        EXPECT_FALSE(dialog->windowTitle().isEmpty());
        EXPECT_EQ(dialog->size().boundedTo(dialog->screen()->availableSize()), dialog->size());
        // If need be, no larger than a screen of 1366x768 at 200 %.
        EXPECT_LE(dialog->minimumSizeHint().height(), 330);
        EXPECT_LE(dialog->minimumSizeHint().width(), 680);
        dialog->close();
    }
}

} // namespace
