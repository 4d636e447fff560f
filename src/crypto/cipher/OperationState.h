#pragma once

#include "crypto/CryptoResult.h"
#include "lib/sync/Locker.h"

namespace tessaly::crypto {

/// Whether an encryptor or decryptor is at work, and whether it was asked to stop. Any thread;
/// its lock guards every member.
class OperationState
{
public:
    /// False when an operation is already running.
    [[nodiscard]] bool begin();
    void end(const CryptoResult& result);
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
