#include "crypto/catalogue/Catalogue.h"
#include "support/DataRows.h"
#include "ui/FakeAlgProvider.h"
#include "ui/RecordingStyle.h"
#include "ui/Widgets.h"
#include "ui/algorithms/AlgAdviceText.h"
#include "ui/algorithms/AlgColumns.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/algorithms/CAlgList.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/algorithms/DefaultAlgCommand.h"

#include <QSignalSpy>
#include <numeric>

namespace {

using thisapp::AlgSelection;
using thisapp::CCryptoAlgProvider;

/// Lists what it does not accept.
struct RefusingProvider : FakeAlgProvider
{
    bool isValid(const AlgSelection&) const override { return false; }
};

const CCryptoAlgProvider Provider;
const FakeAlgProvider Fake, OtherFake;
const RefusingProvider Refusing;
constexpr AlgSelection Enabled{1, 3};
constexpr AlgSelection Disabled{1, 1};
constexpr AlgSelection Panama{1, 50};

TEST(CryptoAlgProvider, OffersTheWholeCatalogueAndNothingElse)
{
    AlgSelection selection;
    bool enabled = false;
    const auto& last = tessaly::crypto::catalogue().back();
    ASSERT_EQ(Provider.count(), std::ssize(tessaly::crypto::catalogue()));
    ASSERT_TRUE(Provider.entry(Provider.count() - 1, selection, enabled));
    EXPECT_EQ(selection, (AlgSelection{1, last.id}));
    EXPECT_TRUE(enabled);
    EXPECT_EQ(Provider.displayName(selection).toStdString(), last.name);
    EXPECT_FALSE(Provider.entry(Provider.count(), selection, enabled));
    EXPECT_FALSE(Provider.entry(-1, selection, enabled));
    for (const AlgSelection& unknown : {AlgSelection{}, AlgSelection{1, 253}, AlgSelection{10, 252}})
        EXPECT_FALSE(Provider.isValid(unknown));
}

TEST(AlgAdvice, SaysWhatSpeaksForOrAgainstEach)
{
    for (const test::Row& row : test::dataRows("ui/algorithm_advice.txt")) {
        const auto advice = thisapp::algAdvice(tessaly::crypto::findAlgorithm(row[0])->id);
        EXPECT_EQ(advice.remark.toStdString(), row[1]);
        EXPECT_EQ(kindName(advice.kind).toStdString(), row[2]) << row[0];
        EXPECT_TRUE(advice.sentence.contains(row[3].c_str())) << row[0];
        EXPECT_EQ(advice.sentence.isEmpty(), row[3].empty()) << row[0];
    }
    EXPECT_EQ(thisapp::algAdvice(253).sentence, "");
}

TEST(AlgList, ShowsAsManyColumnsAsThereIsRoomFor)
{
    EXPECT_EQ(thisapp::algColumnTitles().join(", "), "Algorithm, Key bits, Block bits, Mode, Remark");
    const RecordingStyle& style = RecordingStyle::use();
    CAlgList list;
    thisapp::fillAlgList(list, Provider, true);
    open(list);
    const QHeaderView& header = *list.findChild<QHeaderView*>();
    const QFontMetrics metrics(list.font());
    const auto widths = thisapp::algColumnWidths(metrics);
    const int whole = std::accumulate(widths.begin(), widths.end(), 40);
    const QColor green = messageColor(MessageKind::Success, QApplication::palette());
    const std::tuple<int, QString, bool> rows[] = {{whole, " 256r 128r CBCl recommendedl", true},
                                                   {whole - 60, " recommendedr", false},
                                                   {widths[0] + 30, "", false}};
    for (const auto& [width, columns, hasHeader] : rows) {
        list.resize(width, 600);
        style.draw(list);
        EXPECT_EQ(header.isVisible(), hasHeader) << width;
        EXPECT_GE(list.viewport()->y(), hasHeader ? header.y() + header.height() : 0);
        QString shown; // beside the name in the row of AES-256
        int left = widths[0] - 1;
        const QRect row = list.visualItemRect(list.item(0));
        for (const auto& text : style.texts) {
            if (text.rect.top() != row.top() || text.rect.height() != row.height())
                continue;
            shown += ' ' + text.text + ((text.alignment & Qt::AlignRight) != 0 ? 'r' : 'l');
            EXPECT_GT(text.rect.left(), left) << text.text;
            left = text.rect.left();
            EXPECT_LE(metrics.horizontalAdvance(text.text), text.rect.width()) << text.text;
            EXPECT_EQ(text.color == green, text.text == "recommended");
        }
        EXPECT_EQ(shown, columns);
    }
    for (const auto& entry : tessaly::crypto::catalogue())
        EXPECT_LE(metrics.horizontalAdvance(thisapp::algAdvice(entry.advice).remark), widths.back());
}

struct SetAlgDialog : DialogTest<CSetAlgDialog>
{
    QPoint place(int row) const { return list.visualItemRect(list.item(row)).center(); }
    QString shown() const
    {
        QStringList names;
        for (int row = 0; row < list.count(); ++row)
            if (!list.item(row)->isHidden())
                names += list.item(row)->text();
        return names.join(' ');
    }
    void reopen(const AlgSelection& selection)
    {
        dialog.hide();
        dialog.setSelection(selection);
        open(dialog);
    }

    QListWidget& list = child<QListWidget>(dialog, "listWidgetAlg");
    QLineEdit& filter = child<QLineEdit>(dialog, "lineEditFilter");
};

TEST_F(SetAlgDialog, ListsADisabledAlgorithmThatNothingCanChooseAndFillsOnceForEachRequest)
{
    dialog.setProvider(Fake);
    reopen(Disabled);
    ASSERT_EQ(list.count(), 3) << "the index that yields nothing is skipped";
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection) << "the first row instead";
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(1));
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection);
    press("Down");
    EXPECT_EQ(dialog.selection(), Enabled);
    EXPECT_EQ(text("labelAlg"), "Algorithm: Alg-3");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place(2));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place(2));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);

    reopen(Enabled);
    press("Home");
    dialog.hide();
    open(dialog);
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection) << "kept what the user chose";
    filter.setText("no such");
    EXPECT_FALSE(isEnabled("buttonOk"));
    dialog.setUseAsDefault(true);
    reopen(Enabled);
    EXPECT_EQ(dialog.selection(), Enabled);
    EXPECT_EQ(filter.text(), "");
    auto& box = child<QCheckBox>(dialog, "checkBoxUseAsDefault");
    EXPECT_TRUE(box.isChecked() && dialog.useAsDefault());
    box.click();
    EXPECT_FALSE(dialog.useAsDefault());
}

TEST_F(SetAlgDialog, FiltersByEveryColumnAndPutsTheRecommendedFirst)
{
    dialog.setProvider(Provider);
    reopen(thisapp::DefaultAlgSelection);
    const std::pair<const char*, const char*> cases[] = {
        {"SERPENT ", "Serpent-128 Serpent-192 Serpent-256"},
        {"blocks of 1024", "Threefish-1024"},
        {" recommended", "AES-256 Twofish-256 Serpent-256 Camellia-256"},
        {"short key", "Skipjack"},
        {"no such", ""},
    };
    for (const auto& [words, names] : cases) {
        filter.setText(words);
        EXPECT_EQ(shown(), names);
        EXPECT_EQ(isEnabled("buttonOk"), *names != '\0');
    }
    filter.setText("serpent");
    press("Alt+F PgDown"); // in the list, from the field
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 452}));
    press("PgUp Down");
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 451}));
    press("Alt+R");
    EXPECT_EQ(shown(), "Serpent-256 Serpent-128 Serpent-192");
    filter.setText("seal");
    EXPECT_EQ(dialog.selection(), Panama);
    const QString advice = text("labelAdvice");
    EXPECT_TRUE(advice.contains("key stream")) << advice;
    EXPECT_EQ(shownKind(child(dialog, "labelAdvice")), MessageKind::Warning);
    EXPECT_EQ(list.currentItem()->toolTip(), Qt::convertFromPlainText(advice, Qt::WhiteSpaceNormal));
    EXPECT_EQ(list.currentItem()->data(Qt::AccessibleTextRole).toString(),
              "Panama, key 256 bits, Stream, seal needed");
    reopen({1, 451});
    EXPECT_TRUE(CSetAlgDialog().findChild<QCheckBox*>("checkBoxRecommendedFirst")->isChecked())
        << "as chosen before";
    EXPECT_TRUE(shown().startsWith("AES-256 Twofish-256 Serpent-256 Camellia-256 Panama ")) << shown();
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 451}));
    press("Alt+R");
    EXPECT_TRUE(shown().startsWith("Panama ")) << "the catalogue's order again";
}

struct SelectAlgFrame : DialogTest<CSelectAlgFrame>
{
    QComboBox& box = child<QComboBox>(dialog, "comboBoxAlg");
};

TEST_F(SelectAlgFrame, FindsByTypingAndTellsOnlyOfTheUsersChoices)
{
    QSignalSpy changes(&dialog, &CSelectAlgFrame::notifyAlgChanged);
    dialog.setProvider(Provider);
    EXPECT_EQ(dialog.selection(), AlgSelection());
    EXPECT_TRUE(dialog.setSelection(Panama));
    EXPECT_TRUE(box.toolTip().contains("key stream"));
    EXPECT_EQ(box.accessibleDescription(), thisapp::algAdvice(Panama.algorithm).sentence);
    EXPECT_TRUE(dialog.setSelection({1, 250}));
    EXPECT_EQ(box.toolTip(), "");
    EXPECT_TRUE(dialog.setSelection({1, 200}));
    dialog.setLabelWidth(321);
    EXPECT_EQ(child(dialog, "labelAlg").minimumWidth(), 321);
    {
        const Capitals translator;
        EXPECT_EQ(text("labelAlg"), "&ALGORITHM:");
    }
    open(dialog);
    dialog.setFocus();
    press("F4 Return"); // opens the list
    EXPECT_EQ(changes.count(), 0) << "still the same algorithm";
    type("serpent-2");
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 452}));
    EXPECT_GE(changes.count(), 1);
    const int before = changes.count();
    press("Up");
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 451}));
    EXPECT_EQ(changes.count(), before + 1);
}

TEST_F(SelectAlgFrame, RefusesWhatTheProviderDoesNotAccept)
{
    EXPECT_FALSE(dialog.setSelection(Enabled)) << "no provider yet";
    dialog.setProvider(Refusing);
    EXPECT_FALSE(dialog.setSelection(Enabled));
    dialog.setProvider(Fake);
    ASSERT_TRUE(dialog.setSelection(Enabled));
    dialog.setProvider(OtherFake);
    EXPECT_EQ(dialog.selection(), Enabled) << "stays with another provider";
    for (const AlgSelection& refused : {AlgSelection{}, Disabled, AlgSelection{2, 252}, AlgSelection{1, 7}})
        EXPECT_FALSE(dialog.setSelection(refused));
    EXPECT_EQ(dialog.selection(), Enabled);

    open(dialog);
    box.setFocus();
    press("Up");
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection)
        << "the keyboard passes over the disabled one";
}

TEST(DefaultAlgCommand, OpensOnTheStoredDefaultOrTheBuiltInOneAndStoresUnlessToldOtherwise)
{
    using Stored = std::optional<AlgSelection>;
    const auto ask = [](const char* keys, const Stored& stored, const auto& provider) {
        answerModal(keys);
        return thisapp::askDefaultAlgorithm(nullptr, provider, stored);
    };
    const std::tuple<const char*, Stored, AlgSelection, bool> rows[] = {
        {"Return", {}, {1, 252}, true},
        {"Return", {{2, 400}}, {1, 252}, true},
        {"Return", {{1, 253}}, {1, 252}, true},
        {"Return", {{1, 400}}, {1, 400}, true},
        {"Down Alt+U Return", {{1, 400}}, {1, 401}, false},
    };
    for (const auto& [keys, stored, chosen, stores] : rows) {
        const auto outcome = ask(keys, stored, Provider);
        ASSERT_TRUE(outcome);
        EXPECT_EQ(outcome->current, chosen);
        EXPECT_EQ(outcome->storeAsDefault, stores);
    }
    EXPECT_FALSE(ask("Esc", {}, Provider));
    EXPECT_FALSE(ask("Return", {}, Refusing));
}

} // namespace
