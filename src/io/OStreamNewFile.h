#pragma once

#include "io/OStreamFile.h"
#include "lib/sync/Locker.h"

#include <string>

namespace tessaly::io {

/// The output of a job: a file that is created only when its first bytes are written, and only
/// where nothing stands yet. One thread, but for lastError.
class OStreamNewFile final : public OStreamBytes
{
public:
    OStreamNewFile(std::wstring path, platform::Access access);

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override;
    ResultCode lastError() const override;

    /// True from the moment when this object created the file.
    bool isCreated() const { return m_created.kind != platform::FileKind::Missing; }
    /// The file that was created, to tell it from one that took its place.
    platform::FileStatus created() const { return m_created; }

    /// Creates the file if nothing was written, and returns when it and its folder's entry have
    /// reached the disk.
    ResultCode finish();
    void close();

private:
    ResultCode create();

    std::wstring m_path;
    platform::Access m_access;
    OStreamFile<wchar_t> m_stream;
    platform::FileStatus m_created;
    mutable sync::Locker m_lock; ///< guards m_createError
    ResultCode m_createError;    ///< kept: once refused, the file is not tried again
};

} // namespace tessaly::io
