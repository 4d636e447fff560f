#pragma once

#include "app/desktop/INotifier.h"
#include "app/desktop/ITaskbarProgress.h"
#include "app/i18n/Translators.h"
#include "app/widgets/CDropHint.h"
#include "app/widgets/CElidedLabel.h"
#include "app/widgets/CMessageLine.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/window/CJobFrame.h"
#include "app/window/CMainWindow.h"
#include "common/settings/CAppSettings.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/logger/FileLogging.h"
#include "support/TempFolder.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/password/CSetPasswordDialog.h"
#include "ui/style/CLinkLabel.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <map>

namespace test {

using namespace thisapp;
namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

template <class Widget>
Widget& child(QObject& parent, const QString& name = {})
{
    return *parent.findChild<Widget*>(name);
}

/// Gets the folders that the desktop is asked to open, for as long as it lives.
class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    UrlRecorder() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~UrlRecorder() override { QDesktopServices::unsetUrlHandler("file"); }

    QList<QUrl> urls;

public slots:
    void open(const QUrl& url) { urls += url; }
};

/// The main window with all that it works with, as start-up puts it together; the desktop is recorded.
class WindowHarness : private desktop::ITaskbarProgress, private desktop::INotifier
{
public:
    /// The least that Argon2 takes.
    static constexpr tessaly::crypto::Argon2Cost Cheap{1, 32, 4};

    explicit WindowHarness(InputLook look = lookAtInput, tessaly::crypto::Argon2Cost cost = Cheap,
                           std::chrono::milliseconds offerLifetime = CAlgorithmOffer::Lifetime)
        : translations(folder.wide("translations"), "Quillet"),
          translators(translations),
          logging(folder / "quillet.log"),
          options(
              {algorithms, translations, translators, logging,
               [this](bool contextMenu, bool sendTo) { shellUpdates.emplace_back(contextMenu, sendTo); }}),
          window(
              std::make_unique<CMainWindow>(WindowServices{encryptors, decryptors, algorithms, options, *this,
                                                           *this, std::move(look), cost, offerLifetime}))
    {
        window->show();
    }

    template <class Widget>
    Widget& find(const QString& name = {})
    {
        return child<Widget>(*window, name);
    }
    QLineEdit& input() { return find<QLineEdit>("lineEditInput"); }
    QLineEdit& output() { return find<QLineEdit>("lineEditOutput"); }
    QPushButton& button(const char* name) { return find<QPushButton>(name); }
    CProgressBarFrame& progress() { return find<CProgressBarFrame>(); }
    CJobFrame& form() { return find<CJobFrame>(); }
    CDropHint& hint() { return find<CDropHint>(); }

    std::string text(const char* line) { return find<CMessageLine>(line).text().toStdString(); }
    std::string result() { return text("resultMessage"); }
    CLinkLabel& link(const char* line) { return child<CLinkLabel>(find<CMessageLine>(line)); }

    void select(std::uint32_t algorithm) { ASSERT_TRUE(form().algFrame().setSelection({1, algorithm})); }
    std::string algorithm() { return algorithms.displayName(form().algFrame().selection()).toStdString(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.get(), key, modifiers);
    }
    /// Empties the fields.
    void clear() { press(Qt::Key_F8, Qt::ControlModifier); }

    QString path(const char* name) const { return QString::fromStdString(folder / name); }
    std::string read(const char* name) const { return readFile(folder / name); }
    bool exists(const char* name) const { return fs::exists(folder / name); }
    /// A file of this many bytes that no two chunks of are alike.
    void writeInput(const char* name, std::size_t size = 10) const
    {
        std::string content(size, '\0');
        unsigned state = 1;
        for (char& byte : content)
            byte = char((state = state * 1103515245U + 12345U) >> 24);
        folder.write(name, content);
    }
    /// Changes the last byte.
    void damage(const char* name) const
    {
        std::string content = read(name);
        content.back() ^= 1;
        folder.write(name, content);
    }

    /// Once a modal dialog of the type is open, does this with it.
    template <class Dialog>
    void onDialog(std::function<void(Dialog&)> action)
    {
        auto* timer = new QTimer(window.get());
        QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                timer->deleteLater();
                action(*dialog);
            }
        });
        timer->start(5);
    }
    /// Types the password into every field of the dialog to come and accepts it.
    void answerPassword(const QString& password)
    {
        onDialog<CSetPasswordDialog>([password](CSetPasswordDialog& dialog) {
            for (const char* name : {"lineEditPassword", "lineEditConfirmPassword"})
                QTest::keyClicks(&child<QLineEdit>(dialog, name), password);
            child<QPushButton>(dialog, "buttonOk").click();
        });
    }

    /// Runs the event loop until it is so.
    static bool waitFor(const std::function<bool()>& condition)
    {
        return QTest::qWaitFor(condition, 240'000); // on a machine with much else to do
    }
    bool isRunning() { return !button("buttonEncrypt").isEnabled(); }
    /// What the job has come to.
    std::string waitForEnd()
    {
        EXPECT_TRUE(waitFor([this] { return !isRunning(); }));
        return result();
    }

    std::vector<std::pair<bool, bool>> shellUpdates; ///< context menu, "send to"
    std::vector<int> taskbarValues;
    bool isTaskbarShown = false;
    QStringList notifications; ///< "summary|body", and " >" where one opens a folder
    TempFolder folder;
    CCryptoAlgProvider algorithms;
    tessaly::i18n::TranslationManager translations;
    Translators translators;
    tessaly::logger::FileLogging logging;
    OptionsHandler options;
    tessaly::cryptopp::CEncryptorFactory encryptors;
    tessaly::cryptopp::CDecryptorFactory decryptors;
    std::unique_ptr<CMainWindow> window;

private:
    void show() override { isTaskbarShown = true; }
    void hide() override { isTaskbarShown = false; }
    void setValue(int percent) override { taskbarValues.push_back(percent); }
    void notify(const QString& summary, const QString& body, const desktop::NotifierAction& action) override
    {
        notifications += summary + '|' + body + (action.run ? " >" : "");
    }
};

/// A window in a profile of its own, and what a user does with it.
class WindowTest : public ::testing::Test, public WindowHarness
{
protected:
    static constexpr std::uint32_t SlowAlgorithm = 601; ///< DES_EDE3, the slowest of all

    using WindowHarness::WindowHarness;
    void SetUp() override { set({}); }

    /// The settings that differ from their defaults.
    static void set(const std::map<QString, QVariant>& values)
    {
        CAppSettings settings;
        settings.clear();
        settings.setValue("UseConfirmPassword", false);
        for (const auto& [key, value] : values)
            settings.setValue(key, value);
    }

    void fill(const char* in, const char* out)
    {
        input().setText(path(in));
        output().setText(path(out));
    }
    void start(Qt::Key key, const char* in, const char* out, const QString& password = "secret")
    {
        answerPassword(password);
        fill(in, out);
        press(key);
    }
    std::string run(Qt::Key key, const char* in, const char* out, const QString& password = "secret")
    {
        start(key, in, out, password);
        return waitForEnd();
    }

    /// Whether they were taken.
    static bool drop(QWidget& target, const QMimeData& data)
    {
        QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        if (enter.isAccepted()) {
            QDropEvent event({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&target, &event);
        }
        return enter.isAccepted();
    }
};

} // namespace test
