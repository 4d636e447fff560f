#include "crypto/catalogue/AlgInfo.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Widgets.h"
#include "ui/algorithms/AlgInfoReport.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CCryptoAlgProvider.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

namespace {

using thisapp::AlgSelection;

TEST(AlgInfoReport, SaysWhatTheAlgorithmHasLineByLine)
{
    const QString hash = "Hash function to calculate a key via password: ";
    const QString truncated =
        "The length of the hash is not equal to the length of key. Therefore, the hash will "
        "be truncated from ";
    const std::pair<std::uint32_t, QStringList> cases[] = {
        {250,
         {"Key size: 16", "IV size: 16", "Mandatory block size: 16", "Cipher mode: CBC", hash + "SHA3-224",
          truncated + "28 to 16 bytes."}},
        {50,
         {"Key size: 32", "IV size: 32", "Stream cipher", "Endianness: Little-endian", hash + "SHA3-256"}},
        {354,
         {"Key size: 56", "IV size: 16", "Mandatory block size: 16", "Cipher mode: CBC", hash + "SHA3-512",
          truncated + "64 to 56 bytes."}},
        {1012,
         {"Key size: 128", "IV size: 128", "Mandatory block size: 128", "Cipher mode: CBC",
          hash + "SHA3-512"}},
        {253, {"The parameters are not defined", hash + "Unknown"}},
    };
    for (const auto& [id, lines] : cases) {
        const QString report = thisapp::algInfoReport("Name", tessaly::crypto::AlgInfo().record(id));
        EXPECT_EQ(report,
                  (QStringList{QString(51, '/'), "Algorithm name: Name"} + lines).join("\r\n") + "\r\n");
    }
}

TEST(AlgInfoDialog, PrintsTheSelectedAlgorithmsInListOrderAfterADelay)
{
    const thisapp::CCryptoAlgProvider provider;
    CAlgInfoDialog dialog;
    dialog.setProvider(provider);
    open(dialog);
    auto& list = child<QListWidget>(dialog, "listWidgetAlg");
    auto& pane = child<QPlainTextEdit>(dialog, "plainTextEditInfo");
    const auto click = [&list](int row, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualItemRect(list.item(row)).center());
    };
    EXPECT_EQ(pane.toPlainText(), QString());
    dialog.hide();
    dialog.setSelection({1, 252});
    open(dialog);
    EXPECT_TRUE(pane.toPlainText().contains("Algorithm name: AES-256"));
    pane.clear();
    click(4, Qt::NoModifier);
    click(0, Qt::ControlModifier);
    click(2, Qt::ControlModifier);
    EXPECT_EQ(pane.toPlainText(), QString()) << "printed before the delay";

    ASSERT_TRUE(comesTrue([&pane] { return !pane.toPlainText().isEmpty(); }));
    QStringList names;
    for (const QString& line : pane.toPlainText().split('\n'))
        if (line.startsWith("Algorithm name: ") || line.startsWith("//"))
            names += line;
    const QString separator(51, '/');
    EXPECT_EQ(names,
              (QStringList{separator, "Algorithm name: Panama", separator, "Algorithm name: Sosemanuk-192",
                           separator, "Algorithm name: Salsa20-128"}));

    child<QLineEdit>(dialog, "lineEditFilter").setText("sealed by nobody");
    EXPECT_TRUE(comesTrue([&pane] { return pane.toPlainText().isEmpty(); }))
        << "what is hidden is not selected";
}

TEST(AlgInfoDialog, KnowsNothingOfOtherLibraries)
{
    struct : FakeAlgProvider
    {
        bool entry(int, AlgSelection& selection, bool& enabled) const override
        {
            selection = {2, 252};
            return enabled = true;
        }
    } other;
    CAlgInfoDialog dialog;
    dialog.setProvider(other);
    dialog.setSelection({2, 252});
    open(dialog);
    EXPECT_TRUE(child<QPlainTextEdit>(dialog, "plainTextEditInfo").toPlainText().contains("not defined"));
    EXPECT_EQ(child<QListWidget>(dialog, "listWidgetAlg").item(0)->toolTip(), "");
}

} // namespace
