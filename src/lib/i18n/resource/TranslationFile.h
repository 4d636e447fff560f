#pragma once

#include "lib/err/ResultCode.h"
#include "lib/file/IStreamUtf8File.h"

#include <cstdint>
#include <string>

namespace tessaly::i18n {

/// How the reading of a translation list or resource ended, and where it failed.
struct LoadResult
{
    ResultCode code;
    std::wstring file;
    std::int64_t line = 0; ///< 0 when the failure is of no line

    bool ok() const { return code.ok(); }
};

namespace internal {

/// Many times what a real file needs, and little enough that the worst one, made of nothing but tiny
/// entries, stays a moderate amount of memory and time.
inline constexpr io::SFileOptions ListLimits = {256u << 10};
inline constexpr io::SFileOptions ResourceLimits = {4u << 20};

} // namespace internal

} // namespace tessaly::i18n
