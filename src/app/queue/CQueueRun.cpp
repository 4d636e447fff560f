#include "app/queue/CQueueRun.h"

#include "app/job/CFileJob.h"
#include "app/job/FileRefusal.h"
#include "app/job/JobReport.h"
#include "common/errors/ErrorText.h"
#include "common/settings/CAppSettings.h"
#include "ui/disk/CDiskWork.h"

#include <chrono>
#include <utility>

using namespace tessaly;
using namespace thisapp;

CQueueRun::CQueueRun(FileQueue& queue, CFileJob& job, CDiskWork& disk)
    : m_queue(queue), m_job(job), m_disk(disk)
{
    connect(&m_disk, &CDiskWork::notifyAnswered, this, &CQueueRun::onUiLooked);
}

void CQueueRun::start(SEncryptData request)
{
    m_request = std::move(request);
    m_encrypted.clear();
    m_isRunning = true;
    m_isStopped = false;
    next();
}

void CQueueRun::stop()
{
    if (!m_isRunning || std::exchange(m_isStopped, true))
        return;
    m_request.request.wipeSecrets();
    m_job.stop();
    if (!m_job.isRunning())
        end(); // a disk that doesn't answer is no longer waited for
}

void CQueueRun::next()
{
    m_current = m_isStopped ? std::nullopt : m_queue.startNext();
    if (!m_current) {
        end();
        return;
    }
    emit notifyNews();
    m_look = m_disk.start<EntryLook>(
        [path = m_queue.entries()[*m_current].path, naming = readNamingSettings(CAppSettings())] {
            return lookAtEntry(path, naming);
        });
}

void CQueueRun::onUiLooked()
{
    if (!m_look.valid() || m_look.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return;
    const EntryLook look = std::exchange(m_look, {}).get();
    const auto isOwned = [] { return tr("The output belongs to another file of the list."); };
    if (auto refusal = inputRefusal(m_request.operation, look.facts))
        endWith(EntryState::Failed, refusal);
    else if (auto unusable = outputRefusal(look.facts, look.output))
        endWith(EntryState::Failed, unusable);
    else if (m_queue.owns(*m_current, look.output, look.atOutput))
        endWith(EntryState::Skipped, isOwned);
    else if (auto existing = existingRefusal(look.facts, m_request.rewriteOutput))
        endWith(EntryState::Skipped, existing);
    else
        startJob(look);
}

void CQueueRun::startJob(const EntryLook& look)
{
    SEncryptData request = m_request;
    request.request.input = m_queue.entries()[*m_current].path;
    request.request.output = look.output;
    if (look.facts.outputCheck == io::OutputCheck::Exists)
        request.request.existing = crypto::ExistingOutput::RemoveFirst;
    if (!m_job.prepare(request.operation, request.selection)) {
        endWith(EntryState::Failed,
                [text = operationTexts(request.operation).engineFailed] { return translated(text); });
        return;
    }
    if (const ResultCode started = m_job.start(std::move(request)); !started.ok())
        endWith(EntryState::Failed, [started] { return errorText(started); });
}

void CQueueRun::showJobProgress()
{
    if (!m_current)
        return;
    m_queue.setProcessed(*m_current, m_job.progress().processed);
    emit notifyNews();
}

void CQueueRun::takeJobEnd()
{
    if (!m_current)
        return;
    m_job.finish();
    m_job.clear(); // there may be thousands of files
    SEncryptData ended = m_job.data();
    if (ended.outcome.cancelled) {
        if (hasLostFormerOutput(ended))
            m_queue.end(*m_current, EntryState::Skipped,
                        [] { return tr("Stopped") + QStringLiteral(". ") + lostOutputText(); });
        end();
        return;
    }
    if (!ended.outcome.done()) {
        logFailure(ended);
        endWith(EntryState::Failed, [ended] { return failureText(ended); });
        return;
    }
    m_queue.setDone(*m_current, ended.request.output, ended.outcome.output.status);
    if (ended.operation == Operation::Encrypt)
        m_encrypted.push_back({*m_current, std::move(ended)});
    emit notifyNews();
    next();
}

void CQueueRun::endWith(EntryState state, std::function<QString()> reason)
{
    m_queue.end(*m_current, state, std::move(reason));
    emit notifyNews();
    next();
}

void CQueueRun::end()
{
    m_look = {};
    m_current.reset();
    m_request = {};
    m_queue.skipRest([] { return tr("Stopped"); });
    m_isRunning = false;
    emit notifyEnded();
}
