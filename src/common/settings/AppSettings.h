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
    /// Lines that the opening took out of the file because they could not be read safely.
    int removedLines() const { return m_removedLines; }
    /// Writes what was set to the disk; false when that fails.
    [[nodiscard]] bool save();

private:
    AppSettings(std::uint32_t productId, const QString& path, int removedLines);

    int m_removedLines;
    std::uint32_t m_productId;
};

} // namespace tessaly
