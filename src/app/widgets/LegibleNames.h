#pragma once

class QWidget;

namespace thisapp {

/// Shows a widget's text in its usual colour while it is disabled, too: what a job works on is then read
/// most. To be called again after a change of the desktop's colours.
void keepLegible(QWidget& widget);

} // namespace thisapp
