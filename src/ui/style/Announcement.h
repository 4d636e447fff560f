#pragma once

#include <QString>
#include <functional>

class QTimer;
class QWidget;

namespace thisapp {

/// Has a screen reader speak a text that appears beside the focus, as that of `source`. Costs next to
/// nothing where there is none; an empty text is not spoken. GUI thread.
void announce(QWidget* source, const QString& text);

/// Announces the text once the timer, started by each change of it, has run out: what changes with every
/// key is spoken when the user pauses. Not while the source is hidden.
void announceWhenSettled(QTimer& timer, QWidget& source, std::function<QString()> text);

} // namespace thisapp
