#pragma once

#include <cryptopp/rc6.h>

#include <cstddef>

namespace tessaly::cryptopp {

/// RC6 with 48- and 64-byte keys. The key schedule of the published algorithm (Rivest, Robshaw,
/// Sidney, Yin: "The RC6 Block Cipher", 1998) takes up to 255 bytes; the library admits 32.
struct RC6LongKey
{
    static constexpr int BLOCKSIZE = CryptoPP::RC6::BLOCKSIZE;

    static constexpr std::size_t StaticGetValidKeyLength(std::size_t wish) { return wish <= 48 ? 48 : 64; }
    static std::string StaticAlgorithmName() { return CryptoPP::RC6::StaticAlgorithmName(); }

    template <class Direction>
    class Cipher : public Direction
    {
    public:
        std::size_t MinKeyLength() const override { return 48; }
        std::size_t MaxKeyLength() const override { return 64; }
        std::size_t DefaultKeyLength() const override { return 48; }
        std::size_t GetValidKeyLength(std::size_t wish) const override
        {
            return StaticGetValidKeyLength(wish);
        }
        CryptoPP::Clonable* Clone() const override { return new Cipher(*this); }
    };

    using Encryption = Cipher<CryptoPP::RC6::Encryption>;
    using Decryption = Cipher<CryptoPP::RC6::Decryption>;
};

} // namespace tessaly::cryptopp
