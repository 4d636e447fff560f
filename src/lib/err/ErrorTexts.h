#pragma once

#include "lib/err/IErrMsg.h"

namespace tessaly::err {

/// The program's own sentence for a category 5 code, in English; null when it has none.
const char* errorText(std::uint32_t code);

/// The texts as they stand, untranslated: the system's message for category 1, ours for 5.
class ErrorTexts final : public IErrMsg<char>
{
public:
    bool lookup(std::uint32_t category, std::uint32_t code, std::string& text) const override;
};

} // namespace tessaly::err
