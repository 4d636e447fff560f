#pragma once

#include <QString>

#include <optional>
#include <string>

namespace thisapp::desktop {

/// Thunar's custom actions: one file, which holds the user's own as well. Those stay as they are, to the
/// letter; a file that can't be read is left alone.
class ThunarActions
{
public:
    /// Below the user's folder of settings.
    explicit ThunarActions(std::string configFolder);

    /// What our actions start; empty when there are none.
    std::string program() const;

    /// Adds our actions, or mends those that differ. A new file begins with what the system gives those who
    /// have none. False when that could not be done.
    [[nodiscard]] bool write(const std::string& program) const;
    /// Removes ours, and a file that then holds what it began with. False when that could not be done.
    [[nodiscard]] bool remove() const;

private:
    std::optional<QString> read() const;
    bool store(const QString& xml) const;

    std::string m_configFolder;
    QString m_path;
};

} // namespace thisapp::desktop
