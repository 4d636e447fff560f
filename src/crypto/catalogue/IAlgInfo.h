#pragma once

#include <cstdint>

namespace tessaly::crypto {

enum class CipherMode : std::uint32_t {
    Stream = 0,
    Cbc = 2,
};

/// Sizes and mode of one algorithm, in bytes; all zero for an unknown id.
struct AlgRecord
{
    std::uint32_t keyLength = 0;
    std::uint32_t ivLength = 0;
    CipherMode mode = CipherMode::Stream;
    std::uint64_t blockLength = 0; ///< 0 for a stream cipher
    bool littleEndian = false;     ///< Panama declares its byte order
    bool stream = false;

    friend constexpr bool operator==(const AlgRecord&, const AlgRecord&) = default;
};

template <int Kind>
class IAlgInfo;

/// Describes the symmetric algorithms.
template <>
class IAlgInfo<1>
{
public:
    virtual AlgRecord record(std::uint32_t algorithmId) const = 0;
    /// The id of the hash that turns a password into the algorithm's key; 0 for none.
    virtual std::uint32_t keyDerivationHash(std::uint32_t algorithmId) const = 0;
    virtual ~IAlgInfo() = default;
};

} // namespace tessaly::crypto
