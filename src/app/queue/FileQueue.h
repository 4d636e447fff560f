#pragma once

#include "app/queue/QueueEntry.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace thisapp {

/// The files that are processed in one go, and how far they are. Knows nothing of how they are processed.
class FileQueue
{
public:
    struct Count
    {
        std::size_t done = 0;
        std::size_t failed = 0;
        std::size_t skipped = 0;
    };
    struct Progress
    {
        std::int64_t processed = 0;
        std::int64_t total = 0;
    };

    /// Behind the others. A path that is in the list already is left out.
    void add(std::vector<QueueEntry> files);
    void remove(std::size_t index);
    void clear() { *this = {}; }

    std::span<const QueueEntry> entries() const { return m_entries; }
    std::size_t size() const { return m_entries.size(); }
    bool isEmpty() const { return m_entries.empty(); }
    /// Nothing has been tried yet.
    bool isFresh() const;

    /// A run begins, for all files or for those alone that no run before it has done.
    void begin(bool all);
    /// The next one that waits is now running; nothing when none does.
    std::optional<std::size_t> startNext();
    void setProcessed(std::size_t index, std::int64_t bytes) { m_entries[index].processed = bytes; }
    void end(std::size_t index, EntryState state, std::function<QString()> reason = {});
    void setDone(std::size_t index, std::filesystem::path output,
                 const tessaly::platform::FileStatus& written);
    /// More to say of one that has ended.
    void note(std::size_t index, std::function<QString()> text) { m_entries[index].reason = std::move(text); }
    /// Whatever waits or runs is skipped.
    void skipRest(const std::function<QString()>& reason);

    /// Of this run: how many there are, and which one of them is running, from 1.
    std::size_t runSize() const { return m_runSize; }
    std::size_t position() const { return m_position; }
    /// How the files of this run ended.
    Count count() const;
    /// Of this run, in bytes and one more for each file, so that empty ones count, too. What failed or was
    /// skipped counts no longer.
    Progress progress() const;
    std::int64_t totalSize() const;
    /// In bytes, of the files that this run has done.
    std::int64_t doneSize() const;

    /// One of the files, or what became of one: nothing of the list may be written over it.
    /// For what stands where that file's output shall go; its own former output doesn't count.
    bool owns(std::size_t index, const std::filesystem::path& output,
              const tessaly::platform::FileStatus& atOutput) const;

private:
    std::vector<QueueEntry> m_entries;
    std::vector<bool> m_inRun;
    std::size_t m_next = 0;
    std::size_t m_runSize = 0;
    std::size_t m_position = 0;
};

} // namespace thisapp
