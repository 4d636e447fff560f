#include "app/window/CMainWindow.h"

#include "app/commandline/CommandLine.h"
#include "app/job/JobReport.h"
#include "app/job/JobRequest.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/window/CJobFrame.h"
#include "app/window/CRequestHost.h"
#include "app/window/CWindowPlace.h"
#include "app/window/Commands.h"
#include "app/window/InputRemovalOffer.h"
#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "lib/logger/Log.h"
#include "lib/platform/Path.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/ICryptoAlgProvider.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>

#include <utility>

using namespace tessaly;
using namespace thisapp;

namespace {

constexpr char LogSource[] = "mainwindow";

/// `file` may be empty.
QString titleFor(const QString& file)
{
    const QString program = QCoreApplication::applicationName();
    QString title = file.isEmpty() ? program : QStringLiteral("%1 - %2").arg(file, program);
    return title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")); // Qt's mark for "modified"
}

} // namespace

CMainWindow::CMainWindow(const WindowServices& services)
    : m_services(services),
      m_form(new CJobFrame(m_queue)),
      m_input(*m_form, m_disk, services.look),
      m_fields(*m_form, m_input, m_disk, [this](const QStringList& files) { m_queueJob.take(files); }),
      m_dialogs(*this, services.algorithms, services.options, *m_form, *this),
      m_actions(*this, [this](const Command& command) { run(command); }),
      m_display(*m_form, services.taskbar, services.notifier,
                [this](const QString& file) { m_fields.openFolderOf(file); }),
      m_offer(*m_form, services.offerLifetime),
      m_job(services.encryptors, services.decryptors, m_dispatcher),
      m_queueJob({m_queue, *m_form, m_input, m_disk, m_job, m_display})
{
    setCentralWidget(m_form);
    m_form->setDropReceiver(this);
    m_form->algFrame().setProvider(m_services.algorithms);
    m_form->algFrame().setSelection(m_services.options.defaultAlgorithm().value_or(DefaultAlgSelection));
    QCoreApplication::instance()->installEventFilter(this);
    connectForm();
    connectJob();
    new CWindowPlace(*this, sizeHint());
    refresh();
}

/// The form shows the list, which would go before it.
CMainWindow::~CMainWindow()
{
    delete takeCentralWidget();
}

void CMainWindow::connectForm()
{
    connect(&m_input, &CInputField::notifyAccepted, this, &CMainWindow::resetMessages);
    connect(&m_input, &CInputField::notifyFacts, this, &CMainWindow::onUiInputFacts);
    connect(&m_queueJob, &CQueueJob::notifyChanged, this, &CMainWindow::refresh);
    connect(&m_offer, &CAlgorithmOffer::notifyTaken, this, &CMainWindow::onUiOfferTaken);
    connect(m_form, &CJobFrame::notifyTextChanged, this, &CMainWindow::refresh);
    connect(m_form, &CJobFrame::notifyAddFile, this, [this] { m_fields.onUiAddFileItem(); });
    connect(m_form, &CJobFrame::notifyBrowseOutput, this, [this] { m_fields.onUiBrowseOutput(); });
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
        << "Try to process command line: " << platform::nativeText(textPath(quotedArguments(arguments)));
    const CommandLine line = parseCommandLine(arguments, systemSlashRule(),
                                              [this](const QString& path) { return m_input.isFile(path); });
    QStringList files = line.words;
    if (line.input)
        files.prepend(*line.input);
    if (!line.words.isEmpty())
        m_queueJob.take(files);
    else if (line.input)
        m_input.set(QDir::toNativeSeparators(*line.input));
    if (line.output && files.size() < 2) // a list has no such field
        m_form->setOutputText(*line.output);
    m_form->algFrame().setSelection(namedSelection(line)); // none of them changes nothing
    if (line.start)
        requestJob(line.operation);
}

void CMainWindow::filesDropped(int widgetId, const QList<QUrl>& urls)
{
    if (!isRunning())
        m_fields.takeDrop(widgetId, urls);
}

SAppliedOptions CMainWindow::appOptionsChanged(const SAppOptions& options)
{
    SAppliedOptions applied = m_services.options.apply(
        options, [this](const AlgSelection& selection) { m_form->algFrame().setSelection(selection); });
    refresh();
    return applied;
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
    m_offer.withdraw();
    resetMessages();
    if (!isRunning()) {
        if (!m_queueJob.settle())
            return;
        m_input.settle(); // for the proposal
        if (!m_queueJob.showLeftOut())
            return;
    }
    CRequestHost host(*this, *m_form, m_input, m_disk, isRunning(), m_job, m_services.algorithms);
    JobRequest request(operation, host, *m_form);
    std::optional<SEncryptData> job =
        m_queueJob.isActive() ? request.runForList(m_queueJob.names(operation)) : request.run();
    if (!job)
        return;

    job->request.cost = m_services.cost;
    if (m_queueJob.isActive())
        m_queueJob.start(std::move(*job), request.onEncrypted());
    else
        startJob(request, std::move(*job));
}

void CMainWindow::startJob(const JobRequest& request, SEncryptData job)
{
    m_offer.remember(job);
    const QString name = pathText(job.request.input.filename());
    const ResultCode started = m_job.start(std::move(job));
    if (started.ok()) {
        m_display.begin(name, request.inputSize());
    } else {
        m_offer.forget();
        reportFailedStart(m_job.data(), started, *m_form);
    }
    refresh();
}

void CMainWindow::onUiOfferTaken(const SEncryptData& offered)
{
    resetMessages();
    CRequestHost host(*this, *m_form, m_input, m_disk, isRunning(), m_job, m_services.algorithms);
    JobRequest request(offered.operation, host, *m_form);
    if (std::optional<SEncryptData> job = request.runAgain(offered))
        startJob(request, std::move(*job));
}

void CMainWindow::onUiStopItem()
{
    m_display.resetProgress();
    if (m_queueJob.isRunning())
        m_queueJob.stop();
    else
        m_job.stop();
    refresh();
}

void CMainWindow::onUiEncryptStarted()
{
    if (m_queueJob.isRunning()) {
        m_queueJob.showJobProgress();
        return;
    }
    m_display.showStarted();
    setTitle();
}

void CMainWindow::onUiEncryptProgressChanged()
{
    if (m_queueJob.isRunning()) {
        m_queueJob.showJobProgress();
        return;
    }
    const JobProgress progress = m_job.progress();
    m_offer.follow(progress.phase);
    m_display.showProgress(m_job.data().operation, progress);
    setTitle();
}

void CMainWindow::onUiEncryptFinished()
{
    if (m_queueJob.isRunning()) {
        m_queueJob.takeJobEnd();
        return;
    }
    m_job.finish();
    refresh();
    const SEncryptData ended = m_job.data();
    m_display.showEnd(ended);
    m_offer.make(ended);
    m_job.clear();
    if (!isInputRemovalWanted(*this, ended, m_disk, *m_form))
        return;
    if (const ResultCode started = m_job.startInputRemoval(ended); !started.ok())
        reportInputRemoval({{}, started}, ended, *m_form);
    refresh();
}

void CMainWindow::onUiInputRemovalFinished()
{
    m_job.finish();
    reportInputRemoval(m_job.inputRemoval(), m_job.data(), *m_form);
    refresh();
}

void CMainWindow::onUiInputFacts()
{
    m_fields.showFacts();
    if (!m_queueJob.isActive())
        m_form->setDirection(namingDirection(m_input.facts().path, readNamingSettings(CAppSettings())));
    refresh();
}

void CMainWindow::onUiClearItem()
{
    m_form->setInputText({});
    m_form->setOutputText({});
    if (!isRunning())
        m_queueJob.clear();
    resetMessages();
    refresh();
}

/// What was said of the last job says nothing of the next one.
void CMainWindow::resetMessages()
{
    if (isRunning())
        return;
    m_form->progressFrame().reset();
    m_form->clearMessages();
}

void CMainWindow::onUiQuitItem()
{
    close();
}

void CMainWindow::run(const Command& command)
{
    m_offer.withdraw();
    if (const auto* windowSlot = std::get_if<void (CMainWindow::*)()>(&command.slot.call))
        (this->**windowSlot)();
    else if (const auto* fieldSlot = std::get_if<void (FieldCommands::*)()>(&command.slot.call))
        (m_fields.**fieldSlot)();
    else if (const auto* dialogSlot = std::get_if<void (DialogCommands::*)()>(&command.slot.call))
        (m_dialogs.**dialogSlot)();
}

void CMainWindow::refresh()
{
    const bool running = isRunning();
    const bool stoppable = m_queueJob.isRunning() ? m_queueJob.isStoppable() : m_job.isStoppable();
    m_form->setRunning(running, stoppable);
    m_actions.setState(
        {!running, stoppable, !m_form->inputText().isEmpty(), !m_form->outputText().isEmpty()});
    setTitle();
}

void CMainWindow::setTitle()
{
    const bool isAtWork = m_queueJob.isActive() ? m_queueJob.isStoppable() : m_job.isRunning();
    setWindowTitle(titleFor(isAtWork                ? m_display.title()
                            : m_queueJob.isActive() ? m_queueJob.title()
                                                    : QFileInfo(m_form->inputText().trimmed()).fileName()));
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
    m_offer.forget();
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
