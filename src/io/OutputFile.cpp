#include "io/OutputFile.h"

#include "lib/err/ErrorCodes.h"

#include <utility>

namespace tessaly::io {

namespace {

/// In bytes. Below it a full disk is told soon enough.
constexpr std::int64_t WorthReserving = 1 << 17;
/// Names are tried until one is free; in practice the first is.
constexpr int NameAttempts = 8;

} // namespace

OutputFile::~OutputFile()
{
    static_cast<void>(discard());
}

ResultCode OutputFile::open(std::shared_ptr<const FilePlace> place, const platform::Access& access,
                            std::int64_t expectedSize)
{
    m_place = std::move(place);
    HiddenName::removeForsaken(m_place->folder());
    platform::File file;
    ResultCode result = create(access, file);
    if (result.ok() && expectedSize >= WorthReserving)
        result = file.reserve(expectedSize);
    if (result.ok())
        return m_stream.open(std::move(file));
    m_hidden.remove(m_status);
    return result;
}

ResultCode OutputFile::create(const platform::Access& access, platform::File& file)
{
    if (m_kind == Kind::Hidden)
        return createHidden(access, file);
    const ResultCode created = m_place->folder().createNameless(HiddenName::fresh(), access, file);
    if (platform::isUnsupported(created))
        return createHidden(access, file);
    return created.ok() ? file.status(m_status) : created;
}

ResultCode OutputFile::createHidden(const platform::Access& access, platform::File& file)
{
    for (int attempt = 0; attempt < NameAttempts; ++attempt) {
        m_hidden.choose(m_place);
        ResultCode result = m_place->folder().createNew(m_hidden.name(), access, file);
        if (result.ok())
            result = file.status(m_status);
        if (!result.ok()) {
            static_cast<void>(m_place->folder().remove(m_hidden.name()));
            return result;
        }
        // Before the lock somebody may have taken the file for a forsaken one.
        const bool locked = !platform::isLocked(file.tryLock(platform::Lock::Exclusive));
        if (locked && m_hidden.status().sameFile(m_status))
            return {};
        m_hidden.remove(m_status);
    }
    return err::library(err::OpenFileFailed);
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
    m_hidden.remove(m_state == State::Exchanged ? m_formerStatus : m_status);
    m_state = State::Settled;
    static_cast<void>(m_stream.close()); // the flush has told all that it could
    return {};
}

ResultCode OutputFile::verify()
{
    if (const ResultCode synced = m_place->folder().sync(); !synced.ok())
        return synced;
    if (m_place->names(m_status))
        return {};
    // On FAT a file's identity is the place of its name, and so not always the one from before.
    platform::FileStatus renamed;
    if (!m_stream.file().status(renamed).ok() || !m_place->names(renamed))
        return err::library(err::OutputNotFound);
    m_status = renamed;
    return {};
}

ResultCode OutputFile::publish(Existing existing)
{
    const platform::Folder& folder = m_place->folder();
    const ResultCode result = m_hidden.isSet() ? folder.renameToNew(m_hidden.name(), m_place->name())
                                               : folder.link(m_stream.file(), m_place->name());
    if (result.ok())
        m_state = State::Published;
    return platform::isOccupied(result) && existing == Existing::Replace ? replaceFormer(result) : result;
}

/// The former file is kept, and locked so that nobody takes it for a forsaken one, until the new one is safe.
ResultCode OutputFile::replaceFormer(const ResultCode& occupied)
{
    const platform::Folder& folder = m_place->folder();
    m_formerStatus = m_place->status();
    if (m_formerStatus.isLink || m_formerStatus.kind != platform::FileKind::Regular)
        return occupied; // not what the user agreed to give up
    if (m_formerStatus.sameFile(m_protected))
        return err::library(err::OutputMatchesInput);
    if (folder.openForReading(m_place->name(), m_former).ok())
        static_cast<void>(m_former.tryLock(platform::Lock::Shared));
    if (const ResultCode named = nameHidden(); !named.ok())
        return named;
    const ResultCode exchanged = folder.exchange(m_hidden.name(), m_place->name());
    if (platform::isUnsupported(exchanged)) {
        static_cast<void>(m_former.close()); // no file system need replace an open file
        const ResultCode renamed = folder.renameOver(m_hidden.name(), m_place->name());
        if (renamed.ok())
            m_state = State::Settled;
        return renamed;
    }
    if (exchanged.ok())
        m_state = State::Exchanged;
    // Another file may have come to stand there since it was looked at.
    return exchanged.ok() && !m_hidden.status().sameFile(m_formerStatus) ? occupied : exchanged;
}

/// Only a name can be exchanged.
ResultCode OutputFile::nameHidden()
{
    if (m_hidden.isSet())
        return {};
    static_cast<void>(m_stream.file().tryLock(platform::Lock::Exclusive));
    m_hidden.choose(m_place);
    return m_place->folder().link(m_stream.file(), m_hidden.name());
}

bool OutputFile::discard()
{
    withdraw();
    if (m_state != State::Exchanged) // else the former file stands there, and could not be given back
        m_hidden.remove(m_status);
    if (m_stream.file().isOpen()) // else it has been looked at before
        m_nameless = isNameless();
    static_cast<void>(m_stream.close());
    return m_state == State::Unnamed && m_nameless;
}

/// Takes the name back from a file that must not stand at the path. What others have put there, or where
/// they have moved the file, is theirs.
void OutputFile::withdraw()
{
    if (m_state == State::Unnamed || m_state == State::Settled)
        return;
    const platform::Folder& folder = m_place->folder();
    const bool isThere = m_place->status().sameFile(m_status);
    if (m_state == State::Published) {
        if (!isThere || m_place->remove().ok())
            m_state = State::Unnamed;
    } else {
        const ResultCode back = isThere ? folder.exchange(m_hidden.name(), m_place->name())
                                        : folder.renameToNew(m_hidden.name(), m_place->name());
        if (back.ok())
            m_state = State::Unnamed;
        else if (platform::isOccupied(back)) // somebody has replaced the former file themselves
            m_hidden.remove(m_formerStatus);
        if (!isThere)
            m_state = State::Unnamed;
    }
}

/// No name leads to the file, wherever it may have been moved.
bool OutputFile::isNameless() const
{
    platform::FileStatus now;
    return m_stream.file().status(now).ok() && now.hardLinks == 0;
}

void OutputFile::removeHiddenNames()
{
    HiddenName::removeAll();
}

} // namespace tessaly::io
