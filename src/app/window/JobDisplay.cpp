#include "app/window/JobDisplay.h"

#include "app/desktop/INotifier.h"
#include "app/desktop/ITaskbarProgress.h"
#include "app/job/JobReport.h"
#include "app/job/ProgressText.h"
#include "app/widgets/CProgressBarFrame.h"
#include "app/window/CJobFrame.h"

#include <QFileInfo>
#include <QLocale>

namespace thisapp {

JobDisplay::JobDisplay(CJobFrame& form, desktop::ITaskbarProgress& taskbar, desktop::INotifier& notifier)
    : m_form(form), m_taskbar(taskbar), m_notifier(notifier)
{
}

void JobDisplay::begin(const QString& input, std::int64_t size)
{
    m_fileName = QFileInfo(input).fileName();
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

void JobDisplay::showEnd(const SEncryptData& ended, bool userIsHere)
{
    m_taskbar.hide();
    m_taskbar.setValue(0);
    reportOutcome(ended, m_form);
    m_form.progressFrame().reset();
    if (ended.outcome.done())
        m_form.progressFrame().setProgress(
            100, {MessageKind::Plain, [size = ended.outcome.input.status.size, time = m_clock.elapsed()] {
                      return summaryText(size, time);
                  }});
    m_progress.reset();
    if (!userIsHere)
        m_notifier.notify(m_form.resultText(), m_fileName);
}

QString JobDisplay::title() const
{
    return QStringLiteral("%1% - %2")
        .arg(QLocale().toString(static_cast<int>(m_progress.percent())), m_fileName);
}

} // namespace thisapp
