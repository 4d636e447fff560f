#pragma once

#include "crypto/cipher/SymmetricEncryptor.h"

namespace tessaly::cryptopp {

/// The encryptor of one algorithm.
template <class Engine>
class CSymmetricEncryptor final : public crypto::SymmetricEncryptor
{
private:
    crypto::ICipherEngine& engine() override { return m_engine; }
    const crypto::ICipherEngine& engine() const override { return m_engine; }

    Engine m_engine;
};

} // namespace tessaly::cryptopp
