#pragma once

class QComboBox;

namespace thisapp {

/// Keeps the mouse wheel from changing a combo box that lacks the focus, so that scrolling a page
/// past it scrolls on.
void guardFromWheel(QComboBox& box);

} // namespace thisapp
