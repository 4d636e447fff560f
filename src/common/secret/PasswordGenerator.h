#pragma once

#include "lib/secret/Secret.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace thisapp {

/// What a generated password is made of.
enum class PasswordKind {
    Words,      ///< English words with blanks between
    Characters, ///< letters, digits and punctuation that no two of look alike
};

struct SGeneratedPassword
{
    tessaly::SecretText text;
    /// Of the way it was made: log2 of the number of passwords that were equally likely.
    double bits = 0;
};

/// Fills bytes from a random generator; false when that failed.
using RandomSource = std::function<bool(std::size_t count, tessaly::SecretBytes& bytes)>;

/// The operating system's generator.
RandomSource systemRandom();

/// `count` words or characters, each chosen with equal probability. Nothing when the source fails.
std::optional<SGeneratedPassword> generatePassword(PasswordKind kind, int count,
                                                   const RandomSource& random = systemRandom());

/// A number below `bound`, each with equal probability; bound is 1 to 65536. Nothing when the source
/// fails.
std::optional<std::uint32_t> randomBelow(std::uint32_t bound, const RandomSource& random);

} // namespace thisapp
