#pragma once

#include "lib/err/IErrMsg.h"

#include <cstdint>
#include <string>

namespace thisapp {

/// The texts of the error codes, in UTF-8 and in the language of the user interface. For any thread.
class CErrMsg final : public tessaly::err::IErrMsg<char>
{
public:
    /// Knows the system's error numbers (category 1) and the program's own codes (category 5).
    bool lookup(std::uint32_t category, std::uint32_t code, std::string& text) const override;
};

} // namespace thisapp
