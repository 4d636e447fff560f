#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace thisapp::desktop {

/// A file in a folder that others write to as well. It is ours when one of its lines is the marker;
/// any other file under its name is left alone.
class OwnedFile
{
public:
    /// The comment lines that make a desktop entry or a shell script ours and tell what it starts. Whoever
    /// writes one has them among its lines.
    static std::string head(const std::string& program);
    /// Those of a folder, by path.
    static std::vector<OwnedFile> in(const std::string& folder);

    explicit OwnedFile(std::string path);

    const std::string& path() const { return m_path; }
    /// What it starts, as its head has it; empty when that is not known.
    std::string program() const;

    /// Creates or replaces it, with its folder, unless it holds that already. False when the file could
    /// not be written; true for one left alone.
    [[nodiscard]] bool write(const std::string& content, bool executable) const;
    /// Removes it, and its folder when it has become empty, and so on up to `base`, which stays. False when
    /// the file could not be removed.
    [[nodiscard]] bool remove(const std::string& base) const;

private:
    bool isForeign() const;

    std::string m_path;
};

/// Removes a folder that is empty, and each one above it that becomes so, up to `base`, which stays.
void removeEmptyFolders(const std::string& folder, const std::string& base);

} // namespace thisapp::desktop
