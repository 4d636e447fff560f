#include "fuzz/support/MemoryFile.h"

#include "fuzz/support/Require.h"

#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {

MemoryFile::MemoryFile(std::string_view bytes) : m_handle(::memfd_create("fuzz", MFD_CLOEXEC))
{
    require(m_handle >= 0 &&
                ::write(m_handle, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
            "there is room for the file");
}

MemoryFile::~MemoryFile()
{
    ::close(m_handle);
}

} // namespace fuzz
