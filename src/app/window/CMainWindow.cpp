#include "app/window/CMainWindow.h"

#include "app/commandline/CommandLine.h"
#include "app/job/JobReport.h"
#include "app/job/JobRequest.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/window/CJobFrame.h"
#include "app/window/CRequestHost.h"
#include "app/window/Commands.h"
#include "app/window/FileDialogs.h"
#include "app/window/FolderOpener.h"
#include "app/window/InputRemovalOffer.h"
#include "common/errors/ErrorText.h"
#include "common/path/PathText.h"
#include "lib/logger/Log.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/ICryptoAlgProvider.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>

#include <utility>

using namespace tessaly;
using namespace thisapp;

namespace {

constexpr char LogSource[] = "mainwindow";

} // namespace

CMainWindow::CMainWindow(const WindowServices& services)
    : m_services(services),
      m_form(new CJobFrame),
      m_input(*m_form, m_lookups, services.look),
      m_dialogs(*this, services.algorithms, services.options, m_form->algFrame(), *this),
      m_actions(*this, [this](const Command& command) { run(command); }),
      m_display(*m_form, services.taskbar, services.notifier),
      m_job(services.encryptors, services.decryptors, m_dispatcher)
{
    setCentralWidget(m_form);
    m_form->setDropReceiver(this);
    m_form->algFrame().setProvider(m_services.algorithms);
    m_form->algFrame().setSelection(m_services.options.defaultAlgorithm().value_or(DefaultAlgSelection));
    QCoreApplication::instance()->installEventFilter(this);
    connectForm();
    connectJob();
    // Room for the progress and for messages of more than one line.
    resize(fontMetrics().averageCharWidth() * 90, sizeHint().height() + 5 * fontMetrics().height());
    refresh();
}

CMainWindow::~CMainWindow() = default;

void CMainWindow::connectForm()
{
    connect(&m_input, &CInputField::notifyAccepted, this, &CMainWindow::onUiInputAccepted);
    connect(&m_input, &CInputField::notifyFacts, this, &CMainWindow::onUiInputFacts);
    connect(m_form, &CJobFrame::notifyTextChanged, this, &CMainWindow::refresh);
    connect(m_form, &CJobFrame::notifyAddFile, this, &CMainWindow::onUiAddFileItem);
    connect(m_form, &CJobFrame::notifyBrowseOutput, this, &CMainWindow::onUiBrowseOutput);
    connect(m_form, &CJobFrame::notifyEncrypt, this, &CMainWindow::onUiEncryptItem);
    connect(m_form, &CJobFrame::notifyDecrypt, this, &CMainWindow::onUiDecryptItem);
    connect(m_form, &CJobFrame::notifyStop, this, &CMainWindow::onUiStopItem);
}

void CMainWindow::connectJob()
{
    // Emitted on the worker thread, so these are delivered through the event loop.
    connect(&m_dispatcher, &CMsgDispatcher::notifyEncryptStarted, this, &CMainWindow::onUiEncryptStarted);
    connect(&m_dispatcher, &CMsgDispatcher::notifyEncryptProgress, this,
            &CMainWindow::onUiEncryptProgressChanged);
    connect(&m_dispatcher, &CMsgDispatcher::notifyEncryptFinished, this, &CMainWindow::onUiEncryptFinished);
    connect(&m_dispatcher, &CMsgDispatcher::notifyInputRemovalFinished, this,
            &CMainWindow::onUiInputRemovalFinished);
}

void CMainWindow::processCommandLine(const QStringList& arguments)
{
    logger::log(logger::Information, LogSource)
        << "Try to process command line: " << textPath(quotedArguments(arguments)).native();
    const CommandLine line = parseCommandLine(arguments, systemSlashRule(), [this](const QString& path) {
        const auto facts =
            m_lookups.start<InputFacts>([look = m_services.look, path] { return look(path, {}); });
        return m_lookups.wait(facts) && facts.get().isUsable() && facts.get().path == path;
    });
    if (line.input)
        m_input.set(QDir::toNativeSeparators(*line.input));
    if (line.output)
        m_form->setOutputText(*line.output);
    m_form->algFrame().setSelection(namedSelection(line)); // none of them changes nothing
    if (line.start)
        requestJob(line.operation);
}

void CMainWindow::filesDropped(int widgetId, const QList<QUrl>& urls)
{
    if (m_job.isRunning())
        return;
    const DroppedFile drop = firstDroppedFile(urls);
    const bool onOutput = widgetId == DropOnOutput;
    if (drop.path.isEmpty() || onOutput)
        m_form->showMessage(onOutput ? Area::Output : Area::Input, dropMessage(drop));
    if (drop.path.isEmpty())
        return;
    if (onOutput) {
        m_form->setOutputText(drop.path);
    } else {
        m_drop = drop;
        m_input.set(drop.path);
    }
}

void CMainWindow::appOptionsChanged(const SAppOptions& options)
{
    m_services.options.apply(
        options, [this](const AlgSelection& selection) { m_form->algFrame().setSelection(selection); });
    refresh();
}

void CMainWindow::onUiEncryptItem()
{
    requestJob(Operation::Encrypt);
}

void CMainWindow::onUiDecryptItem()
{
    requestJob(Operation::Decrypt);
}

void CMainWindow::requestJob(Operation operation)
{
    resetMessages();
    m_input.settle(); // for the proposal
    CRequestHost host(*this, *m_form, m_input, m_lookups, m_job, m_services.algorithms);
    JobRequest request(operation, host, *m_form);
    std::optional<SEncryptData> job = request.run();
    if (!job)
        return;

    const QString input = pathText(job->request.input);
    const ResultCode started = m_job.start(std::move(*job));
    if (started.ok()) {
        m_display.begin(input, request.inputSize());
    } else {
        m_form->showMessage(Area::Result, {MessageKind::Error, [operation, started] {
                                               return translated(operationTexts(operation).startFailed) +
                                                      ' ' + errorText(started);
                                           }});
    }
    refresh();
}

void CMainWindow::onUiStopItem()
{
    m_display.resetProgress();
    m_job.stop();
    refresh();
}

void CMainWindow::onUiEncryptStarted()
{
    m_display.showStarted();
    setTitle();
}

void CMainWindow::onUiEncryptProgressChanged()
{
    m_display.showProgress(m_job.data().operation, m_job.progress());
    setTitle();
}

void CMainWindow::onUiEncryptFinished()
{
    m_job.finish();
    refresh();
    const SEncryptData ended = m_job.data();
    m_display.showEnd(ended, QApplication::activeWindow() != nullptr);
    m_job.clear();
    if (!isInputRemovalWanted(*this, ended, m_lookups, *m_form))
        return;
    if (const ResultCode started = m_job.startInputRemoval(); !started.ok())
        reportInputRemoval({{}, started}, ended, *m_form);
    refresh();
}

void CMainWindow::onUiInputRemovalFinished()
{
    m_job.finish();
    reportInputRemoval(m_job.inputRemoval(), m_job.data(), *m_form);
    refresh();
}

void CMainWindow::onUiAddFileItem()
{
    const QString chosen = askFileToOpen(this, tr("Add file to encrypt/decrypt"), m_form->inputText());
    if (chosen.isEmpty())
        return;
    m_input.set(QDir::toNativeSeparators(chosen));
}

void CMainWindow::onUiBrowseOutput()
{
    const QString near = m_form->outputText().isEmpty() ? m_form->inputText() : m_form->outputText();
    const QString chosen = askFileToSave(this, tr("Define output file"), near);
    if (!chosen.isEmpty())
        m_form->setOutputText(QDir::toNativeSeparators(chosen));
}

void CMainWindow::onUiInputAccepted()
{
    resetMessages();
}

void CMainWindow::onUiInputFacts()
{
    const InputFacts& facts = m_input.facts();
    if (const auto drop = std::exchange(m_drop, {}))
        m_form->showMessage(Area::Input, dropMessage(*drop, facts.check));
    if (facts.isUsable())
        m_form->showFile(facts.path, facts.size);
    else
        m_form->showNoFile();
    refresh();
}

void CMainWindow::onUiClearItem()
{
    m_form->setInputText({});
    m_form->setOutputText({});
    resetMessages();
    refresh();
}

/// What was said of the last job says nothing of the next one.
void CMainWindow::resetMessages()
{
    if (m_job.isRunning())
        return;
    m_form->progressFrame().reset();
    m_form->clearMessages();
}

void CMainWindow::openFolderOf(const QString& text)
{
    const auto folder = m_lookups.start<QUrl>([text] { return folderOf(text); });
    if (m_lookups.wait(folder))
        openFolder(folder.get());
}

void CMainWindow::onUiOpenInputFolderItem()
{
    openFolderOf(m_form->inputText());
}

void CMainWindow::onUiOpenOutputFolderItem()
{
    openFolderOf(m_form->outputText());
}

void CMainWindow::onUiQuitItem()
{
    close();
}

void CMainWindow::run(const Command& command)
{
    if (const auto* slot = std::get_if<void (CMainWindow::*)()>(&command.slot))
        (this->**slot)();
    else if (const auto* dialogSlot = std::get_if<void (DialogCommands::*)()>(&command.slot))
        (m_dialogs.**dialogSlot)();
}

void CMainWindow::refresh()
{
    const bool running = m_job.isRunning();
    const bool stoppable = m_job.isStoppable();
    m_form->setRunning(running, stoppable);
    m_actions.setState(
        {!running, stoppable, !m_form->inputText().isEmpty(), !m_form->outputText().isEmpty()});
    setTitle();
}

void CMainWindow::setTitle()
{
    const QString program = QCoreApplication::applicationName();
    const QString file =
        m_job.isRunning() ? m_display.title() : QFileInfo(m_form->inputText().trimmed()).fileName();
    QString title = file.isEmpty() ? program : QStringLiteral("%1 - %2").arg(file, program);
    setWindowTitle(
        title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"))); // Qt's mark for "modified"
}

/// The commands' keys work wherever the focus is: a combo box, for one, would take them as a search.
bool CMainWindow::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || widget == nullptr || widget == this || widget->window() != this)
        return false;
    auto& keyEvent = static_cast<QKeyEvent&>(*event);
    if (commandFor(keyEvent.key(), keyEvent.modifiers()) == nullptr)
        return false;
    keyPressEvent(&keyEvent);
    return true;
}

/// Alt and the keys that the table doesn't name end here on purpose.
void CMainWindow::keyPressEvent(QKeyEvent* event)
{
    if (const Command* command = commandFor(event->key(), event->modifiers()))
        run(*command);
}

/// A running job doesn't hold the window up: whoever destroys it waits for the job.
void CMainWindow::closeEvent(QCloseEvent* event)
{
    logger::log(logger::Debug, LogSource) << "Finish ...";
    event->accept();
}

void CMainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_actions.retranslate();
        refresh();
    }
}
