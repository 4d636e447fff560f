#include "crypto/cipher/OperationState.h"

#include <mutex>

namespace tessaly::crypto {

bool OperationState::begin()
{
    std::lock_guard guard(m_lock);
    if (m_busy)
        return false;
    m_busy = true;
    m_stopRequested = false;
    m_lastResult = {};
    return true;
}

void OperationState::setResult(const CryptoResult& result)
{
    std::lock_guard guard(m_lock);
    if (m_lastResult.ok())
        m_lastResult = result;
}

CryptoResult OperationState::end()
{
    std::lock_guard guard(m_lock);
    m_busy = false;
    return m_lastResult;
}

void OperationState::requestStop()
{
    std::lock_guard guard(m_lock);
    m_stopRequested = true;
}

bool OperationState::isStopRequested() const
{
    std::lock_guard guard(m_lock);
    return m_stopRequested;
}

bool OperationState::isBusy() const
{
    std::lock_guard guard(m_lock);
    return m_busy;
}

CryptoResult OperationState::lastResult() const
{
    std::lock_guard guard(m_lock);
    return m_lastResult;
}

} // namespace tessaly::crypto
