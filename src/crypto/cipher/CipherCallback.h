#pragma once

#include "crypto/CryptoResult.h"

#include <cstdint>

namespace tessaly::crypto {

/// Progress of one operation; called on the thread that runs it.
class ICipherProgressCallback
{
public:
    virtual ~ICipherProgressCallback() = default;
    /// Bytes of the plain file done so far, and the same from 0 to 100 per cent.
    virtual void progress(std::int64_t processed, float percent, void* userData) = 0;
};

/// The whole course of one operation. Arguments that are refused at once call nothing; after
/// `started`, `finished` is called on every path, once.
class ICipherCallback : public ICipherProgressCallback
{
public:
    /// Before the first byte is read.
    virtual void started(void* userData) = 0;
    /// `stopped` tells whether a stop had been requested.
    virtual void finished(bool stopped, const CryptoResult& result, void* userData) = 0;
};

/// Both directions report alike.
using IEncryptProgressCallback = ICipherProgressCallback;
using IEncryptCallback = ICipherCallback;
using IDecryptProgressCallback = ICipherProgressCallback;
using IDecryptCallback = ICipherCallback;

} // namespace tessaly::crypto
