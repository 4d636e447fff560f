#include "app/commandline/Arguments.h"
#include "app/desktop/Desktop.h"
#include "app/desktop/ShellIntegration.h"
#include "app/i18n/TranslationFolders.h"
#include "app/i18n/Translators.h"
#include "app/widgets/SymbolicIcon.h"
#include "app/window/CFirstPaint.h"
#include "app/window/CMainWindow.h"
#include "app/window/OptionsHandler.h"
#include "common/errors/ErrorText.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/Product.h"
#include "common/version/Version.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "io/OutputFile.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/logger/FileLogging.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"
#include "lib/platform/Process.h"
#include "ui/algorithms/CCryptoAlgProvider.h"
#include "ui/style/MaskedText.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>
#include <optional>
#include <span>
#include <string_view>

using namespace tessaly;
using namespace thisapp;

namespace {

/// How long the end of the program waits for a job that it has stopped.
constexpr unsigned PatienceMs = 2000;

constexpr char Usage[] = R"(Usage: quillet [FILE]...
       quillet [-encrypt | -decrypt] [-start] [-ifile FILE] [-ofile FILE] [-algorithm NAME] [FILE]...

  FILE             opens the window with this input file; more than one make a list
  -ifile FILE      the input file
  -ofile FILE      the output file; without it a name is proposed
  -algorithm NAME  the algorithm, such as "AES-256"
  -library NAME    the library of the algorithm; there is one, "Crypto++"
  -encrypt         the command that -start runs (the default)
  -decrypt         the other one
  -start           runs the command at once; the password is asked for as usual
  --help           prints this text
  --version        prints the version

Options may begin with "/" instead of "-", in either case of letters.
)";

/// The two options that need neither a window nor a display; true when one was given.
bool answerOnTerminal(std::span<char*> arguments)
{
    const auto has = [arguments](std::string_view word) { return std::ranges::count(arguments, word) > 0; };
    if (!has("--help") && !has("--version"))
        return false;
    desktop::useTerminal();
    if (has("--help"))
        std::fputs(Usage, stdout);
    else
        std::printf("%s %s\n", QuilletName, versionText());
    return true;
}

void prepareApplication()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setApplicationName(QString::fromLatin1(QuilletName));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    QCoreApplication::setOrganizationName(QString::fromLatin1(OrganisationName));
    QGuiApplication::setDesktopFileName(QString::fromLatin1(QuilletDesktopId));
    CAppSettings::setApplicationProductId(QuilletProductId);
}

void updateShell(bool contextMenu, bool sendTo)
{
    desktop::updateShellIntegration(QCoreApplication::applicationFilePath(), contextMenu, sendTo);
}

/// Everything from the application object to its end.
int runApplication(int& argc, char** argv)
{
    std::optional<desktop::LeanStart> leanStart(std::in_place);
    const QApplication application(argc, argv);
    maskTextOfSecretFields();
    // Ctrl-C in the terminal, a log-out or a request to terminate ends a job as closing the window does.
    // Outlives the window and the wait for its worker, so that a second one cannot cut that short.
    const platform::Interrupts interrupts([] {
        QMetaObject::invokeMethod(
            qApp,
            [] {
                QApplication::closeAllWindows();
                QApplication::quit();
            },
            Qt::QueuedConnection);
    });

    i18n::TranslationManager translations(translationFolders(QCoreApplication::applicationDirPath()),
                                          QuilletName);
    Translators translators(translations);
    logger::FileLogging logging(logger::FileLogging::defaultPath(),
                                [](ResultCode error) { return errorText(error).toStdString(); });
    const CCryptoAlgProvider algorithms;
    OptionsHandler options({algorithms, translations, translators, logging, updateShell});
    options.applyAtStart();

    const cryptopp::CEncryptorFactory encryptors;
    const cryptopp::CDecryptorFactory decryptors;
    desktop::Desktop desktop;
    CMainWindow window(
        {encryptors, decryptors, algorithms, options, desktop.taskbarProgress(), desktop.notifier()});

    // On Linux the application object has taken its own arguments out. Its list of the rest would lose bytes.
    const QStringList arguments = argumentTexts(platform::programArguments(argc, argv));
    new CFirstPaint(window, [&] {
        leanStart.reset();
        QApplication::setWindowIcon(applicationIcon());
        const SAppOptions stored = options.read();
        updateShell(stored.integrateToShellContextMenu, stored.addToSendMenu);
        window.processCommandLine(arguments); // last: it may open dialogs
    });
    window.show();
    const int exitCode = QApplication::exec();
    if (!window.endJob(PatienceMs)) {
        // The worker waits for a disk. What it has written has no name yet, and gets none.
        io::OutputFile::removeHiddenNames();
        platform::endProcess(exitCode);
    }
    return exitCode;
}

} // namespace

int main(int argc, char* argv[])
{
    if (answerOnTerminal({argv, static_cast<std::size_t>(argc)}))
        return 0;
    if (!desktop::isDisplayThere()) {
        std::fputs("quillet: no display; quillet-cli does the same without one\n", stderr);
        return 1;
    }
    platform::disableCoreDumps();
    platform::ignoreWriteSignals();
    // The last resort: neither memory nor a thread may be had. It needs neither itself.
    try {
        prepareApplication();
        return runApplication(argc, argv);
    } catch (const std::bad_alloc&) {
        std::fputs("quillet: out of memory\n", stderr);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "quillet: %s\n", exception.what());
    } catch (...) {
        std::fputs("quillet: unknown failure\n", stderr);
    }
    io::OutputFile::removeHiddenNames();
    platform::endProcess(1);
}
