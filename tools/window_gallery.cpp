// Saves a picture of the main window in each of its states: window_gallery FOLDER [dark] [narrow | small].
// QT_SCALE_FACTOR=2 doubles the scale, GALLERY_LANGUAGE=de-DE takes another language.
#include "GalleryLanguage.h"
#include "window/WindowHarness.h"

#include "common/settings/CAppSettings.h"
#include "common/settings/Product.h"
#include "ui/algorithms/CSelectAlgFrame.h"

#include <QDir>

#include <filesystem>
#include <fstream>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xf0));
    for (const auto role : {QPalette::ButtonText, QPalette::Text, QPalette::WindowText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}

void run(test::WindowHarness& w, Qt::Key key, const char* password)
{
    w.answerPassword(password);
    QTest::keyClick(w.window.get(), key);
}

/// A list of files: waiting, at work, done and failed.
void saveQueue(test::WindowHarness& w, const std::function<void(const char*)>& save)
{
    QStringList files;
    for (const char* name : {"Accounts 2025.ods", "Accounts 2026.ods",
                             "Contract with a very long name, signed by both "
                             "sides and translated, final version.pdf",
                             "holiday.mp4", "notes.txt", "photo-001.jpg", "photo-002.jpg", "photo-003.jpg",
                             "scan.tiff", "thesis.tex", "todo.txt"}) {
        w.writeInput(name, 40'000 + 1000 * std::string_view(name).size());
        files += w.path(name);
    }
    std::filesystem::resize_file(w.folder / "holiday.mp4", 300 << 20);
    w.folder.write("scan.tiff.enc", "former");
    std::filesystem::create_directory(w.folder / "folder");
    w.window->processCommandLine(files + QStringList(w.path("folder")));
    save("list");
    run(w, Qt::Key_F5, "secret");
    (void)QTest::qWaitFor([&w] { return w.progress().percent() > 35; }, 60'000);
    save("list_running");
    (void)w.waitForEnd();
    save("list_done");
    QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
    for (QString& file : files)
        file += ".enc";
    w.window->processCommandLine(files);
    run(w, Qt::Key_F6, "secret");
    (void)w.waitForEnd();
    save("list_failed");
    QTest::keyClick(w.window.get(), Qt::Key_F8, Qt::ControlModifier);
}

void saveAll(test::WindowHarness& w, const std::function<void(const char*)>& save)
{
    save("idle");

    const char* name = "Quarterly report with a rather long name 2026-11.pdf";
    w.folder.write(name, "");
    std::filesystem::resize_file(w.folder / name, 200 << 20);
    w.form().algFrame().setSelection({1, 452});
    w.window->processCommandLine({w.path(name)});
    save("ready");

    run(w, Qt::Key_F5, "secret");
    (void)QTest::qWaitFor([&w] { return w.progress().percent() > 35; }, 60'000);
    save("running");
    QTest::keyClick(w.window.get(), Qt::Key_F8);
    (void)w.waitForEnd();
    save("cancelled");

    run(w, Qt::Key_F5, "secret");
    (void)w.waitForEnd();
    save("success");
    w.window->processCommandLine({w.path((std::string(name) + ".enc").c_str())});
    run(w, Qt::Key_F6, "wrong");
    (void)w.waitForEnd();
    save("wrong_password");
    w.form().algFrame().setSelection({1, 252});
    run(w, Qt::Key_F6, "secret");
    (void)w.waitForEnd();
    save("offer");
    saveQueue(w, save);

    CAppSettings().setValue(QStringLiteral("SealFiles"), true);
    const std::string sealedName = "sealed.enc";
    w.window->processCommandLine({"-ifile", w.path(name), "-ofile", w.path(sealedName.c_str())});
    run(w, Qt::Key_F5, "secret");
    (void)QTest::qWaitFor([&w] { return !w.progress().message().isEmpty(); });
    save("making_key");
    (void)w.waitForEnd();
    save("sealed");
    std::fstream(w.folder / sealedName, std::ios::in | std::ios::out | std::ios::binary).seekp(100 << 20)
        << "changed";
    w.window->processCommandLine({"-ifile", w.path(sealedName.c_str()), "-ofile", w.path("opened")});
    run(w, Qt::Key_F6, "secret");
    (void)w.waitForEnd();
    save("damaged");
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const test::TempFolder home;
    ::setenv("XDG_CONFIG_HOME", home.path().c_str(), 1);
    const QApplication application(argc, argv);
    const GalleryLanguage language;
    QApplication::setStyle(QStringLiteral("fusion"));
    QCoreApplication::setApplicationName(tessaly::QuilletName);
    CAppSettings::setApplicationProductId(tessaly::QuilletProductId);
    CAppSettings().setValue(QStringLiteral("UseConfirmPassword"), false);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(1, QStringLiteral(".")));
    folder.mkpath(QStringLiteral("."));
    if (arguments.contains(QStringLiteral("dark")))
        QApplication::setPalette(darkPalette());

    test::WindowHarness harness(thisapp::lookAtInput, {});
    if (arguments.contains(QStringLiteral("narrow")))
        harness.window->resize(480, harness.window->height());
    if (arguments.contains(QStringLiteral("small")))
        harness.window->resize(480, 400);
    saveAll(harness, [&](const char* name) {
        QTest::qWait(150);
        harness.window->grab().save(
            folder.filePath(QString::fromLatin1(name) + arguments.mid(2).join('_').prepend('_') + ".png"));
    });
    return 0;
}
