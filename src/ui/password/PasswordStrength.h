#pragma once

#include "ui/style/MessageStyle.h"

#include <QString>

namespace thisapp {

struct SStrengthNotice
{
    QString text;
    MessageKind kind;
};

/// The line to show for a password; empty for an empty one. An estimate from the guesses that a
/// cracking program would need, dictionaries of English words, names and common passwords included.
/// Words of other languages are judged as random letters.
SStrengthNotice strengthNotice(const QString& password);

} // namespace thisapp
