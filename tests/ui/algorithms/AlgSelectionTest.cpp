#include "crypto/catalogue/Catalogue.h"
#include "ui/FakeAlgProvider.h"
#include "ui/Widgets.h"
#include "ui/algorithms/AlgListFiller.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/algorithms/DefaultAlgCommand.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>

using thisapp::AlgSelection;
using thisapp::CCryptoAlgProvider;

namespace {

constexpr AlgSelection Enabled{1, 3};
constexpr AlgSelection Disabled{1, 1};

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
    dialog.setSelection(Enabled);
    dialog.hide();
    open(dialog);
    EXPECT_EQ(dialog.selection(), Enabled);
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
        {"SERPENT", "Serpent-128 Serpent-192 Serpent-256"},
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
    press(Qt::Key_Down); // in the list, from the field
    EXPECT_EQ(dialog.selection(), (AlgSelection{1, 451}));
    filter.clear();
    press(Qt::Key_R, Qt::AltModifier);
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
    EXPECT_TRUE(frame.setSelection({1, 200}));
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
    CSelectAlgFrame frame;
    EXPECT_FALSE(frame.setSelection(Enabled)) << "no provider yet";
    frame.setProvider(provider);
    ASSERT_TRUE(frame.setSelection(Enabled));
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
