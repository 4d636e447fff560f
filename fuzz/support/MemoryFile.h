#pragma once

#include <string>
#include <string_view>

namespace fuzz {

/// A file without a disk, for what reads by path.
class MemoryFile
{
public:
    explicit MemoryFile(std::string_view bytes);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::wstring path() const { return L"/proc/self/fd/" + std::to_wstring(m_handle); }

private:
    int m_handle;
};

} // namespace fuzz
