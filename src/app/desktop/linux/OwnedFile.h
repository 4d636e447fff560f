#pragma once

#include <string>
#include <string_view>

namespace thisapp::desktop {

/// A file in a folder that others write to as well. It is ours when one of its lines is the marker;
/// any other file under its name is left alone.
class OwnedFile
{
public:
    /// A comment line for a desktop entry or a shell script, without its line end.
    static constexpr std::string_view Marker = "# Kept by Quillet; its options switch this entry off.";

    explicit OwnedFile(std::string path);

    /// Creates or replaces it, with its folder, unless it holds that already. The content has the
    /// marker among its lines. False when the file could not be written; true for one left alone.
    [[nodiscard]] bool write(const std::string& content, bool executable) const;
    /// False when it could not be removed.
    [[nodiscard]] bool remove() const;

private:
    bool isForeign() const;

    std::string m_path;
};

} // namespace thisapp::desktop
