#pragma once

class QComboBox;

namespace thisapp {

/// The program's rounded combo box, in the palette's colours, with a scrolling list.
void applyRoundedStyle(QComboBox& box);

} // namespace thisapp
