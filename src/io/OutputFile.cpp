#include "io/OutputFile.h"

#include "lib/err/ErrorCodes.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <cstdlib>
#include <random>
#include <set>
#include <string>
#include <utility>

namespace tessaly::io {

namespace {

namespace fs = std::filesystem;

/// Begins every hidden name of ours, and nobody else's.
constexpr const char* HiddenPrefix = ".quillet-partial-";
/// In bytes. Below it a full disk is told soon enough.
constexpr std::int64_t WorthReserving = 1 << 17;
/// Names are tried until one is free; in practice the first is.
constexpr int NameAttempts = 8;

fs::path randomHiddenName()
{
    std::random_device random;
    std::string name = HiddenPrefix;
    for (int word = 0; word < 4; ++word)
        name += std::to_string(random());
    return name;
}

using HiddenPaths = sync::internal::SafeData<sync::Locker, std::set<fs::path>>;

/// Where outputs stand under a hidden name at this moment. Never destroyed: a worker may outlive main.
HiddenPaths& hiddenPaths()
{
    static auto* paths = [] {
        std::atexit(OutputFile::removeHiddenNames);
        return new HiddenPaths;
    }();
    return *paths;
}

/// A process that was killed may have left hidden files. Whoever still writes one holds its lock.
void removeForsaken(const platform::Folder& folder)
{
    for (const fs::path& name : folder.ownFiles(HiddenPrefix)) {
        platform::File file;
        if (folder.openForReading(name, file).ok() && file.tryLock(platform::Lock::Shared).ok())
            static_cast<void>(folder.remove(name));
    }
}

} // namespace

OutputFile::~OutputFile()
{
    static_cast<void>(discard());
}

ResultCode OutputFile::open(std::shared_ptr<const FilePlace> place, const platform::Access& access,
                            std::int64_t expectedSize)
{
    m_place = std::move(place);
    platform::File file;
    ResultCode result = create(access, file);
    if (result.ok() && expectedSize >= WorthReserving)
        result = file.reserve(expectedSize);
    if (result.ok())
        return m_stream.open(std::move(file));
    static_cast<void>(discard());
    return result;
}

ResultCode OutputFile::create(const platform::Access& access, platform::File& file)
{
    if (m_kind == Kind::Hidden)
        return createHidden(access, file);
    const ResultCode created = m_place->folder().createNameless(access, file);
    if (platform::isUnsupported(created))
        return createHidden(access, file);
    return created.ok() ? file.status(m_status) : created;
}

ResultCode OutputFile::createHidden(const platform::Access& access, platform::File& file)
{
    removeForsaken(m_place->folder());
    for (int attempt = 0; attempt < NameAttempts; ++attempt) {
        setHiddenName(randomHiddenName());
        ResultCode result = m_place->folder().createNew(m_hiddenName, access, file);
        if (result.ok())
            result = file.status(m_status);
        if (!result.ok())
            return result;
        // Before the lock somebody may have taken the file for a forsaken one.
        const bool locked = !platform::isLocked(file.tryLock(platform::Lock::Exclusive));
        if (locked && m_place->folder().status(m_hiddenName).sameFile(m_status))
            return {};
    }
    return err::library(err::OpenFileFailed);
}

void OutputFile::setHiddenName(fs::path name)
{
    fs::path path = name.empty() ? fs::path() : fs::absolute(m_place->path()).parent_path() / name;
    hiddenPaths().with([&](std::set<fs::path>& paths) {
        paths.erase(m_hiddenPath);
        if (!path.empty())
            paths.insert(path);
    });
    m_hiddenName = std::move(name);
    m_hiddenPath = std::move(path);
}

std::int64_t OutputFile::write(const void* buffer, std::int64_t count)
{
    m_begun = true;
    return m_stream.write(buffer, count);
}

ResultCode OutputFile::commit(Existing existing, const std::function<bool()>& isWanted)
{
    m_begun = true;
    ResultCode result = m_stream.flush();
    if (result.ok() && !isWanted())
        result = err::library(err::OperationStopped);
    if (result.ok())
        result = m_stream.file().status(m_status);
    // Looked at before as well: a file that takes the place of another cannot be withdrawn.
    if (result.ok() && !m_place->folder().isParentOf(m_place->path()))
        result = err::library(err::OutputNotFound);
    if (result.ok())
        result = publish(existing);
    if (result.ok())
        result = verify();
    if (!result.ok()) {
        static_cast<void>(discard());
        return result;
    }
    m_state = State::Settled;
    removeHidden();
    static_cast<void>(m_stream.close()); // the flush has told all that it could
    return {};
}

ResultCode OutputFile::verify() const
{
    if (const ResultCode synced = m_place->folder().sync(); !synced.ok())
        return synced;
    return m_place->names(m_status) ? ResultCode{} : err::library(err::OutputNotFound);
}

ResultCode OutputFile::publish(Existing existing)
{
    const ResultCode result = publishNew();
    return platform::isOccupied(result) && existing == Existing::Replace ? replaceFormer(result) : result;
}

ResultCode OutputFile::publishNew()
{
    const platform::Folder& folder = m_place->folder();
    const bool hidden = !m_hiddenName.empty();
    const ResultCode result = hidden ? folder.renameToNew(m_hiddenName, m_place->name())
                                     : folder.link(m_stream.file(), m_place->name());
    if (result.ok())
        m_state = State::Published;
    if (result.ok() && hidden)
        setHiddenName({});
    return result;
}

/// The former file is kept until the new one is safe.
ResultCode OutputFile::replaceFormer(const ResultCode& occupied)
{
    const platform::Folder& folder = m_place->folder();
    const platform::FileStatus former = m_place->status();
    if (former.isLink || former.kind != platform::FileKind::Regular)
        return occupied; // not what the user agreed to give up
    if (const ResultCode named = nameHidden(); !named.ok())
        return named;
    ResultCode result = folder.exchange(m_hiddenName, m_place->name());
    if (result.ok()) {
        m_state = State::Exchanged;
    } else if (platform::isUnsupported(result)) {
        result = folder.renameOver(m_hiddenName, m_place->name());
        if (result.ok()) {
            m_state = State::Settled;
            setHiddenName({});
        }
    }
    return result;
}

/// Only a name can be renamed over another.
ResultCode OutputFile::nameHidden()
{
    if (!m_hiddenName.empty())
        return {};
    const platform::Folder& folder = m_place->folder();
    removeForsaken(folder);
    static_cast<void>(m_stream.file().tryLock(platform::Lock::Exclusive));
    setHiddenName(randomHiddenName());
    return folder.link(m_stream.file(), m_hiddenName);
}

bool OutputFile::discard()
{
    const bool gone = withdraw();
    if (gone)
        removeHidden();
    static_cast<void>(m_stream.close());
    return gone;
}

/// Takes the name back from a file that must not stand at the path; another's there is left alone.
bool OutputFile::withdraw()
{
    const platform::Folder& folder = m_place->folder();
    switch (m_state) {
    case State::Unnamed:
        return true;
    case State::Settled:
        return false;
    case State::Exchanged:
        if (!folder.exchange(m_hiddenName, m_place->name()).ok())
            return false;
        break;
    case State::Published:
        if (m_place->status().sameFile(m_status) && !m_place->remove().ok())
            return false;
        break;
    }
    m_state = State::Unnamed;
    return true;
}

void OutputFile::removeHidden()
{
    if (m_hiddenName.empty())
        return;
    static_cast<void>(m_place->folder().remove(m_hiddenName));
    setHiddenName({});
}

void OutputFile::removeHiddenNames()
{
    const std::set<fs::path> paths =
        hiddenPaths().with([](std::set<fs::path>& inUse) { return std::exchange(inUse, {}); });
    for (const fs::path& path : paths)
        static_cast<void>(platform::removeFile(path));
}

} // namespace tessaly::io
