#pragma once

#include <cstdint>

namespace thisapp {

/// A chosen algorithm: the library that provides it and its id there; both 0 is no selection.
struct AlgSelection
{
    std::uint32_t library = 0;
    std::uint32_t algorithm = 0;

    constexpr bool isComplete() const { return library != 0 && algorithm != 0; }
    friend constexpr bool operator==(const AlgSelection&, const AlgSelection&) = default;
};

/// AES-256 of the built-in library.
inline constexpr AlgSelection DefaultAlgSelection{1, 252};

} // namespace thisapp
