#include "app/queue/FileQueue.h"

#include <algorithm>
#include <set>
#include <utility>

namespace thisapp {

using tessaly::platform::FileStatus;

void FileQueue::add(std::vector<QueueEntry> files)
{
    std::set<std::filesystem::path> known;
    for (const QueueEntry& entry : m_entries)
        known.insert(entry.path);
    for (QueueEntry& file : files)
        if (known.insert(file.path).second)
            m_entries.push_back(std::move(file));
    m_inRun.resize(m_entries.size());
}

void FileQueue::remove(std::size_t index)
{
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    m_inRun.erase(m_inRun.begin() + static_cast<std::ptrdiff_t>(index));
}

bool FileQueue::isFresh() const
{
    return std::ranges::all_of(m_entries,
                               [](const QueueEntry& entry) { return entry.state == EntryState::Waiting; });
}

void FileQueue::begin(bool all)
{
    m_next = m_position = m_runSize = 0;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        QueueEntry& entry = m_entries[i];
        m_inRun[i] = all || entry.state != EntryState::Done;
        if (!m_inRun[i])
            continue;
        ++m_runSize;
        entry.state = EntryState::Waiting;
        entry.reason = {};
    }
}

std::optional<std::size_t> FileQueue::startNext()
{
    for (; m_next < m_entries.size(); ++m_next) {
        QueueEntry& entry = m_entries[m_next];
        if (!m_inRun[m_next])
            continue;
        ++m_position;
        if (entry.state != EntryState::Waiting)
            continue; // skipped beforehand
        entry.state = EntryState::Running;
        entry.processed = 0;
        return m_next++;
    }
    return std::nullopt;
}

void FileQueue::end(std::size_t index, EntryState state, std::function<QString()> reason)
{
    m_entries[index].state = state;
    m_entries[index].reason = std::move(reason);
}

void FileQueue::setDone(std::size_t index, std::filesystem::path output, const FileStatus& written)
{
    end(index, EntryState::Done);
    m_entries[index].output = std::move(output);
    m_entries[index].written = written;
}

void FileQueue::skipRest(const std::function<QString()>& reason)
{
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        if (m_entries[i].state == EntryState::Waiting || m_entries[i].state == EntryState::Running)
            end(i, EntryState::Skipped, reason);
}

FileQueue::Count FileQueue::count() const
{
    Count count;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const EntryState state = m_entries[i].state;
        count.done += m_inRun[i] && state == EntryState::Done;
        count.failed += m_inRun[i] && state == EntryState::Failed;
        count.skipped += m_inRun[i] && state == EntryState::Skipped;
    }
    return count;
}

FileQueue::Progress FileQueue::progress() const
{
    Progress progress;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const QueueEntry& entry = m_entries[i];
        if (!m_inRun[i] || entry.state == EntryState::Failed || entry.state == EntryState::Skipped)
            continue;
        const std::int64_t size = entry.file.size + 1;
        progress.total += size;
        if (entry.state == EntryState::Done)
            progress.processed += size;
        else if (entry.state == EntryState::Running)
            progress.processed += std::min(entry.processed, size);
    }
    return progress;
}

std::int64_t FileQueue::totalSize() const
{
    std::int64_t size = 0;
    for (const QueueEntry& entry : m_entries)
        size += entry.file.size;
    return size;
}

std::int64_t FileQueue::doneSize() const
{
    std::int64_t size = 0;
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        if (m_inRun[i] && m_entries[i].state == EntryState::Done)
            size += m_entries[i].file.size;
    return size;
}

/// By the path as well: another program may have put another file in its place.
bool FileQueue::owns(std::size_t index, const std::filesystem::path& output, const FileStatus& atOutput) const
{
    return std::ranges::any_of(m_entries, [&](const QueueEntry& entry) {
        const bool isOther = &entry != &m_entries[index];
        return entry.path == output || entry.file.sameFile(atOutput) ||
               (isOther && (entry.output == output || entry.written.sameFile(atOutput)));
    });
}

} // namespace thisapp
