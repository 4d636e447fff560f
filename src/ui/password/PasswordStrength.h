#pragma once

#include "ui/style/MessageStyle.h"

#include <QString>

namespace thisapp {

/// Of a very strong password.
inline constexpr int HighestStrength = 5;

struct SStrengthNotice
{
    QString text;
    MessageKind kind = MessageKind::Plain;
    int level = 0; ///< 1 to HighestStrength; 0 without a password
};

/// The line to show for a password; empty for an empty one. An estimate from the guesses that a
/// cracking program would need, dictionaries of English words, names and common passwords included.
/// Words of other languages are judged as random letters.
SStrengthNotice strengthNotice(const QString& password);
/// Likewise, for a password that takes up to 2^bits guesses.
SStrengthNotice strengthNotice(double bits);

} // namespace thisapp
