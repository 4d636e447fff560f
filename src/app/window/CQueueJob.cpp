#include "app/window/CQueueJob.h"

#include "app/job/CFileJob.h"
#include "app/job/JobReport.h"
#include "app/queue/CQueueList.h"
#include "app/queue/QueueReport.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/window/CInputField.h"
#include "app/window/CJobFrame.h"
#include "app/window/JobDisplay.h"
#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/SettingsKeys.h"
#include "ui/disk/CDiskWork.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMessageBox>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace tessaly;
using namespace thisapp;

namespace {

constexpr std::size_t NamesInQuestion = 5;
constexpr int ShowEveryMs = 50;

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<int>(count));
}

bool isNamedEncrypted(const QueueEntry& entry, const NamingSettings& naming)
{
    return namingDirection(pathText(entry.path.filename()), naming) == NamingDirection::Decryption;
}

} // namespace

CQueueJob::CQueueJob(const Parts& parts)
    : m_parts(parts), m_run(m_parts.queue, m_parts.job, m_parts.disk), m_removal(m_parts.disk)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(ShowEveryMs);
    connect(&m_parts.disk, &CDiskWork::notifyAnswered, this, &CQueueJob::onUiLooked);
    connect(&m_parts.form, &CJobFrame::notifyInputChanged, this,
            [this] { m_look = {}; }); // the newest counts
    connect(&m_parts.form.queueList(), &CQueueList::notifyClear, this, &CQueueJob::clear);
    connect(&m_parts.form.queueList(), &CQueueList::notifyCurrent, this, &CQueueJob::onUiCurrent);
    connect(&m_parts.form.queueList(), &CQueueList::notifyRemove, this, &CQueueJob::onUiRemove);
    connect(&m_run, &CQueueRun::notifyNews, this, &CQueueJob::onUiNews);
    connect(&m_timer, &QTimer::timeout, this, &CQueueJob::onUiShow);
    connect(&m_run, &CQueueRun::notifyEnded, this, &CQueueJob::onUiEnded);
    connect(&m_removal, &CQueueRemoval::notifyEnded, this, &CQueueJob::onUiRemovalEnded);
}

void CQueueJob::take(const QStringList& files)
{
    if (files.isEmpty())
        return;
    if (isRunning() || m_parts.job.isRunning()) {
        m_parts.form.showMessage(Area::Progress, {MessageKind::Warning, [] {
                                                      return QCoreApplication::translate(
                                                          "JobRequest",
                                                          "Encryption/Decryption already running.");
                                                  }});
        return;
    }
    m_look = m_parts.disk.start<QueueLook>([files] { return lookAtFiles(files); });
    if (CDiskWork::waitBriefly(m_look))
        onUiLooked();
    else
        m_parts.form.showMessage(Area::Input,
                                 {MessageKind::Plain, [] { return tr("Looking at the files..."); }});
}

bool CQueueJob::settle()
{
    if (const auto look = m_look; look.valid() && m_parts.disk.wait(look))
        onUiLooked(); // unless the wait has brought it
    if (!m_look.valid())
        return true;
    m_look = {};
    m_parts.form.showMessage(Area::Input,
                             {MessageKind::Error, [] { return tr("The file system does not answer."); }});
    return false;
}

void CQueueJob::onUiLooked()
{
    if (!m_look.valid() || m_look.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return;
    QueueLook look = std::exchange(m_look, {}).get();
    m_leftOut = leftOutMessage(look);
    m_isNoneTaken = look.files.empty();
    m_parts.form.progressFrame().reset();
    m_parts.form.clearMessages();
    if (!look.files.empty()) {
        if (!m_parts.queue.isFresh())
            m_parts.queue.clear();
        m_parts.queue.add(std::move(look.files));
        m_redoAll = true;
    }
    if (m_parts.queue.size() == 1)
        useFields();
    else
        show();
    m_parts.form.showMessage(Area::Input, m_leftOut);
}

bool CQueueJob::showLeftOut()
{
    if (const Message message = std::exchange(m_leftOut, {}); !message.isEmpty())
        m_parts.form.showMessage(Area::Input, message);
    return !std::exchange(m_isNoneTaken, false) || isActive() || !m_parts.form.inputText().isEmpty();
}

void CQueueJob::useFields()
{
    const QString path = pathText(m_parts.queue.entries().front().path);
    m_parts.queue.clear();
    show();
    m_parts.input.set(path);
}

void CQueueJob::show()
{
    m_parts.form.queueList().refresh();
    m_parts.form.showQueue(isActive());
    if (isActive()) {
        m_parts.form.setInputText({});
        m_parts.form.setOutputText({});
        const NamingSettings naming = readNamingSettings(CAppSettings());
        m_parts.form.setDirection(std::ranges::all_of(m_parts.queue.entries(),
                                                      [&naming](const QueueEntry& entry) {
                                                          return isNamedEncrypted(entry, naming);
                                                      })
                                      ? NamingDirection::Decryption
                                      : NamingDirection::Encryption);
    }
    emit notifyChanged();
}

void CQueueJob::clear()
{
    if (isRunning())
        return;
    m_look = {};
    m_parts.queue.clear();
    m_parts.form.progressFrame().reset();
    m_parts.form.clearMessages();
    show();
}

/// The list has room for the beginning of a reason only.
void CQueueJob::onUiCurrent(int row)
{
    const QueueEntry& entry = m_parts.queue.entries()[static_cast<std::size_t>(row)];
    const MessageKind kind = entry.state == EntryState::Failed    ? MessageKind::Error
                             : entry.state == EntryState::Skipped ? MessageKind::Warning
                                                                  : MessageKind::Plain;
    if (entry.reason)
        m_parts.form.showMessage(Area::Input, {kind, entry.reason, pathText(entry.path)});
}

void CQueueJob::onUiRemove(const QList<int>& rows)
{
    for (const int row : rows)
        m_parts.queue.remove(static_cast<std::size_t>(row));
    if (m_parts.queue.size() == 1)
        useFields();
    else
        show();
}

bool CQueueJob::redoesAll(Operation operation) const
{
    const FileQueue::Count last = m_parts.queue.count();
    return m_redoAll || operation != m_operation || last.failed + last.skipped == 0;
}

QStringList CQueueJob::names(Operation operation) const
{
    QStringList names;
    for (const QueueEntry& entry : m_parts.queue.entries())
        if (redoesAll(operation) || entry.state != EntryState::Done)
            names += pathText(entry.path.filename());
    return names;
}

void CQueueJob::start(SEncryptData request, OnEncrypted onEncrypted)
{
    m_parts.queue.begin(redoesAll(request.operation));
    m_redoAll = false;
    m_operation = request.operation;
    if (onEncrypted == OnEncrypted::LeaveOut)
        leaveOutEncrypted();
    m_parts.form.queueList().refresh();
    m_parts.display.begin({}, m_parts.queue.progress().total);
    m_parts.display.showStarted();
    m_run.start(std::move(request));
    emit notifyChanged();
}

void CQueueJob::leaveOutEncrypted()
{
    const NamingSettings naming = readNamingSettings(CAppSettings());
    for (std::size_t i = 0; i < m_parts.queue.size(); ++i)
        if (m_parts.queue.entries()[i].state == EntryState::Waiting &&
            isNamedEncrypted(m_parts.queue.entries()[i], naming))
            m_parts.queue.end(i, EntryState::Skipped, [] { return tr("It seems to be encrypted already."); });
}

/// Small files come faster than anybody reads.
void CQueueJob::onUiNews()
{
    if (!m_timer.isActive())
        m_timer.start();
}

void CQueueJob::onUiShow()
{
    if (const auto current = m_run.current()) {
        m_parts.form.queueList().refreshStates(static_cast<int>(*current));
        m_parts.display.setName(
            tr("%1 of %2").arg(number(m_parts.queue.position()), number(m_parts.queue.runSize())) +
            QStringLiteral(" - ") + pathText(m_parts.queue.entries()[*current].path.filename()));
    }
    const auto [processed, total] = m_parts.queue.progress();
    const JobPhase phase = m_parts.job.progress().phase;
    // The disk's turn comes with every file, and is mostly too short to be read of.
    m_parts.display.setTotal(total);
    m_parts.display.showProgress(
        m_operation, {phase == JobPhase::Flushing ? JobPhase::Processing : phase, processed, total});
    emit notifyChanged();
}

void CQueueJob::onUiEnded()
{
    m_timer.stop();
    m_parts.form.queueList().refresh();
    const auto problem = std::ranges::find_if(m_parts.queue.entries(), [](const QueueEntry& entry) {
        return entry.state == EntryState::Failed || entry.state == EntryState::Skipped;
    });
    if (problem != m_parts.queue.entries().end())
        m_parts.form.queueList().show(static_cast<int>(problem - m_parts.queue.entries().begin()));
    m_parts.display.showQueueEnd(queueMessage(m_operation, m_parts.queue, m_run.isStopped()), m_parts.queue,
                                 m_run.isStopped());
    const CAppSettings settings;
    std::vector<CQueueRemoval::Candidate> encrypted = m_run.takeEncrypted();
    if (!encrypted.empty() && readSetting(settings, keys::DeleteSourceFileAfterEncryption))
        m_removal.start(std::move(encrypted),
                        [this](const auto& removable) { return confirmRemoval(removable); });
    emit notifyChanged();
}

bool CQueueJob::confirmRemoval(const std::vector<CQueueRemoval::Candidate>& removable)
{
    if (!readSetting(CAppSettings(), keys::ConfirmDeleteSourceFileAfterEncryption))
        return true;
    QStringList lines{tr("Are you sure you want to delete the input files after encryption?"), QString()};
    for (std::size_t i = 0; i < std::min(removable.size(), NamesInQuestion); ++i)
        lines += pathText(removable[i].ended.request.input);
    if (removable.size() > NamesInQuestion)
        lines += tr("and %Ln more", "", static_cast<int>(removable.size() - NamesInQuestion));
    QMessageBox box(QMessageBox::Question, tr("Deleting the input files"), lines.join(QLatin1Char('\n')),
                    QMessageBox::Yes | QMessageBox::No, m_parts.form.window());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void CQueueJob::onUiRemovalEnded()
{
    std::size_t removed = 0;
    for (const auto& [index, removal] : m_removal.results()) {
        removed += static_cast<std::size_t>(removal.removed);
        m_parts.queue.note(index, [removal = removal] { return removalText(removal); });
    }
    m_parts.form.queueList().refresh();
    if (!m_removal.results().empty())
        m_parts.form.showMessage(Area::Input, removalMessage(removed, m_removal.results().size() - removed));
    emit notifyChanged();
}

QString CQueueJob::title() const
{
    return tr("%Ln files", "", static_cast<int>(m_parts.queue.size()));
}
