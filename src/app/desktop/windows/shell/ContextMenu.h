#pragma once

#include <QString>

#include <filesystem>

namespace thisapp::desktop {

/// The submenu "Quillet" of a file's context menu in Explorer. Its key, "Quillet" below
/// Software\Classes\*\shell of the current user, is ours as a whole. It is offered for a single file, as each
/// of several would start a program of its own; several files go through the send-to menu.
class ContextMenu
{
public:
    /// What its entries start; empty when there are none.
    static std::filesystem::path program();
    /// Both false when the registry could not be written; the first leaves a key alone that holds all that.
    [[nodiscard]] static bool write(const QString& program);
    [[nodiscard]] static bool remove();
};

} // namespace thisapp::desktop
