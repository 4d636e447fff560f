#include "app/queue/CQueueRemoval.h"

#include "lib/err/ErrorCodes.h"
#include "ui/disk/CDiskWork.h"

#include <chrono>
#include <utility>

using namespace tessaly;
using namespace thisapp;

namespace {

template <class T>
bool isReady(const std::shared_future<T>& answer)
{
    return answer.valid() && answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

/// The jobs' own folders are closed long since, as there may be thousands. That the right files stand
/// there is looked up by what they were then.
SEncryptData reopened(SEncryptData ended)
{
    const auto open = [](crypto::JobFile& file, const std::filesystem::path& path) {
        const auto place = std::make_shared<io::FilePlace>();
        file.place = place->open(path).ok() ? place : nullptr;
    };
    open(ended.outcome.input, ended.request.input);
    open(ended.outcome.output, ended.request.output);
    return ended;
}

/// No exception leaves it: of each file it is known what has become of it.
InputRemoval removeOne(const SEncryptData& ended)
{
    try {
        return removeInput(reopened(ended));
    } catch (...) {
        return {.kept = {}, .error = err::library(err::RunnableThrew)};
    }
}

} // namespace

CQueueRemoval::CQueueRemoval(CDiskWork& disk) : m_disk(disk)
{
    connect(&m_disk, &CDiskWork::notifyAnswered, this, &CQueueRemoval::onUiAnswered);
}

void CQueueRemoval::start(std::vector<Candidate> candidates, Confirm confirm)
{
    m_candidates = std::move(candidates);
    m_confirm = std::move(confirm);
    m_results.clear();
    m_isRunning = true;
    m_look = m_disk.start<Reasons>([candidates = m_candidates] {
        Reasons reasons;
        for (const Candidate& candidate : candidates)
            reasons.push_back(reasonToKeepInput(reopened(candidate.ended)));
        return reasons;
    });
}

void CQueueRemoval::onUiAnswered()
{
    if (isReady(m_look))
        remove(std::exchange(m_look, {}).get());
    if (isReady(m_removal))
        end(std::exchange(m_removal, {}).get());
}

/// Without memory there is no answer, and nothing has been removed.
void CQueueRemoval::end(const std::vector<Result>& removed)
{
    if (removed.size() == m_removing.size())
        m_results.insert(m_results.end(), removed.begin(), removed.end());
    else
        for (const std::size_t index : m_removing)
            m_results.push_back({index, {.kept = {}, .error = err::library(err::RunnableThrew)}});
    m_isRunning = false;
    emit notifyEnded();
}

void CQueueRemoval::remove(Reasons reasons)
{
    reasons.resize(m_candidates.size(), KeepReason::NotEncrypted); // of no answer, for want of memory
    std::vector<Candidate> removable;
    for (std::size_t i = 0; i < reasons.size(); ++i)
        if (reasons[i])
            m_results.push_back({m_candidates[i].index, {reasons[i], {}}});
        else
            removable.push_back(std::move(m_candidates[i]));
    m_candidates.clear();
    if (removable.empty() || !m_confirm(removable))
        removable.clear();
    m_removing.clear();
    for (const Candidate& candidate : removable)
        m_removing.push_back(candidate.index);
    m_removal = m_disk.start<std::vector<Result>>([removable = std::move(removable)] {
        std::vector<Result> results;
        results.reserve(removable.size()); // before anything is removed
        for (const Candidate& candidate : removable)
            results.push_back({candidate.index, removeOne(candidate.ended)});
        return results;
    });
}
