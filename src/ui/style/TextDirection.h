#pragma once

#include <QString>

class QTextDocument;

/// For languages that are written from right to left; in the others none of this changes anything.
namespace thisapp {

/// A path, a key or a name, kept in its own order where it stands in a text of the language.
QString leftToRight(const QString& text);

/// A whole line, begun at the language's side even when it begins with a word of another one.
QString atLanguageSide(const QString& line);

/// The same for every paragraph that the document holds.
void followLanguageSide(QTextDocument& document);

} // namespace thisapp
