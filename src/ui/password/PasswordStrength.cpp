#include "ui/password/PasswordStrength.h"

#include "ui/password/SecretFields.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <zxcvbn.h>

namespace thisapp {

namespace {

struct StrengthTexts
{
    Q_DECLARE_TR_FUNCTIONS(StrengthTexts)
};

struct SStrengthRow
{
    double belowBits; ///< the passwords that need fewer than 2^belowBits guesses
    const char* text;
    MessageKind kind;
};

// A key is one fast hash away from its password, so a guesser is taken to try 10^10 a second:
// 2^33 guesses take a second, 2^46 two hours, 2^58 a year, 2^70 thousands of years.
constexpr std::array Rows{
    SStrengthRow{33, QT_TRANSLATE_NOOP("StrengthTexts", "Password strength: very weak, guessed at once."),
                 MessageKind::Error},
    SStrengthRow{46, QT_TRANSLATE_NOOP("StrengthTexts", "Password strength: weak, guessed within hours."),
                 MessageKind::Error},
    SStrengthRow{58, QT_TRANSLATE_NOOP("StrengthTexts", "Password strength: fair, guessed within a year."),
                 MessageKind::Warning},
    SStrengthRow{70, QT_TRANSLATE_NOOP("StrengthTexts", "Password strength: strong."), MessageKind::Success},
    SStrengthRow{1e9, QT_TRANSLATE_NOOP("StrengthTexts", "Password strength: very strong."),
                 MessageKind::Success},
};

/// One Latin letter for each other letter: the estimator counts bytes and would take the several
/// bytes of a letter in UTF-8 for as many random characters.
QString asLatin(const QString& password)
{
    QString latin = password;
    for (QChar& c : latin)
        if (c.unicode() >= 0x80)
            c = QLatin1Char(static_cast<char>('a' + c.unicode() % 26));
    return latin;
}

double guessBits(const QString& password)
{
    const char* known[] = {"quillet", nullptr};
    QString latin = asLatin(password);
    const tessaly::SecretText text = secretText(latin);
    wipe(latin);
    return ZxcvbnMatch(text.c_str(), known, nullptr);
}

} // namespace

SStrengthNotice strengthNotice(double bits)
{
    static_assert(Rows.size() == HighestStrength);
    const auto* row = std::ranges::find_if(Rows, [bits](const auto& each) { return bits < each.belowBits; });
    return {StrengthTexts::tr(row->text), row->kind, static_cast<int>(row - Rows.begin()) + 1};
}

SStrengthNotice strengthNotice(const QString& password)
{
    return password.isEmpty() ? SStrengthNotice() : strengthNotice(guessBits(password));
}

} // namespace thisapp
