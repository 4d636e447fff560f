#pragma once

#include <functional>

class QObject;

namespace thisapp {

/// Calls refresh after each change of the desktop's colours, as long as the owner lives: colours of
/// our own and style sheets don't follow such a change by themselves.
void onThemeChange(QObject& owner, std::function<void()> refresh);

} // namespace thisapp
