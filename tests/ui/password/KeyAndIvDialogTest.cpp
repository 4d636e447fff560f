#include "lib/secret/Hex.h"
#include "support/ScratchFolder.h"
#include "ui/Widgets.h"
#include "ui/password/CSetKeyAndIvDialog.h"

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
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

struct HexCase
{
    const char* iv;
    const char* key;
    const char* message; ///< empty: accepted
    const char* counts;  ///< of the IV and the key
};

class HexEntry : public testing::TestWithParam<HexCase>
{
};

TEST_P(HexEntry, IsJudgedOnEveryChangeAndAtOk)
{
    const HexCase& test = GetParam();
    CSetKeyAndIvDialog dialog;
    dialog.setExpectedLengths(4, 2);
    open(dialog);
    // A change in each field, so that empty ones are judged as well.
    child<QPlainTextEdit>(dialog, "plainTextEditIv").insertPlainText(QString::fromUtf8(test.iv));
    child<QPlainTextEdit>(dialog, "plainTextEditKey").insertPlainText(QString::fromUtf8(test.key));
    QTest::mouseClick(&child(dialog, "buttonOk"), Qt::LeftButton);
    const bool accepted = *test.message == '\0';
    EXPECT_EQ(dialog.isVisible(), !accepted);
    EXPECT_EQ(child<QLineEdit>(dialog, "lineEditMsg").text(), test.message);
    EXPECT_EQ(child<QLabel>(dialog, "labelIvCount").text() + ", " +
                  child<QLabel>(dialog, "labelKeyCount").text(),
              test.counts);
    EXPECT_EQ(dialog.key().size(), accepted ? 4U : 0U);
    EXPECT_EQ(dialog.iv().size(), accepted ? 2U : 0U);
}

#define COUNTS(iv, key) #iv " of 2 bytes entered, " #key " of 4 bytes entered"
INSTANTIATE_TEST_SUITE_P(
    Texts, HexEntry,
    testing::Values(
        HexCase{"", "", "Empty IV. Empty key. ", COUNTS(0, 0)},
        HexCase{" \n\t", "00112233", "Empty IV. ", COUNTS(0, 4)},
        HexCase{"aBcD", "00 11\n2 2\t33 ", "", COUNTS(2, 4)},
        HexCase{"00\xc2\xa0"
                "11",
                "0011\xe3\x80\x80"
                "2233",
                "", COUNTS(2, 4)},
        HexCase{"001", "00112233", "Invalid IV: invalid hexadecimal characters. ", COUNTS(1, 4)},
        HexCase{"0011", "0x112233", "Invalid key: invalid hexadecimal characters. ", COUNTS(2, 3)},
        HexCase{"0011", "0011223\xc3\xa9", "Invalid key: invalid hexadecimal characters. ", COUNTS(2, 3)},
        HexCase{"001122", "0011", "Invalid IV size: entered 3 bytes. Invalid key size: entered 2 bytes. ",
                COUNTS(3, 2)},
        HexCase{"00112", "zz",
                "Invalid IV: invalid hexadecimal characters. Invalid key: invalid hexadecimal characters. ",
                COUNTS(2, 0)}));
#undef COUNTS

TEST_F(KeyAndIvDialog, PassesByKeyboardAloneInTheOrderOfTheForm)
{
    dialog.setUseSalt(true);
    open(dialog);
    EXPECT_EQ(message(), QString()) << "nothing to complain of yet";
    type("0102");
    press(Qt::Key_Tab);
    type("a1a2");
    press(Qt::Key_Return); // a line break in the key
    type("a3a4");
    for (const char* name : {"buttonGenerate", "buttonCopy", "buttonSave", "checkBoxUseSalt"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &child(dialog, name));
    }
    press(Qt::Key_Space); // use salt
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // rewrite
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &child(dialog, "labelNormalMode"));
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.switchToNormal());
    EXPECT_EQ(dialog.iv(), bytes("0102"));
    EXPECT_EQ(dialog.key(), bytes("a1a2a3a4"));
    EXPECT_FALSE(dialog.useSalt());
    EXPECT_TRUE(dialog.rewriteOutputFile());
    EXPECT_TRUE(key.document()->isEmpty());
}

TEST_F(KeyAndIvDialog, TitlesAndLabelsTellModeAndLengths)
{
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to encrypt");
    EXPECT_EQ(label("labelKey").remove('&'), "Key, length: 4 bytes (HEX format)");
    EXPECT_EQ(label("labelIv").remove('&'), "Initialization vector (IV), length: 2 bytes (HEX format)");
    dialog.reject();
    dialog.setEncryptMode(false);
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to decrypt");
    EXPECT_EQ(child<QTextEdit>(dialog, "textEditInfo").toPlainText(),
              "Enter the key and IV to decrypt the file. \nSelected cryptographic algorithm: Toy.");
    EXPECT_FALSE(child(dialog, "buttonGenerate").isVisible());
    EXPECT_FALSE(child(dialog, "checkBoxUseSalt").isVisible());
}

TEST_F(KeyAndIvDialog, HandsOverToThePasswordDialogAndKeepsWhatWasTyped)
{
    open(dialog);
    type("0102");
    press(Qt::Key_Tab);
    type("a1a2a");
    child(dialog, "labelNormalMode").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.switchToNormal());
    EXPECT_EQ(dialog.iv(), bytes("0102"));
    EXPECT_TRUE(dialog.key().empty()) << "half a byte is no key";

    CSetKeyAndIvDialog again;
    again.setExpectedLengths(4, 2);
    again.setTyped(dialog.typed());
    open(again);
    EXPECT_EQ(child<QPlainTextEdit>(again, "plainTextEditIv").toPlainText(), "0102");
    EXPECT_EQ(child<QPlainTextEdit>(again, "plainTextEditKey").toPlainText(), "a1a2a");
    EXPECT_EQ(child<QLineEdit>(again, "lineEditMsg").text(), "Invalid key: invalid hexadecimal characters. ");
    again.reject();

    again.setKeyAndIv(bytes("a1a2a3a4"), bytes("0102"));
    open(again);
    QTest::mouseClick(&child(again, "buttonOk"), Qt::LeftButton);
    EXPECT_EQ(again.result(), QDialog::Accepted);
    EXPECT_EQ(again.key(), bytes("a1a2a3a4"));
}

TEST_F(KeyAndIvDialog, ForgetsEverythingWhenCancelled)
{
    dialog.setKeyAndIv(bytes("a1a2a3a4"), bytes("0102"));
    open(dialog);
    press(Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.key().empty());
    EXPECT_TRUE(dialog.typed().key.empty());
    EXPECT_TRUE(key.document()->isEmpty());
    EXPECT_FALSE(key.document()->isUndoAvailable());
}

TEST_F(KeyAndIvDialog, GeneratesCopiesAndSavesPrivately)
{
    const test::ScratchFolder folder;
    const QString path = QString::fromStdWString(folder.write("key.txt", "an older key"));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    open(dialog);
    EXPECT_FALSE(child(dialog, "buttonCopy").isEnabled()) << "nothing to copy yet";
    press(Qt::Key_G, Qt::AltModifier);
    const QString generated = key.toPlainText();
    EXPECT_EQ(generated.size(), 8);
    press(Qt::Key_G, Qt::AltModifier);
    EXPECT_NE(key.toPlainText(), generated);

    QApplication::clipboard()->clear();
    const QString text = QString("Quillet key and initialization vector\nAlgorithm: Toy\n"
                                 "Initialization vector (IV): %1\nKey: %2\n")
                             .arg(iv.toPlainText(), key.toPlainText());
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), text);

    whenModal([&path](QWidget& modal) {
        auto& name = child<QLineEdit>(modal, "fileNameEdit");
        name.setText(path);
        whenModal([](QWidget&) { press(Qt::Key_Y, Qt::AltModifier); }); // replace it?
        QTest::keyClick(&name, Qt::Key_Return);
    });
    press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(message(), "The key and IV were saved. Only you can read the file.");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), text);
    EXPECT_FALSE(file.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther));
    EXPECT_EQ(QFileInfo(path).dir().entryList(QDir::Files), QStringList("key.txt"))
        << "no temporary file is left";
}

TEST_F(KeyAndIvDialog, SaysWhyTheKeyCouldNotBeSaved)
{
    dialog.setKeyAndIv(bytes("a1a2a3a4"), bytes("0102"));
    open(dialog);
    whenModal([](QWidget& modal) {
        auto& name = child<QLineEdit>(modal, "fileNameEdit");
        name.setText("/proc/key.txt"); // where nobody can write
        QTest::keyClick(&name, Qt::Key_Return);
    });
    press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(message().startsWith("The key and IV could not be saved: ")) << message();
    EXPECT_FALSE(message().endsWith(": ")) << "no reason";
}

} // namespace
