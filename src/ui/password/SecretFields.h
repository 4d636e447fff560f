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

/// Empties a field without telling its listeners, and makes room for what will be typed, so that
/// typing leaves no copy behind that Qt outgrew.
void prepareSecret(QLineEdit& field);
/// Empties a field without telling its listeners, and overwrites first what the field has of it: its
/// text, and the copy that it shows. While it is shown in clear text, Qt makes a new copy with each
/// key and frees the last one as it is, as it does with the letters that it could undo: these are
/// out of reach.
void clearSecret(QLineEdit& field);
/// Empties a field without telling its listeners. Its storage is out of reach: Qt frees it as it is.
void clearSecret(QPlainTextEdit& field);

/// The field's text as UTF-8, with every kind of white space as a blank or line break of ASCII.
tessaly::SecretText typedText(const QPlainTextEdit& field);
void setTypedText(QPlainTextEdit& field, const tessaly::SecretText& text);

} // namespace thisapp
