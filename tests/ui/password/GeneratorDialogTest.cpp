#include "support/SystemCall.h"
#include "ui/Form.h"
#include "ui/password/CPasswordGeneratorDialog.h"

namespace {

struct GeneratorDialog : testing::Test, Form<CPasswordGeneratorDialog>
{
    GeneratorDialog() { open(dialog); }
    /// A copy, as the dialog wipes what it has.
    QString shown() const { return QString(field.text().constData(), field.text().size()); }

    QLineEdit& field = child<QLineEdit>(dialog, "lineEditPassword");
};

TEST_F(GeneratorDialog, OffersOnlyPasswordsThatTakeAYearToGuess)
{
    const std::tuple<const char*, std::vector<int>, const char*> rows[] = {
        {"Random words", {6, 12, 5}, "Password strength: very strong. 77 bits."},
        {"Random characters", {16, 64, 10}, "Password strength: very strong. 102 bits."}};
    auto& count = child<QSpinBox>(dialog, "spinCount");
    QString last;
    for (const auto& [kind, counts, strength] : rows) {
        child<QComboBox>(dialog, "comboKind").setCurrentText(kind);
        EXPECT_EQ((std::vector{count.value(), count.maximum(), count.minimum()}), counts);
        EXPECT_EQ(text("labelStrength"), strength);
        EXPECT_TRUE(
            child(dialog, "strengthBar").accessibleDescription().startsWith("Password strength: very"));
        for (const int wanted : counts) {
            count.setValue(wanted);
            const QString made = shown();
            EXPECT_EQ(made.contains(' ') ? made.count(' ') + 1 : made.size(), wanted);
            EXPECT_NE(made, std::exchange(last, made));
            EXPECT_EQ(field.cursorPosition(), 0);
        }
    }
}

TEST_F(GeneratorDialog, ShowsAndKeepsNothingBeyondItsEnd)
{
    press("Alt+C");
    EXPECT_EQ(QApplication::clipboard()->text(), shown());
    EXPECT_EQ(message(), "Success: The password is on the clipboard for 60 seconds.");
    sendFromOutside<QHideEvent>(dialog);
    sendFromOutside<QShowEvent>(dialog);
    const QString used = shown();
    const QString storage = field.text(); // shared with the field
    EXPECT_FALSE(used.isEmpty());
    press("Return");
    EXPECT_EQ(dialog.password().view(), used.toStdString());
    EXPECT_EQ(storage, QString(used.size(), QChar(0)));
    EXPECT_EQ(field.text(), "");

    open(dialog);
    EXPECT_NE(field.text(), used);
    press("Esc");
    EXPECT_TRUE(dialog.password().empty());
}

TEST_F(GeneratorDialog, OffersNothingWithoutRandomBytes)
{
    const test::SystemCall none("getrandom", EIO);
    child<QPushButton>(dialog, "buttonAnother").click();
    EXPECT_EQ(field.text(), "");
    EXPECT_EQ(message(), "Error: The system's random generator failed.");
    EXPECT_FALSE(isEnabled("buttonUse") || isEnabled("buttonCopy"));
}

} // namespace
