#include "crypto/catalogue/Catalogue.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Form.h"
#include "ui/RecordingStyle.h"
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
    EXPECT_TRUE(Provider.entry(Provider.count() - 1, selection, enabled) && enabled);
    EXPECT_EQ(selection, (AlgSelection{1, last.id}));
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

struct SetAlgForm : Form<CSetAlgDialog>
{
    SetAlgForm()
    {
        settings = {{"default", &CSetAlgDialog::setUseAsDefault}};
        verbs["provider"] = [this](const QStringList& row) {
            row[1] == "fake" ? dialog.setProvider(Fake) : dialog.setProvider(Provider);
        };
        verbs["given"] = [this](const QStringList& row) {
            dialog.setSelection({1, row[1].toUInt()});
            reopen();
        };
        verbs["pick"] = [this](const QStringList& row) {
            const QPoint place = list.visualItemRect(list.item(row[1].toInt())).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
            if (row.size() > 2)
                QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        };
        outcomes["chosen"] = [this] { return QString::number(dialog.selection().algorithm); };
        outcomes["options"] = [this] { return namesOf({{"default", dialog.useAsDefault()}}); };
        outcomes["list"] = [this] {
            QStringList names;
            for (int row = 0; row < list.count(); ++row)
                if (!list.item(row)->isHidden())
                    names += list.item(row)->text();
            return names.mid(0, 5).join(' ');
        };
        outcomes["advice"] = [this] {
            return kindName(shownKind(child(dialog, "labelAdvice"))) + ": " + text("labelAdvice");
        };
        outcomes["tip"] = [this] { return list.currentItem()->toolTip(); };
        outcomes["spoken"] = [this] { return list.currentItem()->data(Qt::AccessibleTextRole).toString(); };
    }

    QListWidget& list = child<QListWidget>(dialog, "listWidgetAlg");
};

TEST(SetAlgDialog, ListsFiltersAndChoosesAsItSays)
{
    walk<SetAlgForm>("ui/algorithm_dialog.txt");
}

TEST(SelectAlgFrame, ShowsWhatTheProviderAcceptsAndTellsOnlyOfTheUsersChoices)
{
    CSelectAlgFrame frame;
    const QComboBox& box = child<QComboBox>(frame, "comboBoxAlg");
    EXPECT_FALSE(frame.setSelection(Enabled)) << "no provider yet";
    frame.setProvider(Refusing);
    EXPECT_FALSE(frame.setSelection(Enabled));
    frame.setProvider(Fake);
    EXPECT_TRUE(frame.setSelection(Enabled));
    frame.setProvider(OtherFake);
    for (const AlgSelection& refused : {AlgSelection{}, Disabled, AlgSelection{2, 252}, AlgSelection{1, 7}})
        EXPECT_FALSE(frame.setSelection(refused));
    EXPECT_EQ(frame.selection(), Enabled) << "stays, with another provider, too";
    open(frame);
    frame.setFocus();
    press("Up");
    EXPECT_EQ(frame.selection(), thisapp::DefaultAlgSelection) << "passes over the disabled one";

    frame.setProvider(Provider);
    EXPECT_TRUE(frame.setSelection(Panama));
    EXPECT_TRUE(box.toolTip().contains("key stream"));
    EXPECT_EQ(box.accessibleDescription(), thisapp::algAdvice(Panama.algorithm).sentence);
    EXPECT_TRUE(frame.setSelection({1, 250}));
    EXPECT_EQ(box.toolTip(), "");
    const QSignalSpy changes(&frame, &CSelectAlgFrame::notifyAlgChanged);
    EXPECT_TRUE(frame.setSelection({1, 200}));
    press("F4 Return"); // opens the list
    EXPECT_EQ(changes.count(), 0) << "still the same algorithm";
    type("serpent-2");
    EXPECT_EQ(frame.selection(), (AlgSelection{1, 452}));
    const int before = changes.count();
    EXPECT_GE(before, 1);
    press("Up");
    EXPECT_EQ(frame.selection(), (AlgSelection{1, 451}));
    EXPECT_EQ(changes.count(), before + 1);

    frame.setLabelWidth(321);
    EXPECT_EQ(child(frame, "labelAlg").minimumWidth(), 321);
    const Capitals translator;
    EXPECT_EQ(text(frame, "labelAlg"), "&ALGORITHM:");
}

TEST(DefaultAlgCommand, OpensOnTheStoredDefaultOrTheBuiltInOneAndStoresUnlessToldOtherwise)
{
    const auto ask = [](const char* keys, const std::optional<AlgSelection>& stored, const auto& provider) {
        answerModal(keys);
        const auto outcome = thisapp::askDefaultAlgorithm(nullptr, provider, stored);
        return !outcome ? ""
                        : QString::number(outcome->current.algorithm) + (outcome->storeAsDefault ? "!" : "");
    };
    for (const AlgSelection& unknown : {AlgSelection{2, 400}, AlgSelection{1, 253}})
        EXPECT_EQ(ask("Return", unknown, Provider), "252!");
    EXPECT_EQ(ask("Return", {}, Provider), "252!");
    EXPECT_EQ(ask("Return", AlgSelection{1, 400}, Provider), "400!");
    EXPECT_EQ(ask("Down Alt+U Return", AlgSelection{1, 400}, Provider), "401");
    EXPECT_EQ(ask("Esc", {}, Provider), "");
    EXPECT_EQ(ask("Return", {}, Refusing), "");
}

} // namespace
