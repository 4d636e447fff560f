#include "lib/secret/Hex.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"
#include "ui/ShownKind.h"
#include "ui/Widgets.h"
#include "ui/password/CHexEdit.h"
#include "ui/password/CSetKeyAndIvDialog.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

using tessaly::SecretBytes;
using thisapp::MessageKind;

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
    MessageKind messageKind() { return shownKind(child<QLineEdit>(dialog, "lineEditMsg")); }
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
        {"afAF", "00 11\n2 2\t33 ", "", 2, 4},
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
        const bool accepted = test.message.isEmpty();
        QTest::mouseClick(&child(dialog, "buttonOk"), Qt::LeftButton);
        EXPECT_EQ(message(), test.message);
        EXPECT_EQ(messageKind(), accepted ? MessageKind::Plain : MessageKind::Warning);
        for (const char* button : {"buttonCopy", "buttonSave"})
            EXPECT_EQ(child(dialog, button).isEnabled(), accepted) << button;
        EXPECT_EQ(iv.palette().color(QPalette::Base),
                  thisapp::fieldColor(!test.message.contains("IV"), dialog.palette()));
        EXPECT_EQ(key.palette().color(QPalette::Base),
                  thisapp::fieldColor(!test.message.contains("key"), dialog.palette()));
        EXPECT_EQ(dialog.isVisible(), !accepted) << test.key;
        EXPECT_EQ(dialog.key(), accepted ? bytes("00112233") : SecretBytes()) << test.key;
        dialog.reject();
    }
}

TEST_F(KeyAndIvDialog, TakesNoMegabyteFromTheClipboard)
{
    open(dialog);
    key.insertPlainText("00");
    EXPECT_FALSE(key.document()->isUndoAvailable());
    QApplication::clipboard()->setText(QString(1 << 20, '7'));
    key.paste();
    EXPECT_EQ(key.document()->characterCount(), CHexEdit::MostText);
    key.selectAll();
    key.paste();
    EXPECT_EQ(key.document()->characterCount(), CHexEdit::MostText);
    key.selectAll();
    QApplication::clipboard()->setText("ab");
    key.paste();
    EXPECT_EQ(key.toPlainText(), "ab") << "what is replaced makes room";
}

TEST_F(KeyAndIvDialog, PassesByKeyboardAloneInTheOrderOfTheForm)
{
    dialog.setSeal(true);
    dialog.setUseSalt(true);
    open(dialog);
    EXPECT_EQ(message(), QString()) << "nothing to complain of yet";
    for (const QPlainTextEdit* field : {&iv, &key}) {
        EXPECT_EQ(field->palette().color(QPalette::Base), dialog.palette().color(QPalette::Base));
        EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));
    }
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
    iv.setFocus();
    press(Qt::Key_Enter);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.switchToNormal());
    EXPECT_EQ(dialog.iv(), bytes("0102"));
    EXPECT_EQ(dialog.key(), bytes("a1a2a3a4"));
    EXPECT_FALSE(dialog.seal());
    EXPECT_FALSE(dialog.useSalt());
    EXPECT_TRUE(dialog.rewriteOutputFile());
    EXPECT_TRUE(key.document()->isEmpty() && iv.document()->isEmpty());
    dialog.setTyped({});
    open(dialog);
    key.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(message(), "Empty IV. Empty key. ");
    EXPECT_TRUE(child<QAbstractButton>(dialog, "checkBoxRewrite").isChecked());
}

TEST_F(KeyAndIvDialog, TitlesAndLabelsTellModeAndLengths)
{
    dialog.setSubject("file", 1);
    open(dialog);
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to encrypt");
    EXPECT_EQ(dialog.accessibleDescription(),
              "Remember the name of the encryption algorithm, key and IV. \n"
              "These data will be needed to decrypt the file. \nSelected cryptographic algorithm: Toy.");
    EXPECT_EQ(label("labelSubject"), "file and 1 more");
    EXPECT_EQ(child(dialog, "buttonCopy").accessibleDescription(),
              "Puts key and IV on the clipboard, from where they are removed after 60 seconds.");
    EXPECT_TRUE(child(dialog, "buttonCopy").toolTip().contains("60 seconds"));
    EXPECT_EQ(iv.sizeHint(), key.sizeHint()) << "two lines at the least";
    EXPECT_EQ(label("labelKey"), "&Key, length: 4 bytes (HEX format)");
    EXPECT_EQ(label("labelIv"), "&Initialization vector (IV), length: 2 bytes (HEX format)");
    dialog.reject();
    dialog.setEncryptMode(false);
    dialog.setExpectedLengths(65, 64);
    open(dialog);
    EXPECT_EQ(key.sizeHint().height() - iv.sizeHint().height(), key.fontMetrics().lineSpacing());
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to decrypt");
    EXPECT_EQ(child<QTextEdit>(dialog, "textEditInfo").toPlainText(),
              "Enter the key and IV to decrypt the file. \nSelected cryptographic algorithm: Toy.");
    for (const char* hidden :
         {"buttonGenerate", "buttonCopy", "buttonSave", "checkBoxSeal", "checkBoxUseSalt"})
        EXPECT_FALSE(child(dialog, hidden).isVisible()) << hidden;
}

TEST_F(KeyAndIvDialog, HandsOverToThePasswordDialogAndKeepsWhatWasTyped)
{
    dialog.setRewriteOutputFile(true);
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
    EXPECT_TRUE(dialog.seal() && dialog.rewriteOutputFile());
    EXPECT_EQ(dialog.iv(), bytes("0102"));
    EXPECT_TRUE(dialog.key().empty()) << "half a byte is no key";

    CSetKeyAndIvDialog again;
    again.setExpectedLengths(4, 2);
    again.setTyped(dialog.typed());
    open(again);
    EXPECT_EQ(child<QPlainTextEdit>(again, "plainTextEditIv").toPlainText(), "0102");
    EXPECT_EQ(child<QPlainTextEdit>(again, "plainTextEditKey").toPlainText(), "a1a2a");
    EXPECT_EQ(child<QLineEdit>(again, "lineEditMsg").text(), "Invalid key: invalid hexadecimal characters. ");
    open(dialog);
    dialog.reject();
    EXPECT_FALSE(dialog.switchToNormal());
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
    const auto typed = [] {
        return CSetKeyAndIvDialog::STyped{tessaly::SecretText("0102"), tessaly::SecretText("a1a2a3a4")};
    };
    dialog.setTyped(typed());
    open(dialog);
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.key(), bytes("a1a2a3a4"));
    dialog.setTyped(typed());
    open(dialog);
    sendFromOutside<QHideEvent>(dialog);
    EXPECT_EQ(key.toPlainText(), "a1a2a3a4") << "of a minimised window";
    press(Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.key().empty() && dialog.iv().empty());
    EXPECT_TRUE(dialog.typed().key.empty());
    EXPECT_TRUE(key.document()->isEmpty());
    EXPECT_FALSE(key.document()->isUndoAvailable());
}

/// Saves or loads through the file dialog and says yes to whatever it asks. Gives the proposed name, and
/// whether it asked.
std::pair<QString, bool> useFile(QWidget& dialog, Qt::Key mnemonic, const std::string& path)
{
    QString proposed;
    std::shared_ptr<bool> waiting;
    QApplication::setActiveWindow(&dialog);
    whenModal([&](QWidget& modal) {
        auto& name = child<QLineEdit>(modal, "fileNameEdit");
        proposed = name.text();
        EXPECT_EQ(dynamic_cast<QFileDialog&>(modal).nameFilters().contains("All files (*)"),
                  mnemonic == Qt::Key_L);
        name.setText(QString::fromStdString(path));
        waiting = whenModal([](QWidget&) { press(Qt::Key_Y, Qt::AltModifier); });
        QTest::keyClick(&name, Qt::Key_Return);
    });
    press(mnemonic, Qt::AltModifier);
    QApplication::setActiveWindow(&dialog);
    return {proposed, !std::exchange(*waiting, false)};
}

TEST_F(KeyAndIvDialog, GeneratesAndAsksBeforeItReplacesWhatSomebodyHas)
{
    const test::TempFolder folder;
    const auto generate = [] { press(Qt::Key_G, Qt::AltModifier); };
    open(dialog);
    generate();
    const QString generated = key.toPlainText();
    EXPECT_EQ(generated.size(), 8);
    EXPECT_EQ(iv.toPlainText().size(), 4);
    EXPECT_EQ(message(), "Copy or save the key and IV: without them the file cannot be decrypted.");
    EXPECT_EQ(messageKind(), MessageKind::Warning);
    generate(); // nobody has these
    EXPECT_NE(key.toPlainText(), generated);
    const std::function<void()> ways[] = {
        [this] { key.setPlainText("typed"); },
        [this] { iv.setPlainText("typed"); },
        [] { press(Qt::Key_C, Qt::AltModifier); },
        [&] { useFile(dialog, Qt::Key_S, folder / "key.txt"); },
    };
    for (const auto& way : ways)
        for (const Qt::Key answer : {Qt::Key_Return, Qt::Key_Y}) { // No is the default
            way();
            const QString before = iv.toPlainText() + key.toPlainText();
            EXPECT_TRUE(answered(answer, generate)) << &way - ways;
            QApplication::setActiveWindow(&dialog);
            EXPECT_EQ(iv.toPlainText() + key.toPlainText() == before, answer == Qt::Key_Return);
        }
    for (const int failing : {1, 2}) {
        dialog.reject();
        open(dialog);
        const test::SystemCall none("getrandom", EIO, failing);
        child<QAbstractButton>(dialog, "buttonGenerate").click();
        EXPECT_TRUE(key.document()->isEmpty() && iv.document()->isEmpty());
        EXPECT_EQ(message(), "The system's random generator failed.");
        EXPECT_EQ(messageKind(), MessageKind::Error);
    }
}

TEST_F(KeyAndIvDialog, CopiesSavesPrivatelyAndLoads)
{
    const test::TempFolder folder;
    folder.write("key.txt", "an older key that others may read");
    open(dialog);
    press(Qt::Key_G, Qt::AltModifier);
    const QString text = QString("Quillet key and initialization vector\nAlgorithm: Toy\n"
                                 "Initialization vector (IV): %1\nKey: %2\n")
                             .arg(iv.toPlainText(), key.toPlainText());
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), text);
    EXPECT_EQ(message(), "The key and IV are on the clipboard for 60 seconds.");

    EXPECT_EQ(useFile(dialog, Qt::Key_S, folder / "key.txt"), std::pair(QString("Toy key and IV.txt"), true));
    EXPECT_EQ(message(), "The key and IV were saved. Only you can read the file.");
    EXPECT_EQ(messageKind(), MessageKind::Success);
    EXPECT_EQ(test::readFile(folder / "key.txt"), text.toStdString());
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder / "key.txt").permissions(),
              perms::owner_read | perms::owner_write);
    const std::filesystem::directory_iterator files(folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "a temporary file is left";

    const QString saved = iv.toPlainText();
    iv.setPlainText("not what was saved");
    EXPECT_TRUE(useFile(dialog, Qt::Key_L, folder / "key.txt").second) << "over what was typed";
    EXPECT_EQ(message(), "The key and IV were loaded.");
    EXPECT_EQ(iv.toPlainText(), saved);

    useFile(dialog, Qt::Key_S, "/proc/key.txt"); // where nobody can write
    EXPECT_EQ(message(), "The key and IV could not be saved: No such file or directory");
    EXPECT_EQ(messageKind(), MessageKind::Error);
}

TEST_F(KeyAndIvDialog, TellsWhatALoadedFileIs)
{
    const std::string good = "Initialization vector (IV): 0102\nKey: a1a2a3a4\n\n";
    const auto filled = [&good](std::size_t size) { return good + std::string(size - good.size(), ' '); };
    const struct
    {
        std::string content;
        const char* message;
        MessageKind kind;
    } rows[] = {
        {filled(64 << 10), "The key and IV were loaded.", MessageKind::Success},
        {filled((64 << 10) + 1), "The file cannot be read.", MessageKind::Error},
        {"Key: a1a2a3a4", "The file holds no key and IV.", MessageKind::Error},
        {"Algorithm: Other\n" + good, "The key and IV were saved for Other. The selected algorithm is Toy.",
         MessageKind::Warning},
        {"Initialization vector (IV): 010203\nKey: a1a2a3a4\n", "Invalid IV size: entered 3 bytes. ",
         MessageKind::Warning},
    };
    const test::TempFolder folder;
    for (const auto& row : rows) {
        folder.write("a.key", row.content);
        open(dialog);
        EXPECT_FALSE(useFile(dialog, Qt::Key_L, folder / "a.key").second) << "nothing to replace";
        EXPECT_EQ(message(), row.message);
        EXPECT_EQ(messageKind(), row.kind) << row.message;
        EXPECT_EQ(key.document()->isEmpty(), row.kind == MessageKind::Error) << row.message;
        dialog.reject();
    }
}

} // namespace
