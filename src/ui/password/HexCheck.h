#pragma once

#include "lib/secret/Secret.h"

#include <QString>
#include <optional>

namespace thisapp {

/// Which of the two inputs a text is.
enum class HexInput { Iv, Key };

struct SHexCheck
{
    /// Nothing when the text isn't a whole number of hexadecimal bytes.
    std::optional<tessaly::SecretBytes> bytes;
    /// The message; empty when the text passed.
    QString problem;
    /// Whole bytes among the text's hexadecimal digits, whatever else it holds.
    std::uint32_t byteCount = 0;

    bool passed() const { return problem.isEmpty(); }
};

/// Checks a typed key or IV against the algorithm's length in bytes.
SHexCheck checkHex(HexInput input, const tessaly::SecretText& text, std::uint32_t expectedLength);

} // namespace thisapp
