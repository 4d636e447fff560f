#pragma once

#include "lib/secret/Secret.h"

#include <QString>

class QLineEdit;
class QPlainTextEdit;

namespace thisapp {

/// Overwrites the characters in place, in every string that shares them, and empties the string.
void wipe(QString& text);

/// As UTF-8; leaves no other copy behind.
tessaly::SecretText secretText(const QString& text);

/// Empties a field without telling its listeners, and overwrites the field's own storage first.
void clearSecret(QLineEdit& field);
/// Empties a field without telling its listeners. Its storage is out of reach: Qt frees it as it is.
void clearSecret(QPlainTextEdit& field);

/// The field's text as UTF-8, with every kind of white space as a blank or line break of ASCII.
tessaly::SecretText typedText(const QPlainTextEdit& field);
void setTypedText(QPlainTextEdit& field, const tessaly::SecretText& text);

} // namespace thisapp
