#include "crypto/catalogue/AlgInfo.h"
#include "support/DataRows.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Widgets.h"
#include "ui/algorithms/AlgInfoReport.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CCryptoAlgProvider.h"

namespace {

const QString Separator(51, '/');

TEST(AlgInfoReport, SaysWhatTheAlgorithmHasLineByLine)
{
    for (test::Row row : test::dataRows("ui/algorithm_reports.txt")) {
        const auto id = static_cast<std::uint32_t>(std::stoi(std::exchange(row[0], "Algorithm name: Name")));
        QString report = Separator + "\r\n";
        for (const std::string& line : row)
            report += QString::fromStdString(line) + "\r\n";
        EXPECT_EQ(thisapp::algInfoReport("Name", tessaly::crypto::AlgInfo().record(id)), report);
    }
}

TEST(AlgInfoDialog, PrintsTheSelectedAlgorithmsOfItsLibraryInListOrderAfterADelay)
{
    const thisapp::CCryptoAlgProvider provider;
    CAlgInfoDialog dialog;
    dialog.setProvider(provider);
    open(dialog);
    auto& list = child<QListWidget>(dialog, "listWidgetAlg");
    auto& pane = child<QPlainTextEdit>(dialog, "plainTextEditInfo");
    EXPECT_EQ(pane.toPlainText(), "");
    dialog.hide();
    dialog.setSelection({1, 252});
    open(dialog);
    ASSERT_TRUE(pane.toPlainText().contains("Algorithm name: AES-256"));
    pane.clear();
    for (const int row : {4, 0, 2})
        QTest::mouseClick(list.viewport(), Qt::LeftButton, row == 4 ? Qt::NoModifier : Qt::ControlModifier,
                          list.visualItemRect(list.item(row)).center());
    EXPECT_EQ(pane.toPlainText(), "") << "printed before the delay";

    ASSERT_TRUE(comesTrue([&pane] { return !pane.toPlainText().isEmpty(); }));
    const QStringList names =
        pane.toPlainText().split('\n').filter(QRegularExpression("^(//|Algorithm name)"));
    EXPECT_EQ(names.join(' ').remove(Separator), " Algorithm name: Panama  Algorithm name: Sosemanuk-192  "
                                                 "Algorithm name: Salsa20-128");

    child<QLineEdit>(dialog, "lineEditFilter").setText("sealed by nobody");
    EXPECT_TRUE(comesTrue([&pane] { return pane.toPlainText().isEmpty(); }))
        << "what is hidden is not selected";

    const FakeAlgProvider other(2);
    dialog.setProvider(other);
    dialog.setSelection({2, 252});
    dialog.hide();
    open(dialog);
    EXPECT_TRUE(pane.toPlainText().contains("not defined")) << "of another library";
    EXPECT_EQ(list.item(0)->toolTip(), "");
}

} // namespace
