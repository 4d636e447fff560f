#include "support/SystemCall.h"
#include "ui/Widgets.h"
#include "ui/password/CPasswordGeneratorDialog.h"
#include "ui/password/CStrengthBar.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

struct GeneratorDialog : testing::Test
{
    CPasswordGeneratorDialog dialog;
    QLineEdit& field = child<QLineEdit>(dialog, "lineEditPassword");
    QSpinBox& count = child<QSpinBox>(dialog, "spinCount");
    QComboBox& kind = child<QComboBox>(dialog, "comboKind");
};

TEST_F(GeneratorDialog, OffersOnlyPasswordsThatTakeAYearToGuess)
{
    const struct
    {
        const char* kind;
        int least, proposed, most;
        const char* strength;
    } rows[] = {{"Random words", 5, 6, 12, "Password strength: very strong. 77 bits."},
                {"Random characters", 10, 16, 64, "Password strength: very strong. 102 bits."}};
    open(dialog);
    QString last;
    for (const auto& row : rows) {
        kind.setCurrentText(row.kind);
        EXPECT_EQ(count.minimum(), row.least);
        EXPECT_EQ(count.value(), row.proposed);
        EXPECT_EQ(count.maximum(), row.most);
        EXPECT_EQ(child<QLabel>(dialog, "labelStrength").text().toStdString(), row.strength);
        EXPECT_TRUE(
            child(dialog, "strengthBar").accessibleDescription().startsWith("Password strength: very"));
        for (const int wanted : {row.proposed, row.most, row.least}) {
            count.setValue(wanted);
            const QString made = field.text();
            EXPECT_EQ(made.contains(' ') ? made.count(' ') + 1 : made.size(), wanted);
            EXPECT_NE(made, last);
            EXPECT_EQ(field.cursorPosition(), 0);
            last = QString(made.constData(), made.size());
        }
    }
}

TEST_F(GeneratorDialog, ShowsAndKeepsNothingBeyondItsEnd)
{
    const auto shown = [this] { return QString(field.text().constData(), field.text().size()); };
    open(dialog);
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), shown());
    EXPECT_EQ(child<QLineEdit>(dialog, "lineEditMsg").text(),
              "The password is on the clipboard for 60 seconds.");
    sendFromOutside<QHideEvent>(dialog);
    sendFromOutside<QShowEvent>(dialog);
    const QString used = shown();
    const QString storage = field.text(); // shared with the field
    EXPECT_FALSE(used.isEmpty());
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.password().view(), used.toStdString());
    EXPECT_EQ(storage, QString(used.size(), QChar(0)));
    EXPECT_EQ(field.text(), "");

    open(dialog);
    EXPECT_NE(field.text(), used);
    press(Qt::Key_Escape);
    EXPECT_TRUE(dialog.password().empty());
}

TEST_F(GeneratorDialog, OffersNothingWithoutRandomBytes)
{
    open(dialog);
    {
        const test::SystemCall none("getrandom", EIO);
        child<QPushButton>(dialog, "buttonAnother").click();
    }
    EXPECT_EQ(field.text(), "");
    EXPECT_EQ(child<QLineEdit>(dialog, "lineEditMsg").text(), "The system's random generator failed.");
    for (const char* button : {"buttonUse", "buttonCopy"})
        EXPECT_FALSE(child(dialog, button).isEnabled()) << button;
}

} // namespace
