#pragma once

#include <QColor>
#include <QString>

class QLabel;
class QLineEdit;
class QPalette;

namespace thisapp {

enum class MessageKind { Plain, Success, Warning, Error };

/// Readable on the palette's window colour, light or dark.
QColor messageColor(MessageKind kind, const QPalette& palette);

/// Background of an input field whose content passed or failed its check; text in the palette's
/// colour is readable on it, light or dark.
QColor fieldColor(bool valid, const QPalette& palette);

/// Gives a label's text the kind's colour.
void setLabelKind(QLabel& label, MessageKind kind);

/// Shows a text in a read-only message line, in the kind's colour for every colour group.
void showMessage(QLineEdit& line, const QString& text, MessageKind kind);

} // namespace thisapp
