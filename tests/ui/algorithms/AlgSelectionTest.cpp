#include "crypto/catalogue/Catalogue.h"
#include "ui/FakeAlgProvider.h"
#include "ui/RecordingStyle.h"
#include "ui/ShownKind.h"
#include "ui/Widgets.h"
#include "ui/algorithms/AlgAdviceText.h"
#include "ui/algorithms/AlgColumns.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/algorithms/CAlgList.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/algorithms/DefaultAlgCommand.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextDocument>
#include <numeric>

using thisapp::AlgSelection;
using thisapp::CCryptoAlgProvider;
using thisapp::MessageKind;

namespace {

constexpr AlgSelection Enabled{1, 3};
constexpr AlgSelection Disabled{1, 1};
constexpr AlgSelection Panama{1, 50};

/// Lists what it does not accept.
struct RefusingProvider : FakeAlgProvider
{
    bool isValid(const AlgSelection&) const override { return false; }
};

TEST(CryptoAlgProvider, OffersTheWholeCatalogueAndNothingElse)
{
    const CCryptoAlgProvider provider;
    AlgSelection selection;
    bool enabled = false;
    const auto& last = tessaly::crypto::catalogue().back();
    ASSERT_EQ(provider.count(), std::ssize(tessaly::crypto::catalogue()));
    ASSERT_TRUE(provider.entry(provider.count() - 1, selection, enabled));
    EXPECT_EQ(selection, (AlgSelection{1, last.id}));
    EXPECT_TRUE(enabled);
    EXPECT_EQ(provider.displayName(selection).toStdString(), last.name);
    EXPECT_FALSE(provider.entry(provider.count(), selection, enabled));
    EXPECT_FALSE(provider.entry(-1, selection, enabled));
    for (const AlgSelection& unknown : {AlgSelection{}, AlgSelection{1, 253}, AlgSelection{10, 252}})
        EXPECT_FALSE(provider.isValid(unknown));
}

TEST(AlgAdvice, SaysWhatSpeaksForOrAgainstEach)
{
    const struct
    {
        const char *name, *remark;
        MessageKind kind;
        const char* reason; ///< part of the sentence
    } rows[] = {
        {"AES-256", "recommended", MessageKind::Success, "no practical attack"},
        {"AES-128", "", MessageKind::Plain, ""},
        {"Salsa20-256", "seal needed", MessageKind::Warning, "share a key stream"},
        {"IDEA", "short blocks", MessageKind::Warning, "Sweet32"},
        {"DES_EDE2", "outdated", MessageKind::Warning, "since 2016"},
        {"DES_EDE3", "outdated", MessageKind::Warning, "since 2024"},
        {"Skipjack", "short key", MessageKind::Error, "80 bits"},
        {"TEA", "weak keys", MessageKind::Error, "related keys"},
        {"GOST-28147-89", "attacks known", MessageKind::Error, "Isobe"},
    };
    for (const auto& row : rows) {
        const auto advice = thisapp::algAdvice(tessaly::crypto::findAlgorithm(row.name)->id);
        EXPECT_EQ(advice.remark, row.remark);
        EXPECT_EQ(advice.kind, row.kind) << row.name;
        EXPECT_TRUE(advice.sentence.contains(row.reason)) << row.name;
        EXPECT_EQ(advice.sentence.isEmpty(), *row.reason == '\0') << row.name;
    }
    EXPECT_EQ(thisapp::algAdvice(253).sentence, "");
}

/// The list as wide as that, shown; what it draws of the AES-256 row beside the name, and whether the header
/// is there.
std::pair<std::vector<RecordingStyle::SText>, bool> drawn(int width)
{
    const RecordingStyle& style = RecordingStyle::use();
    CAlgList list;
    thisapp::fillAlgList(list, CCryptoAlgProvider(), true);
    list.resize(width, 600);
    open(list);
    style.texts.clear();
    list.grab();
    auto texts = style.texts;
    const QRect row = list.visualItemRect(list.item(0));
    const auto& header = *list.findChild<QHeaderView*>();
    EXPECT_GE(list.viewport()->y(), header.isVisible() ? header.y() + header.height() : 0);
    std::erase_if(texts, [&row](const auto& text) {
        return text.rect.top() != row.top() || text.rect.height() != row.height();
    });
    QApplication::setStyle("Fusion");
    return {texts, header.isVisible()};
}

TEST(AlgList, ShowsAsManyColumnsAsThereIsRoomFor)
{
    EXPECT_EQ(thisapp::algColumnTitles(),
              QStringList({"Algorithm", "Key bits", "Block bits", "Mode", "Remark"}));
    const QFontMetrics metrics(CAlgList().font());
    const auto widths = thisapp::algColumnWidths(metrics);
    const int whole = std::accumulate(widths.begin(), widths.end(), 40);
    const QColor green = messageColor(MessageKind::Success, QApplication::palette());
    const struct
    {
        int width;
        QString texts;
        bool header;
    } rows[] = {{whole, "256r 128r CBCl recommendedl", true},
                {whole - 60, "recommendedr", false},
                {widths[0] + 30, "", false}};
    for (const auto& row : rows) {
        const auto [texts, header] = drawn(row.width);
        QStringList shown;
        int left = widths[0] - 1;
        for (const auto& text : texts) {
            shown += text.text + ((text.alignment & Qt::AlignRight) != 0 ? 'r' : 'l');
            EXPECT_GT(text.rect.left(), left) << text.text;
            left = text.rect.left();
            EXPECT_LE(metrics.horizontalAdvance(text.text), text.rect.width()) << text.text;
            EXPECT_EQ(text.color == green, text.text == "recommended");
        }
        EXPECT_EQ(shown.join(' '), row.texts);
        EXPECT_EQ(header, row.header) << row.width;
    }
    for (const auto& entry : tessaly::crypto::catalogue())
        EXPECT_LE(metrics.horizontalAdvance(thisapp::algAdvice(entry.advice).remark), widths.back());
}

TEST(SetAlgDialog, ListsADisabledAlgorithmThatNothingCanChoose)
{
    const FakeAlgProvider provider;
    CSetAlgDialog dialog;
    dialog.setProvider(provider);
    dialog.setSelection(Disabled);
    open(dialog);
    auto& list = child<QListWidget>(dialog, "listWidgetAlg");
    ASSERT_EQ(list.count(), 3) << "the index that yields nothing is skipped";
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection) << "the first row instead";

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection);
    press(Qt::Key_Down);
    EXPECT_EQ(dialog.selection(), Enabled);
    EXPECT_EQ(child<QLabel>(dialog, "labelAlg").text(), "Algorithm: Alg-3");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(SetAlgDialog, FillsOnceForEachRequest)
{
    const FakeAlgProvider provider;
    CSetAlgDialog dialog;
    dialog.setProvider(provider);
    dialog.setSelection(Enabled);
    open(dialog);
    press(Qt::Key_Home);
    dialog.hide();
    open(dialog);
    EXPECT_EQ(dialog.selection(), thisapp::DefaultAlgSelection) << "kept what the user chose";
    child<QLineEdit>(dialog, "lineEditFilter").setText("no such");
    EXPECT_FALSE(child(dialog, "buttonOk").isEnabled());
    dialog.setSelection(Enabled);
    dialog.setUseAsDefault(true);
    dialog.hide();
    open(dialog);
    EXPECT_EQ(dialog.selection(), Enabled);
    EXPECT_EQ(child<QLineEdit>(dialog, "lineEditFilter").text(), "");
    auto& box = child<QCheckBox>(dialog, "checkBoxUseAsDefault");
    EXPECT_TRUE(box.isChecked() && dialog.useAsDefault());
    box.click();
    EXPECT_FALSE(dialog.useAsDefault());
}

TEST(SetAlgDialog, FiltersByEveryColumnAndPutsTheRecommendedFirst)
{
    const CCryptoAlgProvider provider;
    CSetAlgDialog dialog;
    dialog.setProvider(provider);
    dialog.setSelection(thisapp::DefaultAlgSelection);
    open(dialog);
    auto& list = child<QListWidget>(dialog, "listWidgetAlg");
    auto& filter = child<QLineEdit>(dialog, "lineEditFilter");
    const auto shown = [&list] {
        QStringList names;
        for (int row = 0; row < list.count(); ++row)
            if (!list.item(row)->isHidden())
                names += list.item(row)->text();
        return names.join(' ');
    };
    const std::pair<const char*, const char*> cases[] = {
        {"SERPENT ", "Serpent-128 Serpent-192 Serpent-256"},
        {"blocks of 1024", "Threefish-1024"},
        {" recommended", "AES-256 Twofish-256 Serpent-256 Camellia-256"},
        {"short key", "Skipjack"},
        {"no such", ""},
    };
    for (const auto& [text, names] : cases) {
        filter.setText(text);
        EXPECT_EQ(shown(), names);
        EXPECT_EQ(child(dialog, "buttonOk").isEnabled(), *names != '\0');
    }
    filter.setText("serpent");
    press(Qt::Key_F, Qt::AltModifier);
    press(Qt::Key_PageDown); // in the list, from the field
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 452}));
    press(Qt::Key_PageUp);
    press(Qt::Key_Down);
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 451}));
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(shown(), "Serpent-256 Serpent-128 Serpent-192");
    filter.setText("seal");
    EXPECT_EQ(dialog.selection(), Panama);
    auto& advice = child<QLabel>(dialog, "labelAdvice");
    EXPECT_TRUE(advice.text().contains("key stream")) << advice.text();
    EXPECT_EQ(shownKind(advice), MessageKind::Warning);
    EXPECT_EQ(list.currentItem()->toolTip(), Qt::convertFromPlainText(advice.text(), Qt::WhiteSpaceNormal));
    EXPECT_EQ(list.currentItem()->data(Qt::AccessibleTextRole).toString(),
              "Panama, key 256 bits, Stream, seal needed");
    dialog.setSelection({1, 451});
    dialog.hide();
    open(dialog);
    EXPECT_TRUE(CSetAlgDialog().findChild<QCheckBox*>("checkBoxRecommendedFirst")->isChecked())
        << "as chosen before";
    EXPECT_TRUE(shown().startsWith("AES-256 Twofish-256 Serpent-256 Camellia-256 Panama ")) << shown();
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 451}));
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(shown().startsWith("Panama ")) << "the catalogue's order again";
}

TEST(SelectAlgFrame, FindsByTypingAndTellsOnlyOfTheUsersChoices)
{
    const CCryptoAlgProvider provider;
    CSelectAlgFrame frame;
    QSignalSpy changes(&frame, &CSelectAlgFrame::notifyAlgChanged);
    frame.setProvider(provider);
    EXPECT_EQ(frame.selection(), AlgSelection());
    const auto& box = child<QComboBox>(frame, "comboBoxAlg");
    EXPECT_TRUE(frame.setSelection(Panama));
    EXPECT_TRUE(box.toolTip().contains("key stream"));
    EXPECT_EQ(box.accessibleDescription(), thisapp::algAdvice(Panama.algorithm).sentence);
    EXPECT_TRUE(frame.setSelection({1, 250}));
    EXPECT_EQ(box.toolTip(), "");
    EXPECT_TRUE(frame.setSelection({1, 200}));
    frame.setLabelWidth(321);
    EXPECT_EQ(child(frame, "labelAlg").minimumWidth(), 321);
    Capitals translator;
    QApplication::installTranslator(&translator);
    QApplication::processEvents();
    EXPECT_EQ(child<QLabel>(frame, "labelAlg").text(), "&ALGORITHM:");
    QApplication::removeTranslator(&translator);
    open(frame);
    frame.setFocus();
    press(Qt::Key_F4); // opens the list
    press(Qt::Key_Return);
    EXPECT_EQ(changes.count(), 0) << "still the same algorithm";
    type("serpent-2");
    EXPECT_EQ(frame.selection(), (AlgSelection{1, 452}));
    EXPECT_GE(changes.count(), 1);
    const int before = changes.count();
    press(Qt::Key_Up);
    EXPECT_EQ(frame.selection(), (AlgSelection{1, 451}));
    EXPECT_EQ(changes.count(), before + 1);
}

TEST(SelectAlgFrame, RefusesWhatTheProviderDoesNotAccept)
{
    const FakeAlgProvider provider;
    const FakeAlgProvider other;
    const RefusingProvider refusing;
    CSelectAlgFrame frame;
    EXPECT_FALSE(frame.setSelection(Enabled)) << "no provider yet";
    frame.setProvider(refusing);
    EXPECT_FALSE(frame.setSelection(Enabled));
    frame.setProvider(provider);
    ASSERT_TRUE(frame.setSelection(Enabled));
    frame.setProvider(other);
    EXPECT_EQ(frame.selection(), Enabled) << "stays with another provider";
    frame.setProvider(provider);
    for (const AlgSelection& refused : {AlgSelection{}, Disabled, AlgSelection{2, 252}, AlgSelection{1, 7}})
        EXPECT_FALSE(frame.setSelection(refused));
    EXPECT_EQ(frame.selection(), Enabled);

    open(frame);
    child<QComboBox>(frame, "comboBoxAlg").setFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(frame.selection(), thisapp::DefaultAlgSelection) << "the keyboard passes over the disabled one";
}

TEST(DefaultAlgCommand, OpensOnTheStoredDefaultOrTheBuiltInOne)
{
    using Stored = std::optional<AlgSelection>;
    const std::pair<Stored, AlgSelection> cases[] = {{std::nullopt, {1, 252}},
                                                     {Stored({2, 400}), {1, 252}},
                                                     {Stored({1, 253}), {1, 252}},
                                                     {Stored({1, 400}), {1, 400}}};
    const CCryptoAlgProvider provider;
    for (const auto& [stored, opensOn] : cases) {
        whenModal([](QWidget&) { press(Qt::Key_Return); });
        const auto outcome = thisapp::askDefaultAlgorithm(nullptr, provider, stored);
        ASSERT_TRUE(outcome);
        EXPECT_EQ(outcome->current, opensOn);
        EXPECT_TRUE(outcome->storeAsDefault);
    }
    const RefusingProvider refusing;
    whenModal([](QWidget&) { press(Qt::Key_Return); });
    EXPECT_FALSE(thisapp::askDefaultAlgorithm(nullptr, refusing, std::nullopt));
}

TEST(DefaultAlgCommand, StoresUnlessToldOtherwiseAndDoesNothingWhenCancelled)
{
    const CCryptoAlgProvider provider;
    whenModal([](QWidget& modal) {
        press(Qt::Key_Down);
        press(Qt::Key_U, Qt::AltModifier);
        EXPECT_FALSE(child<QCheckBox>(modal, "checkBoxUseAsDefault").isChecked());
        press(Qt::Key_Return);
    });
    const auto outcome = thisapp::askDefaultAlgorithm(nullptr, provider, AlgSelection{1, 400});
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->current, (AlgSelection{1, 401}));
    EXPECT_FALSE(outcome->storeAsDefault);

    whenModal([](QWidget&) { press(Qt::Key_Escape); });
    EXPECT_FALSE(thisapp::askDefaultAlgorithm(nullptr, provider, std::nullopt));
}

} // namespace
