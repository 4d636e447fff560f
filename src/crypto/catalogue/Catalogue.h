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

/// What somebody who chooses an algorithm should know of it.
enum class AlgAdvice {
    None,
    /// Published for more than twenty years, examined in public and unbroken, blocks of 128 bits and
    /// keys of 256: AES (FIPS 197), two other finalists of its competition, Camellia (ISO/IEC 18033-3).
    Recommended,
    SharedKeyStream,  ///< stream ciphers: see docs/SECURITY.md
    ShortBlock,       ///< 64 bits: Sweet32 (Bhargavan and Leurent, 2016; CVE-2016-2183)
    TwoKeyTripleDes,  ///< disallowed since 2016 by NIST SP 800-131A
    TripleDes,        ///< disallowed since 2024 by NIST SP 800-131A Rev. 2
    ShortKey,         ///< Skipjack: 80 bits, disallowed by NIST SP 800-131A
    RelatedKeys,      ///< TEA: Kelsey, Schneier and Wagner, 1996 and 1997
    AttacksPublished, ///< GOST 28147-89: Isobe, 2011; Dinur, Dunkelman and Shamir, 2012
};

struct CatalogueEntry
{
    std::uint32_t id;
    std::string_view name; ///< display name, zero-terminated
    AlgRecord record;
    AlgAdvice advice = AlgAdvice::None;
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
