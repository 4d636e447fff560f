#include "app/window/JobDisplay.h"

#include "app/desktop/INotifier.h"
#include "app/desktop/ITaskbarProgress.h"
#include "app/job/JobReport.h"
#include "app/job/ProgressText.h"
#include "app/queue/FileQueue.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/window/CJobFrame.h"
#include "common/path/PathText.h"

#include <QApplication>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace thisapp {

JobDisplay::JobDisplay(CJobFrame& form, desktop::ITaskbarProgress& taskbar, desktop::INotifier& notifier,
                       std::function<void(const QString& file)> openFolder)
    : m_form(form), m_taskbar(taskbar), m_notifier(notifier), m_openFolder(std::move(openFolder))
{
}

void JobDisplay::begin(const QString& name, std::int64_t size)
{
    m_name = name;
    m_clock.start();
    m_progress.reset(size, 0);
}

void JobDisplay::showStarted()
{
    m_progress.reset(m_progress.total(), m_clock.elapsed());
    m_taskbar.show();
    m_taskbar.setValue(0);
    m_form.progressFrame().setProgress(0, {MessageKind::Plain, startText});
}

void JobDisplay::showProgress(Operation operation, const JobProgress& progress)
{
    m_progress.update(progress.processed, m_clock.elapsed());
    m_form.progressFrame().setProgress(
        m_progress.percent(), {MessageKind::Plain, [operation, phase = progress.phase, now = m_progress] {
                                   return progressText(operation, phase, now);
                               }});
    m_taskbar.setValue(static_cast<int>(m_progress.percent()));
}

void JobDisplay::showEnd(const SEncryptData& ended)
{
    hideProgress();
    const std::function<void()> openFolder = [this, file = pathText(ended.request.output)] {
        m_openFolder(file);
    };
    reportOutcome(ended, m_form, openFolder);
    if (ended.outcome.done())
        showSummary(ended.outcome.input.status.size);
    notify(pathText((ended.outcome.done() ? ended.request.output : ended.request.input).filename()),
           ended.outcome.done() ? openFolder : nullptr);
}

void JobDisplay::showQueueEnd(Message result, const FileQueue& queue, bool isStopped)
{
    hideProgress();
    const auto isDone = [](const QueueEntry& entry) { return entry.state == EntryState::Done; };
    const auto first = std::ranges::find_if(queue.entries(), isDone);
    if (first != queue.entries().end()) {
        result.link = openFolderText;
        result.follow = [this, file = pathText(first->output)] { m_openFolder(file); };
    }
    if (queue.count().done > 0 && !isStopped)
        showSummary(queue.doneSize());
    const QString folder = result.file;
    const std::function<void()> openFolder = result.follow;
    m_form.showMessage(Area::Result, std::move(result));
    notify(folder, openFolder);
}

void JobDisplay::hideProgress()
{
    m_taskbar.hide();
    m_taskbar.setValue(0);
    m_form.progressFrame().reset();
    m_progress.reset();
}

void JobDisplay::showSummary(std::int64_t bytes)
{
    m_form.progressFrame().setProgress(
        100, {MessageKind::Plain, [bytes, time = m_clock.elapsed()] { return summaryText(bytes, time); }});
}

void JobDisplay::notify(const QString& body, const std::function<void()>& openFolder)
{
    if (QApplication::activeWindow() == nullptr)
        m_notifier.notify(m_form.resultText(), body, {openFolderText(), openFolder});
}

QString JobDisplay::title() const
{
    return QStringLiteral("%1% - %2").arg(QLocale().toString(static_cast<int>(m_progress.percent())), m_name);
}

} // namespace thisapp
