#include "lib/platform/LogFile.h"

#include "lib/platform/Path.h"
#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/FileStatus.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"

namespace tessaly::platform {

namespace {

std::wstring logPath(const std::string& path)
{
    return systemPath(pathFromNative(path));
}

/// Whether a file has a last line without an end, as a full disk or a crash leaves one.
bool endsInLine(const std::wstring& path)
{
    const OwnHandle file(
        ::CreateFileW(path.c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    LARGE_INTEGER back = {};
    back.QuadPart = -1;
    char last = '\n';
    DWORD count = 0;
    return file && ::SetFilePointerEx(file.get(), back, nullptr, FILE_END) &&
           ::ReadFile(file.get(), &last, 1, &count, nullptr) && count == 1 && last != '\n';
}

} // namespace

std::unique_ptr<LogFile> LogFile::open(const std::string& path, Mode mode)
{
    PrivateAccess access;
    if (path.empty() || isMisread(pathFromNative(path)) || !access.attributes())
        return nullptr;
    const std::wstring name = logPath(path);
    if (mode == Mode::Truncate) {
        const OwnHandle emptied(
            ::CreateFileW(name.c_str(), GENERIC_WRITE, ShareAll, nullptr, TRUNCATE_EXISTING, 0, nullptr));
        if (!emptied && ::GetLastError() != ERROR_FILE_NOT_FOUND)
            return nullptr;
    }
    // With the right to append alone, the system puts each write to the end.
    OwnHandle opened(::CreateFileW(name.c_str(), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                                   ShareAll, access.attributes(), OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                                   nullptr));
    if (!opened)
        return nullptr;
    std::unique_ptr<LogFile> file(new LogFile(toNumber(opened.release())));
    file->m_isTorn = endsInLine(name);
    return file;
}

LogFile::~LogFile()
{
    ::CloseHandle(toHandle(m_handle));
}

bool LogFile::write(const std::string& line)
{
    const std::string separated = m_isTorn ? '\n' + line : std::string();
    std::string_view bytes = m_isTorn ? separated : line;
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(toHandle(m_handle), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                         nullptr) ||
            written == 0)
            return false;
        bytes.remove_prefix(written);
        m_isTorn = !bytes.empty();
    }
    return true;
}

bool LogFile::isStillAt(const std::string& path) const
{
    FileStatus opened;
    return handleStatus(toHandle(m_handle), opened).ok() && opened.sameFile(fileStatus(pathFromNative(path)));
}

} // namespace tessaly::platform
