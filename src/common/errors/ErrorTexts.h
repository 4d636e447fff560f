#pragma once

#include "lib/err/IErrMsg.h"

namespace thisapp {

/// The texts as they stand: the system's message for category 1, in the locale's language,
/// and our English sentences for category 5.
class ErrorTexts final : public tessaly::err::IErrMsg<char>
{
public:
    bool lookup(std::uint32_t category, std::uint32_t code, std::string& text) const override;
};

} // namespace thisapp
