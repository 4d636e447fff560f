#pragma once

class QString;
class QWidget;

namespace thisapp {

/// Has a screen reader speak a text that appears beside the focus, as that of `source`. Costs next to
/// nothing where there is none; an empty text is not spoken. GUI thread.
void announce(QWidget* source, const QString& text);

} // namespace thisapp
