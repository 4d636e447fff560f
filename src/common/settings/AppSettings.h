#pragma once

#include <QSettings>

#include <cstdint>

namespace tessaly {

/// The per-user settings of one of the organisation's programs, in the platform's native store.
/// Meant to be short-lived: open it, read or write a few keys, drop it. GUI thread only.
class AppSettings : public QSettings
{
public:
    explicit AppSettings(std::uint32_t productId);

    std::uint32_t productId() const { return m_productId; }

private:
    std::uint32_t m_productId;
};

} // namespace tessaly
