#pragma once

#include <QIcon>

namespace thisapp {

/// An eye in the text colour of the current palette, crossed out when `crossed`.
QIcon eyeIcon(bool crossed);

} // namespace thisapp
