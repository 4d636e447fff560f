#pragma once

#include "crypto/catalogue/IAlgInfo.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace tessaly::crypto {

/// The built-in default: AES-256.
inline constexpr std::uint32_t DefaultAlgorithmId = 252;
/// The library that builds engines here; every other id names none.
inline constexpr std::uint32_t CryptoPPLibraryId = 1;
inline constexpr std::string_view CryptoPPLibraryName = "Crypto++";

struct CatalogueEntry
{
    std::uint32_t id;
    std::string_view name; ///< display name, zero-terminated
    AlgRecord record;
};

/// Every algorithm in id order. The ids are part of the file format and never change.
std::span<const CatalogueEntry> catalogue();

/// Null for an unknown id.
const CatalogueEntry* findAlgorithm(std::uint32_t id);

/// By display name, letter case ignored; null for an unknown name.
const CatalogueEntry* findAlgorithm(std::string_view name);

/// Empty for an unknown id.
std::string_view displayName(std::uint32_t id);

/// "CBC" or "Stream".
std::string_view modeName(CipherMode mode);

} // namespace tessaly::crypto
