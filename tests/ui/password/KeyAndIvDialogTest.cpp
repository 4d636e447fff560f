#include "lib/secret/Hex.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"
#include "ui/Form.h"
#include "ui/password/CHexEdit.h"
#include "ui/password/CSetKeyAndIvDialog.h"

namespace {

using Dialog = CSetKeyAndIvDialog;

/// The dialog for an encryption with a key of four bytes and an IV of two.
struct KeyAndIvForm : Form<Dialog>
{
    KeyAndIvForm()
    {
        dialog.setAlgorithmName("Toy");
        dialog.setExpectedLengths(4, 2);
        dialog.setSubject("file", 1);
        settings = {{"encrypt", &Dialog::setEncryptMode},
                    {"seal", &Dialog::setSeal},
                    {"salt", &Dialog::setUseSalt},
                    {"rewrite", &Dialog::setRewriteOutputFile}};
        verbs["fill"] = [this](const QStringList& row) { openWith(row[1], row[2]); };
        verbs["enter"] = [this](const QStringList& row) {
            openWith("", "");
            iv.insertPlainText(row[1]);
            key.insertPlainText(row[2]);
        };
        verbs["file"] = [this](const QStringList& row) {
            std::string content = row[2].toStdString();
            content.resize(std::max(content.size(), std::size_t(row.value(3).toUInt())), ' ');
            folder.write(row[1].toStdString(), content);
        };
        verbs["save"] = [this](const QStringList& row) { useFile("Alt+S", row[1], row.size() > 2); };
        verbs["load"] = [this](const QStringList& row) { useFile("Alt+L", row[1], row.size() > 2); };
        verbs["fail"] = [this](const QStringList& row) {
            noRandom.emplace("getrandom", EIO, row[1].toInt());
        };
        outcomes["changed"] = [this] {
            const QString lastIv = std::exchange(seenIv, iv.toPlainText());
            const QString lastKey = std::exchange(seenKey, key.toPlainText());
            return namesOf({{"iv", seenIv != lastIv}, {"key", seenKey != lastKey}});
        };
        outcomes["clipboard"] = [] { return QApplication::clipboard()->text(); };
        outcomes["saved"] = [this] {
            const auto rights = std::filesystem::status(folder / "saved.txt").permissions();
            EXPECT_EQ(rights, std::filesystem::perms(0600));
            EXPECT_EQ(QDir(folder.path().c_str()).count(), 3U) << "a temporary file is left";
            return QString::fromStdString(test::readFile(folder / "saved.txt"));
        };
        outcomes["texts"] = [this] { return iv.toPlainText() + ',' + key.toPlainText(); };
        outcomes["fields"] = [this] {
            return text("labelIvCount") + ' ' + ground(iv) + ", " + text("labelKeyCount") + ' ' + ground(key);
        };
        outcomes["taken"] = [this] { return hex(dialog.iv()) + ',' + hex(dialog.key()); };
        outcomes["typed"] = [this] {
            return QString(dialog.typed().iv.c_str()) + ',' + dialog.typed().key.c_str();
        };
        outcomes["options"] = [this] {
            return namesOf({{"seal", dialog.seal()},
                            {"salt", dialog.useSalt()},
                            {"rewrite", dialog.rewriteOutputFile()},
                            {"simple", dialog.switchToNormal()}});
        };
    }
    /// Opens it with these texts instead of what was in it.
    void openWith(const QString& ivText, const QString& keyText)
    {
        dialog.setTyped(
            {tessaly::SecretText(ivText.toStdString()), tessaly::SecretText(keyText.toStdString())});
        reopen();
    }
    static QString hex(const tessaly::SecretBytes& bytes) { return tessaly::encodeHex(bytes).c_str(); }
    QString ground(const QWidget& field) const
    {
        const QColor color = field.palette().color(QPalette::Base);
        return color == thisapp::fieldColor(true, dialog.palette())    ? "green"
               : color == thisapp::fieldColor(false, dialog.palette()) ? "red"
                                                                       : "plain";
    }
    /// Saves or loads through the file dialog, and says yes if it is to ask.
    void useFile(const QString& keys, const QString& name, bool asks)
    {
        const bool saves = keys == "Alt+S";
        std::shared_ptr<bool> waiting;
        QApplication::setActiveWindow(&dialog);
        whenModal([&](QWidget& modal) {
            auto& field = child<QLineEdit>(modal, "fileNameEdit");
            EXPECT_EQ(field.text(), saves ? "Toy key and IV.txt" : "");
            EXPECT_EQ(dynamic_cast<QFileDialog&>(modal).nameFilters().contains("All files (*)"), !saves);
            waiting = answerModal("Alt+Y");
            field.setText((folder / name.toStdString()).c_str());
            QTest::keyClick(&field, Qt::Key_Return);
        });
        press(keys);
        QApplication::setActiveWindow(&dialog);
        EXPECT_EQ(std::exchange(*waiting, false), !asks);
    }

    const test::TempFolder folder;
    std::optional<test::SystemCall> noRandom;
    QString seenIv, seenKey;
    QPlainTextEdit& key = child<QPlainTextEdit>(dialog, "plainTextEditKey");
    QPlainTextEdit& iv = child<QPlainTextEdit>(dialog, "plainTextEditIv");
};

struct KeyAndIvDialog : testing::Test, KeyAndIvForm
{
};

TEST_F(KeyAndIvDialog, TakesMakesAndKeepsKeyAndIv)
{
    walk<KeyAndIvForm>("ui/key_dialog.txt");
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

TEST_F(KeyAndIvDialog, HasRoomForItsLengthsAndStaysReadableWhenTheThemeChanges)
{
    open(dialog);
    EXPECT_EQ(iv.sizeHint(), key.sizeHint()) << "two lines at the least";
    dialog.setExpectedLengths(65, 64);
    reopen();
    EXPECT_EQ(key.sizeHint().height() - iv.sizeHint().height(), key.fontMetrics().lineSpacing());
    for (const QPlainTextEdit* field : {&iv, &key})
        EXPECT_TRUE(field->inputMethodHints().testFlag(Qt::ImhSensitiveData));

    iv.setPlainText(QString(128, '0'));
    QApplication::setPalette(QColor(0x30, 0x30, 0x30));
    QApplication::processEvents();
    EXPECT_LT(iv.palette().color(QPalette::Base).lightness(), 0x80);
    EXPECT_EQ(ground(iv), "green");
    for (const char* name : {"lineEditMsg", "textEditInfo", "plainTextEditIv"})
        EXPECT_GT(child(dialog, name).palette().color(QPalette::Text).lightness(), 0x80) << name;
}

} // namespace
