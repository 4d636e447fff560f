// window_job encrypt|decrypt PASSWORD OUTPUT INPUT...: types the password of a job of the real window, which
// is served by failing_calls.cpp from the moment on in which the password is there. Tells what the window
// says at the end of all, one message a line. With QUILLET_STOP set, the Stop button is pressed once it can
// be.

#include "window/WindowHarness.h"

#include "app/queue/CQueueModel.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/Product.h"

#include <QAbstractEventDispatcher>
#include <QMessageBox>
#include <QTreeView>

#include <cstdio>
#include <cstdlib>

extern "C" void serveFaults() __attribute__((weak));
extern "C" void endFaults() __attribute__((weak));

namespace {

void answer(test::WindowHarness& w, const QString& password)
{
    w.onDialog<CSetPasswordDialog>([password](CSetPasswordDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>("lineEditPassword"), password);
        // Processes that are forked share the event that wakes a thread up: none may be under way.
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
        }
        if (serveFaults != nullptr)
            serveFaults();
        QTest::mouseClick(dialog.findChild<QPushButton*>("buttonOk"), Qt::LeftButton);
    });
}

/// Pressed as soon as there is something to stop, or never.
void runToTheEnd(test::WindowHarness& w)
{
    QPushButton& stop = w.button("buttonStop");
    do {
        if (stop.isEnabled() && std::getenv("QUILLET_STOP") != nullptr)
            stop.click();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    } while (w.isRunning());
}

void tell(test::WindowHarness& w)
{
    for (const char* line : {"resultMessage", "inputMessage", "outputMessage", "queueMessage"})
        std::printf("%s: %s\n", line, w.text(line).c_str());
    const QAbstractItemModel& list = *w.window->findChild<QTreeView*>("fileList")->model();
    for (int row = 0; row < list.rowCount(); ++row)
        std::printf("%s: %s\n", qPrintable(list.index(row, CQueueModel::Name).data().toString()),
                    qPrintable(list.index(row, CQueueModel::State).data().toString()));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(tessaly::QuilletName);
    CAppSettings::setApplicationProductId(tessaly::QuilletProductId);
    QLocale::setDefault(QLocale::c());
    QStringList words = QCoreApplication::arguments();
    test::WindowHarness w;
    w.window->setUpdatesEnabled(false); // painting takes most of the time, and nobody looks
    w.window->processCommandLine(words.mid(4));
    if (words.size() == 5)
        w.output().setText(words[3]);
    answer(w, words[2]);
    // Comes only when the settings cannot be read.
    w.onDialog<QMessageBox>([](QMessageBox& question) { question.reject(); });
    QTest::keyClick(w.window.get(), words[1] == "encrypt" ? Qt::Key_F5 : Qt::Key_F6);
    runToTheEnd(w);
    if (endFaults != nullptr)
        endFaults();
    tell(w);
    std::_Exit(0);
}
