// Encrypts a file of SIZE MiB from the window and prints for how long the event loop was blocked at most,
// and how much memory the job took: window_latency [SIZE].
#include "window/WindowHarness.h"

#include "common/settings/CAppSettings.h"
#include "common/settings/Product.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <cstdio>
#include <filesystem>

namespace {

/// In MiB.
long residentMemory()
{
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * 4096 / (1 << 20);
}

} // namespace

int main(int argc, char** argv)
{
    const long size = argc > 1 ? std::atol(argv[1]) : 2048;
    const test::TempFolder home;
    ::setenv("XDG_CONFIG_HOME", home.path().c_str(), 1);
    const QApplication application(argc, argv);
    CAppSettings::setApplicationProductId(tessaly::QuilletProductId);
    CAppSettings().setValue(QStringLiteral("UseConfirmPassword"), false);

    test::WindowHarness w;
    w.folder.write("in", "");
    std::filesystem::resize_file(w.folder / "in", static_cast<std::uintmax_t>(size) << 20);
    w.window->processCommandLine({w.path("in")});
    w.answerPassword(QStringLiteral("secret"));

    QElapsedTimer clock;
    qint64 worst = 0;
    long memory = 0;
    QTimer heartbeat;
    QEventLoop loop; // and not the harness's waiting, which naps between two looks
    QObject::connect(&heartbeat, &QTimer::timeout, [&] {
        worst = std::max(worst, clock.restart());
        memory = std::max(memory, residentMemory());
        if (!w.isRunning())
            loop.quit();
    });
    QTest::keyClick(w.window.get(), Qt::Key_F5);
    const long before = residentMemory();
    clock.start();
    heartbeat.start(1);
    loop.exec();
    std::printf("%s. Longest gap of a 1 ms timer: %lld ms. Memory: %ld MiB before, %ld MiB at most.\n",
                w.result().c_str(), static_cast<long long>(worst), before, memory);
    return 0;
}
