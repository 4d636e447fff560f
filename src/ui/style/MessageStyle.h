#pragma once

#include <QColor>
#include <QString>

class QLineEdit;
class QPalette;

namespace thisapp {

enum class MessageKind { Plain, Success, Warning, Error };

/// Readable on the palette's window colour, light or dark.
QColor messageColor(MessageKind kind, const QPalette& palette);

/// Shows a text in a read-only message line, in the kind's colour for every colour group.
void showMessage(QLineEdit& line, const QString& text, MessageKind kind);

} // namespace thisapp
