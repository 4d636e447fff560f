#include "lib/secret/Hex.h"
#include "support/TempFolder.h"
#include "ui/Widgets.h"
#include "ui/password/CHexEdit.h"
#include "ui/password/CSetKeyAndIvDialog.h"

#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

using tessaly::SecretBytes;

SecretBytes bytes(std::string_view hex)
{
    return tessaly::decodeHex(hex).value();
}

/// The dialog for an encryption with a key of four bytes and an IV of two.
struct KeyAndIvDialog : testing::Test
{
    KeyAndIvDialog()
    {
        dialog.setAlgorithmName("Toy");
        dialog.setExpectedLengths(4, 2);
    }

    QString message() { return child<QLineEdit>(dialog, "lineEditMsg").text(); }
    QString label(const char* name) { return child<QLabel>(dialog, name).text(); }

    CSetKeyAndIvDialog dialog;
    QPlainTextEdit& key = child<QPlainTextEdit>(dialog, "plainTextEditKey");
    QPlainTextEdit& iv = child<QPlainTextEdit>(dialog, "plainTextEditIv");
};

TEST_F(KeyAndIvDialog, JudgesTheTextsOnEveryChangeAndAtOk)
{
    const QString ivHex = "Invalid IV: invalid hexadecimal characters. ";
    const QString keyHex = "Invalid key: invalid hexadecimal characters. ";
    struct
    {
        const char* iv;
        const char* key;
        QString message; ///< empty: accepted
        int ivCount, keyCount;
    } const cases[] = {
        {"", "", "Empty IV. Empty key. ", 0, 0},
        {" \n\t", "00112233", "Empty IV. ", 0, 4},
        {"aBcD", "00 11\n2 2\t33 ", "", 2, 4},
        {"00\u00a011", "0011\u30002233", "", 2, 4}, // no-break and ideographic space
        {"001", "00112233", ivHex, 1, 4},
        {"0011", "0x112233", keyHex, 2, 3},
        {"0011", "0011223\u00e9", keyHex, 2, 3},
        {"001122", "0011", "Invalid IV size: entered 3 bytes. Invalid key size: entered 2 bytes. ", 3, 2},
        {"00112", "zz", ivHex + keyHex, 2, 0},
    };
    for (const auto& test : cases) {
        dialog.setTyped({});
        open(dialog);
        iv.insertPlainText(QString::fromUtf8(test.iv));
        key.insertPlainText(QString::fromUtf8(test.key));
        EXPECT_EQ(label("labelIvCount"), QString("%1 of 2 bytes entered").arg(test.ivCount)) << test.iv;
        EXPECT_EQ(label("labelKeyCount"), QString("%1 of 4 bytes entered").arg(test.keyCount)) << test.key;
        QTest::mouseClick(&child(dialog, "buttonOk"), Qt::LeftButton);
        const bool accepted = test.message.isEmpty();
        EXPECT_EQ(message(), test.message);
        EXPECT_EQ(dialog.isVisible(), !accepted) << test.key;
        EXPECT_EQ(dialog.key(), accepted ? bytes("00112233") : SecretBytes()) << test.key;
        dialog.reject();
    }
}

TEST_F(KeyAndIvDialog, TakesNoMegabyteFromTheClipboard)
{
    open(dialog);
    key.insertPlainText("00");
    QApplication::clipboard()->setText(QString(1 << 20, '7'));
    key.paste();
    EXPECT_EQ(key.document()->characterCount(), CHexEdit::MostText);
    key.selectAll();
    key.paste();
    EXPECT_EQ(key.document()->characterCount(), CHexEdit::MostText);
}

TEST_F(KeyAndIvDialog, PassesByKeyboardAloneInTheOrderOfTheForm)
{
    dialog.setSeal(true);
    dialog.setUseSalt(true);
    open(dialog);
    EXPECT_EQ(message(), QString()) << "nothing to complain of yet";
    type("0102");
    press(Qt::Key_Tab);
    type("a1a2");
    press(Qt::Key_Return, Qt::ShiftModifier); // a line break in the key
    type("a3a4");
    for (const char* name : {"buttonGenerate", "buttonCopy", "buttonSave", "buttonLoad", "checkBoxSeal"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &child(dialog, name));
    }
    press(Qt::Key_Space); // no seal, or there is no salt to choose
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "checkBoxUseSalt"));
    press(Qt::Key_Space); // use salt
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // rewrite
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "labelNormalMode"));
    key.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.switchToNormal());
    EXPECT_EQ(dialog.iv(), bytes("0102"));
    EXPECT_EQ(dialog.key(), bytes("a1a2a3a4"));
    EXPECT_FALSE(dialog.seal());
    EXPECT_FALSE(dialog.useSalt());
    EXPECT_TRUE(dialog.rewriteOutputFile());
    EXPECT_TRUE(key.document()->isEmpty());
}

TEST_F(KeyAndIvDialog, TitlesAndLabelsTellModeAndLengths)
{
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to encrypt");
    EXPECT_EQ(label("labelKey"), "&Key, length: 4 bytes (HEX format)");
    EXPECT_EQ(label("labelIv"), "&Initialization vector (IV), length: 2 bytes (HEX format)");
    dialog.reject();
    dialog.setEncryptMode(false);
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to decrypt");
    EXPECT_EQ(child<QTextEdit>(dialog, "textEditInfo").toPlainText(),
              "Enter the key and IV to decrypt the file. \nSelected cryptographic algorithm: Toy.");
    for (const char* hidden : {"buttonGenerate", "checkBoxSeal", "checkBoxUseSalt"})
        EXPECT_FALSE(child(dialog, hidden).isVisible()) << hidden;
}

TEST_F(KeyAndIvDialog, HandsOverToThePasswordDialogAndKeepsWhatWasTyped)
{
    open(dialog);
    type("0102");
    press(Qt::Key_Tab);
    type("a1a2a");
    press(Qt::Key_E, Qt::AltModifier);
    EXPECT_FALSE(child(dialog, "checkBoxUseSalt").isEnabled());
    child(dialog, "labelNormalMode").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.switchToNormal());
    EXPECT_TRUE(dialog.seal());
    EXPECT_EQ(dialog.iv(), bytes("0102"));
    EXPECT_TRUE(dialog.key().empty()) << "half a byte is no key";

    CSetKeyAndIvDialog again;
    again.setExpectedLengths(4, 2);
    again.setTyped(dialog.typed());
    open(again);
    EXPECT_EQ(child<QPlainTextEdit>(again, "plainTextEditIv").toPlainText(), "0102");
    EXPECT_EQ(child<QPlainTextEdit>(again, "plainTextEditKey").toPlainText(), "a1a2a");
    EXPECT_EQ(child<QLineEdit>(again, "lineEditMsg").text(), "Invalid key: invalid hexadecimal characters. ");
}

TEST_F(KeyAndIvDialog, StaysReadableWhenTheThemeChanges)
{
    open(dialog);
    type("0102");
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QColor(0x30, 0x30, 0x30));
    QApplication::processEvents();
    EXPECT_LT(iv.palette().color(QPalette::Base).lightness(), 0x80) << "the background of a valid IV";
    for (const QWidget* widget :
         {&child(dialog, "lineEditMsg"), &child(dialog, "textEditInfo"), static_cast<QWidget*>(&iv)})
        EXPECT_GT(widget->palette().color(QPalette::Text).lightness(), 0x80) << widget->objectName();
    QApplication::setPalette(before);
}

TEST_F(KeyAndIvDialog, ForgetsEverythingWhenCancelled)
{
    dialog.setTyped({tessaly::SecretText("0102"), tessaly::SecretText("a1a2a3a4")});
    open(dialog);
    press(Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.key().empty());
    EXPECT_TRUE(dialog.typed().key.empty());
    EXPECT_TRUE(key.document()->isEmpty());
    EXPECT_FALSE(key.document()->isUndoAvailable());
}

/// Saves or loads through the file dialog; says yes to whatever it asks.
void useFile(QWidget& dialog, Qt::Key mnemonic, const std::string& path)
{
    QApplication::setActiveWindow(&dialog);
    whenModal([path](QWidget& modal) {
        auto& name = child<QLineEdit>(modal, "fileNameEdit");
        name.setText(QString::fromStdString(path));
        if (QFile::exists(name.text()))
            whenModal([](QWidget&) { press(Qt::Key_Y, Qt::AltModifier); });
        QTest::keyClick(&name, Qt::Key_Return);
    });
    press(mnemonic, Qt::AltModifier);
}

TEST_F(KeyAndIvDialog, GeneratesCopiesAndSavesPrivately)
{
    const test::TempFolder folder;
    folder.write("key.txt", "an older key that others may read");
    open(dialog);
    EXPECT_FALSE(child(dialog, "buttonCopy").isEnabled()) << "nothing to copy yet";
    press(Qt::Key_G, Qt::AltModifier);
    const QString generated = key.toPlainText();
    EXPECT_EQ(generated.size(), 8);
    press(Qt::Key_G, Qt::AltModifier);
    EXPECT_NE(key.toPlainText(), generated);
    key.setPlainText("typed");
    for (const Qt::Key answer : {Qt::Key_Return, Qt::Key_Y}) { // No is the default
        whenModal(
            [answer](QWidget&) { press(answer, answer == Qt::Key_Y ? Qt::AltModifier : Qt::NoModifier); });
        press(Qt::Key_G, Qt::AltModifier);
        EXPECT_EQ(key.toPlainText() == "typed", answer == Qt::Key_Return);
        QApplication::setActiveWindow(&dialog);
    }

    const QString text = QString("Quillet key and initialization vector\nAlgorithm: Toy\n"
                                 "Initialization vector (IV): %1\nKey: %2\n")
                             .arg(iv.toPlainText(), key.toPlainText());
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), text);

    useFile(dialog, Qt::Key_S, folder / "key.txt");
    EXPECT_EQ(message(), "The key and IV were saved. Only you can read the file.");
    EXPECT_EQ(test::readFile(folder / "key.txt"), text.toStdString());
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder / "key.txt").permissions(),
              perms::owner_read | perms::owner_write);
    const std::filesystem::directory_iterator files(folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "a temporary file is left";

    iv.setPlainText("not what was saved");
    useFile(dialog, Qt::Key_L, folder / "key.txt"); // over what was typed
    EXPECT_EQ(message(), "The key and IV were loaded.");
    EXPECT_EQ(test::readFile(folder / "key.txt").find(iv.toPlainText().toStdString() + "\nKey: "),
              text.toStdString().find(iv.toPlainText().toStdString()));

    useFile(dialog, Qt::Key_S, "/proc/key.txt"); // where nobody can write
    EXPECT_TRUE(message().startsWith("The key and IV could not be saved: ")) << message();
}

} // namespace
