#pragma once

#include "app/desktop/INotifier.h"
#include "app/desktop/ITaskbarProgress.h"
#include "app/i18n/Translators.h"
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
#include "ui/password/CSetPasswordDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QtTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace test {

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
class WindowHarness : private thisapp::desktop::ITaskbarProgress, private thisapp::desktop::INotifier
{
public:
    static constexpr int JobTimeoutMs = 240'000; ///< on a machine with much else to do

    /// The least that Argon2 takes.
    static constexpr tessaly::crypto::Argon2Cost Cheap{1, 32, 4};

    explicit WindowHarness(thisapp::InputLook look = thisapp::lookAtInput,
                           tessaly::crypto::Argon2Cost cost = Cheap,
                           std::chrono::milliseconds offerLifetime = CAlgorithmOffer::Lifetime)
        : translations(folder.wide("translations"), "Quillet"),
          translators(translations),
          logging(folder / "quillet.log"),
          options(
              {algorithms, translations, translators, logging,
               [this](bool contextMenu, bool sendTo) { shellUpdates.emplace_back(contextMenu, sendTo); }}),
          window(std::make_unique<CMainWindow>(thisapp::WindowServices{encryptors, decryptors, algorithms,
                                                                       options, *this, *this, std::move(look),
                                                                       cost, offerLifetime}))
    {
        window->show();
    }

    QLineEdit& input() { return *window->findChild<QLineEdit*>("lineEditInput"); }
    QLineEdit& output() { return *window->findChild<QLineEdit*>("lineEditOutput"); }
    QPushButton& button(const char* name) { return *window->findChild<QPushButton*>(name); }
    QToolButton& toolButton(const char* toolTip)
    {
        for (auto* button : form().findChildren<QToolButton*>())
            if (button->toolTip() == toolTip)
                return *button;
        qFatal("no button to %s", toolTip);
    }
    std::string text(const char* line)
    {
        return window->findChild<CMessageLine*>(line)->text().toStdString();
    }
    std::string detail(const char* line)
    {
        return window->findChild<CMessageLine*>(line)->detail().toStdString();
    }
    std::string result() { return text("resultMessage"); }
    thisapp::MessageKind kind(const char* line) { return window->findChild<CMessageLine*>(line)->kind(); }
    CProgressBarFrame& progress() { return *window->findChild<CProgressBarFrame*>(); }
    CJobFrame& form() { return *window->findChild<CJobFrame*>(); }
    QString path(const char* name) const { return QString::fromStdString(folder / name); }

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
                QTest::keyClicks(dialog.findChild<QLineEdit*>(name), password);
            QTest::mouseClick(dialog.findChild<QPushButton*>("buttonOk"), Qt::LeftButton);
        });
    }

    bool isRunning() { return !button("buttonEncrypt").isEnabled(); }
    /// Runs the event loop until no job runs any more.
    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return !isRunning(); }, JobTimeoutMs);
    }

    /// A file of this many bytes that no two chunks of are alike.
    void writeInput(const char* name, std::size_t size) const
    {
        std::string content(size, '\0');
        unsigned state = 1;
        std::ranges::generate(content,
                              [&state] { return char((state = state * 1103515245U + 12345U) >> 24); });
        folder.write(name, content);
    }

    std::vector<std::pair<bool, bool>> shellUpdates; ///< context menu, "send to"
    std::vector<int> taskbarValues;
    bool isTaskbarShown = false;
    QStringList notifications; ///< "summary|body", and " >" where one opens a folder
    test::TempFolder folder;
    thisapp::CCryptoAlgProvider algorithms;
    tessaly::i18n::TranslationManager translations;
    thisapp::Translators translators;
    tessaly::logger::FileLogging logging;
    thisapp::OptionsHandler options;
    tessaly::cryptopp::CEncryptorFactory encryptors;
    tessaly::cryptopp::CDecryptorFactory decryptors;
    std::unique_ptr<CMainWindow> window;

private:
    void show() override { isTaskbarShown = true; }
    void hide() override { isTaskbarShown = false; }
    void setValue(int percent) override { taskbarValues.push_back(percent); }
    void notify(const QString& summary, const QString& body,
                const thisapp::desktop::NotifierAction& action) override
    {
        notifications += summary + '|' + body + (action.run ? " >" : "");
    }
};

/// A window in a profile of its own, and what a user does with it.
class WindowTest : public ::testing::Test
{
protected:
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

    void press(Qt::Key key, const QString& input, const QString& output)
    {
        w.input().setText(input);
        w.output().setText(output);
        QTest::keyClick(w.window.get(), key);
    }
    void run(Qt::Key key, const QString& input, const QString& output, const QString& password = "secret")
    {
        w.answerPassword(password);
        press(key, input, output);
    }
    void encrypt() { run(Qt::Key_F5, w.path("in"), w.path("out")); }
    const test::TempFolder& folder() const { return w.folder; }

    WindowHarness w;
};

} // namespace test
