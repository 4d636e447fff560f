#pragma once

#include "crypto/cipher/SymmetricDecryptor.h"

namespace tessaly::cryptopp {

/// The decryptor of one algorithm.
template <class Engine>
class CSymmetricDecryptor final : public crypto::SymmetricDecryptor
{
private:
    crypto::ICipherEngine& engine() override { return m_engine; }
    const crypto::ICipherEngine& engine() const override { return m_engine; }

    Engine m_engine;
};

} // namespace tessaly::cryptopp
