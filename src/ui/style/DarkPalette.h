#pragma once

#include <QPalette>

namespace thisapp {

/// Colours for users who want dark ones, where neither system nor toolkit has any that can be read.
QPalette darkPalette();

} // namespace thisapp
