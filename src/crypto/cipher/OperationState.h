#pragma once

#include "crypto/CryptoResult.h"
#include "lib/sync/Locker.h"

namespace tessaly::crypto {

/// Whether an encryptor or decryptor is at work, whether it was asked to stop, and how its last
/// operation went. Any thread; its lock guards every member.
class OperationState
{
public:
    /// False when an operation is already running; else its flags and result are clear.
    [[nodiscard]] bool begin();
    /// Keeps the first failure.
    void setResult(const CryptoResult& result);
    /// No longer busy; gives the result.
    CryptoResult end();
    void requestStop();
    bool isStopRequested() const;
    bool isBusy() const;
    CryptoResult lastResult() const;

private:
    mutable sync::Locker m_lock;
    bool m_busy = false;
    bool m_stopRequested = false;
    CryptoResult m_lastResult;
};

} // namespace tessaly::crypto
