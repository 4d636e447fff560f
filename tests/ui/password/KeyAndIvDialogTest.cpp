#include "lib/secret/Hex.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"
#include "ui/Widgets.h"
#include "ui/password/CHexEdit.h"
#include "ui/password/CSetKeyAndIvDialog.h"

namespace {

using tessaly::decodeHex;

/// The dialog for an encryption with a key of four bytes and an IV of two.
struct KeyAndIvDialog : DialogTest<CSetKeyAndIvDialog>
{
    KeyAndIvDialog()
    {
        dialog.setAlgorithmName("Toy");
        dialog.setExpectedLengths(4, 2);
    }
    /// Opens it with these texts instead of what was in it.
    void openWith(const char* ivText, const char* keyText)
    {
        dialog.reject();
        dialog.setTyped({tessaly::SecretText(ivText), tessaly::SecretText(keyText)});
        open(dialog);
    }
    QString texts() const { return iv.toPlainText() + ',' + key.toPlainText(); }
    static QColor ground(const QWidget& widget) { return widget.palette().color(QPalette::Base); }

    QPlainTextEdit& key = child<QPlainTextEdit>(dialog, "plainTextEditKey");
    QPlainTextEdit& iv = child<QPlainTextEdit>(dialog, "plainTextEditIv");
};

TEST_F(KeyAndIvDialog, JudgesTheTextsOnEveryChangeAndAtOk)
{
    const QString ivHex = "Invalid IV: invalid hexadecimal characters. ";
    const QString keyHex = "Invalid key: invalid hexadecimal characters. ";
    const std::tuple<const char*, const char*, QString, int, int> rows[] = {
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
    for (const auto& [ivText, keyText, complaint, ivCount, keyCount] : rows) {
        SCOPED_TRACE(testing::Message() << ivText << ' ' << keyText);
        openWith("", "");
        iv.insertPlainText(ivText);
        key.insertPlainText(keyText);
        EXPECT_EQ(text("labelIvCount"), QString("%1 of 2 bytes entered").arg(ivCount));
        EXPECT_EQ(text("labelKeyCount"), QString("%1 of 4 bytes entered").arg(keyCount));
        const bool accepted = complaint.isEmpty();
        QTest::mouseClick(&child(dialog, "buttonOk"), Qt::LeftButton);
        EXPECT_EQ(message(), accepted ? "" : "Warning: " + complaint);
        EXPECT_TRUE(isEnabled("buttonCopy") == accepted && isEnabled("buttonSave") == accepted);
        EXPECT_EQ(ground(iv), thisapp::fieldColor(!complaint.contains("IV"), dialog.palette()));
        EXPECT_EQ(ground(key), thisapp::fieldColor(!complaint.contains("key"), dialog.palette()));
        EXPECT_EQ(dialog.isVisible(), !accepted);
        EXPECT_EQ(dialog.key(), decodeHex(accepted ? "00112233" : "").value());
    }
}

TEST_F(KeyAndIvDialog, TakesNoMegabyteFromTheClipboard)
{
    open(dialog);
    key.insertPlainText("00");
    EXPECT_FALSE(key.document()->isUndoAvailable());
    QApplication::clipboard()->setText(QString(1 << 20, '7'));
    for (int times = 0; times < 2; ++times) {
        key.paste();
        EXPECT_EQ(key.document()->characterCount(), CHexEdit::MostText);
        key.selectAll();
    }
    QApplication::clipboard()->setText("ab");
    key.paste();
    EXPECT_EQ(key.toPlainText(), "ab") << "what is replaced makes room";
}

TEST_F(KeyAndIvDialog, PassesByKeyboardAloneInTheOrderOfTheForm)
{
    dialog.setSeal(true);
    dialog.setUseSalt(true);
    open(dialog);
    EXPECT_EQ(message(), "") << "nothing to complain of yet";
    for (const QPlainTextEdit* field : {&iv, &key}) {
        EXPECT_EQ(ground(*field), ground(dialog));
        EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));
    }
    type("0102\ta1a2");
    press("Shift+Return"); // a line break in the key
    type("a3a4");
    for (const char* name : {"buttonGenerate", "buttonCopy", "buttonSave", "buttonLoad", "checkBoxSeal"}) {
        press("Tab");
        EXPECT_EQ(focusName(), name);
    }
    press("Space Tab"); // no seal, or there is no salt to choose
    EXPECT_EQ(focusName(), "checkBoxUseSalt");
    press("Space Tab Space Tab"); // no salt, rewrite
    EXPECT_EQ(focusName(), "labelNormalMode");
    iv.setFocus();
    press("Enter");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.iv(), decodeHex("0102"));
    EXPECT_EQ(dialog.key(), decodeHex("a1a2a3a4"));
    EXPECT_FALSE(dialog.switchToNormal() || dialog.seal() || dialog.useSalt());
    EXPECT_TRUE(dialog.rewriteOutputFile());
    EXPECT_EQ(texts(), ",");
    openWith("", "");
    key.setFocus();
    press("Return");
    EXPECT_EQ(message(), "Warning: Empty IV. Empty key. ");
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
    EXPECT_EQ(text("labelSubject"), "file and 1 more");
    EXPECT_EQ(child(dialog, "buttonCopy").accessibleDescription(),
              "Puts key and IV on the clipboard, from where they are removed after 60 seconds.");
    EXPECT_TRUE(child(dialog, "buttonCopy").toolTip().contains("60 seconds"));
    EXPECT_EQ(iv.sizeHint(), key.sizeHint()) << "two lines at the least";
    EXPECT_EQ(text("labelKey"), "&Key, length: 4 bytes (HEX format)");
    EXPECT_EQ(text("labelIv"), "&Initialization vector (IV), length: 2 bytes (HEX format)");
    dialog.reject();
    dialog.setEncryptMode(false);
    dialog.setExpectedLengths(65, 64);
    open(dialog);
    EXPECT_EQ(key.sizeHint().height() - iv.sizeHint().height(), key.fontMetrics().lineSpacing());
    EXPECT_EQ(dialog.windowTitle(), "Key and IV to decrypt");
    EXPECT_EQ(text("textEditInfo"),
              "Enter the key and IV to decrypt the file. \nSelected cryptographic algorithm: Toy.");
    for (const char* hidden :
         {"buttonGenerate", "buttonCopy", "buttonSave", "checkBoxSeal", "checkBoxUseSalt"})
        EXPECT_FALSE(isVisible(hidden)) << hidden;
}

TEST_F(KeyAndIvDialog, HandsOverToThePasswordDialogAndKeepsWhatWasTyped)
{
    dialog.setRewriteOutputFile(true);
    open(dialog);
    type("0102\ta1a2a");
    press("Alt+E");
    EXPECT_FALSE(isEnabled("checkBoxUseSalt"));
    child(dialog, "labelNormalMode").setFocus();
    press("Space");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.switchToNormal() && dialog.seal() && dialog.rewriteOutputFile());
    EXPECT_EQ(dialog.iv(), decodeHex("0102"));
    EXPECT_TRUE(dialog.key().empty()) << "half a byte is no key";

    dialog.setTyped(dialog.typed());
    open(dialog);
    EXPECT_EQ(texts(), "0102,a1a2a");
    EXPECT_EQ(message(), "Warning: Invalid key: invalid hexadecimal characters. ");
    dialog.reject();
    EXPECT_FALSE(dialog.switchToNormal());
}

TEST_F(KeyAndIvDialog, StaysReadableWhenTheThemeChanges)
{
    open(dialog);
    type("0102");
    QApplication::setPalette(QColor(0x30, 0x30, 0x30));
    QApplication::processEvents();
    EXPECT_LT(ground(iv).lightness(), 0x80) << "the background of a valid IV";
    for (const char* name : {"lineEditMsg", "textEditInfo", "plainTextEditIv"})
        EXPECT_GT(child(dialog, name).palette().color(QPalette::Text).lightness(), 0x80) << name;
}

TEST_F(KeyAndIvDialog, ForgetsEverythingWhenCancelled)
{
    openWith("0102", "a1a2a3a4");
    press("Return");
    EXPECT_EQ(dialog.key(), decodeHex("a1a2a3a4"));
    openWith("0102", "a1a2a3a4");
    sendFromOutside<QHideEvent>(dialog);
    EXPECT_EQ(key.toPlainText(), "a1a2a3a4") << "of a minimised window";
    press("Esc");
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.key().empty() && dialog.iv().empty() && dialog.typed().key.empty());
    EXPECT_EQ(texts(), ",");
    EXPECT_FALSE(key.document()->isUndoAvailable());
}

/// Saves or loads through the file dialog and says yes to whatever it asks. Gives the proposed name, and
/// whether it asked.
std::pair<QString, bool> useFile(QWidget& dialog, const char* mnemonic, const std::string& path)
{
    QString proposed;
    std::shared_ptr<bool> waiting;
    QApplication::setActiveWindow(&dialog);
    whenModal([&](QWidget& modal) {
        auto& name = child<QLineEdit>(modal, "fileNameEdit");
        proposed = name.text();
        EXPECT_EQ(dynamic_cast<QFileDialog&>(modal).nameFilters().contains("All files (*)"),
                  mnemonic == std::string("Alt+L"));
        name.setText(QString::fromStdString(path));
        waiting = answerModal("Alt+Y");
        QTest::keyClick(&name, Qt::Key_Return);
    });
    press(mnemonic);
    QApplication::setActiveWindow(&dialog);
    return {proposed, !std::exchange(*waiting, false)};
}

TEST_F(KeyAndIvDialog, GeneratesAndAsksBeforeItReplacesWhatSomebodyHas)
{
    const test::TempFolder folder;
    const auto generate = [] { press("Alt+G"); };
    open(dialog);
    generate();
    const QString generated = texts();
    EXPECT_EQ(generated.indexOf(','), 4);
    EXPECT_EQ(generated.size(), 13);
    EXPECT_EQ(message(), "Warning: Copy or save the key and IV: without them the file cannot be decrypted.");
    generate(); // nobody has these
    EXPECT_NE(key.toPlainText(), generated.mid(5));
    const std::function<void()> ways[] = {
        [this] { key.setPlainText("typed"); },
        [this] { iv.setPlainText("typed"); },
        [] { press("Alt+C"); },
        [&] { useFile(dialog, "Alt+S", folder / "key.txt"); },
    };
    for (const auto& way : ways)
        for (const bool yes : {false, true}) {
            way();
            const QString before = texts();
            EXPECT_TRUE(answered(yes ? "Alt+Y" : "Return", generate)) << &way - ways;
            QApplication::setActiveWindow(&dialog);
            EXPECT_EQ(texts() != before, yes) << "No is the default";
        }
    for (const int failing : {1, 2}) {
        openWith("", "");
        const test::SystemCall none("getrandom", EIO, failing);
        child<QAbstractButton>(dialog, "buttonGenerate").click();
        EXPECT_EQ(texts(), ",");
        EXPECT_EQ(message(), "Error: The system's random generator failed.");
    }
}

TEST_F(KeyAndIvDialog, CopiesSavesPrivatelyAndLoads)
{
    const test::TempFolder folder;
    folder.write("key.txt", "an older key that others may read");
    open(dialog);
    press("Alt+G");
    const QString saved = QString("Quillet key and initialization vector\nAlgorithm: Toy\n"
                                  "Initialization vector (IV): %1\nKey: %2\n")
                              .arg(iv.toPlainText(), key.toPlainText());
    press("Alt+C");
    EXPECT_EQ(QApplication::clipboard()->text(), saved);
    EXPECT_EQ(text("lineEditMsg"), "The key and IV are on the clipboard for 60 seconds.");

    EXPECT_EQ(useFile(dialog, "Alt+S", folder / "key.txt"), std::pair(QString("Toy key and IV.txt"), true));
    EXPECT_EQ(message(), "Success: The key and IV were saved. Only you can read the file.");
    EXPECT_EQ(test::readFile(folder / "key.txt"), saved.toStdString());
    EXPECT_EQ(std::filesystem::status(folder / "key.txt").permissions(), std::filesystem::perms(0600));
    EXPECT_EQ(QDir(folder.path().c_str()).count(), 3U) << "a temporary file is left";

    const QString before = texts();
    iv.setPlainText("not what was saved");
    EXPECT_TRUE(useFile(dialog, "Alt+L", folder / "key.txt").second) << "over what was typed";
    EXPECT_EQ(message(), "Success: The key and IV were loaded.");
    EXPECT_EQ(texts(), before);

    useFile(dialog, "Alt+S", "/proc/key.txt"); // where nobody can write
    EXPECT_EQ(message(), "Error: The key and IV could not be saved: No such file or directory");
}

TEST_F(KeyAndIvDialog, TellsWhatALoadedFileIs)
{
    const std::string good = "Initialization vector (IV): 0102\nKey: a1a2a3a4\n\n";
    const auto filled = [&good](std::size_t size) { return good + std::string(size - good.size(), ' '); };
    const std::pair<std::string, QString> rows[] = {
        {filled(64 << 10), "Success: The key and IV were loaded."},
        {filled((64 << 10) + 1), "Error: The file cannot be read."},
        {"Key: a1a2a3a4", "Error: The file holds no key and IV."},
        {"Algorithm: Other\n" + good,
         "Warning: The key and IV were saved for Other. The selected algorithm is Toy."},
        {"Initialization vector (IV): 010203\nKey: a1a2a3a4\n",
         "Warning: Invalid IV size: entered 3 bytes. "},
    };
    const test::TempFolder folder;
    for (const auto& [content, notice] : rows) {
        folder.write("a.key", content);
        openWith("", "");
        EXPECT_FALSE(useFile(dialog, "Alt+L", folder / "a.key").second) << "nothing to replace";
        EXPECT_EQ(message(), notice);
        EXPECT_EQ(key.document()->isEmpty(), notice.startsWith("Error")) << notice;
    }
}

} // namespace
