#pragma once

#include <QColor>

class QPalette;

namespace thisapp {

enum class MessageKind { Plain, Success, Warning, Error };

/// Readable on the palette's window colour, light or dark.
QColor messageColor(MessageKind kind, const QPalette& palette);

/// Background of an input field whose content passed or failed its check; text in the palette's
/// colour is readable on it, light or dark.
QColor fieldColor(bool valid, const QPalette& palette);

/// The palette's colour of links, or a blue of our own where nobody could read that one on the palette's
/// window colour: a dark theme may well leave it as it is.
QColor linkColor(const QPalette& palette);

} // namespace thisapp
