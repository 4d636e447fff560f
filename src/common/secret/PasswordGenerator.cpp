#include "common/secret/PasswordGenerator.h"

#include "crypto/key/RandomBytes.h"

#include <QFile>
#include <cmath>
#include <string_view>
#include <vector>

// Outside every namespace, as the macro declares a global function.
static void initWordResources()
{
    Q_INIT_RESOURCE(words);
}

namespace thisapp {

using namespace tessaly;

namespace {

/// Without I, O, l, 0 and 1, which are mistaken for one another, and without quotes, blanks and
/// backslashes, which programs tend to treat in a way of their own.
constexpr std::string_view Characters =
    "ABCDEFGHJKLMNPQRSTUVWXYZabcdefghijkmnopqrstuvwxyz23456789!#$%&()*+,-./:;<=>?@[]^_{}~";

std::vector<std::string_view> readWords()
{
    initWordResources();
    QFile file(QStringLiteral(":/words/words_en.txt"));
    static const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    std::vector<std::string_view> words;
    std::string_view rest(text.constData(), static_cast<std::size_t>(text.size()));
    for (std::size_t end = 0; (end = rest.find('\n')) != std::string_view::npos; rest.remove_prefix(end + 1))
        words.push_back(rest.substr(0, end));
    return words;
}

std::vector<std::string_view> choices(PasswordKind kind)
{
    if (kind == PasswordKind::Words) {
        static const std::vector<std::string_view> words = readWords();
        return words;
    }
    std::vector<std::string_view> characters;
    for (std::size_t at = 0; at < Characters.size(); ++at)
        characters.push_back(Characters.substr(at, 1));
    return characters;
}

} // namespace

RandomSource systemRandom()
{
    return [](std::size_t count, SecretBytes& bytes) { return crypto::randomBytes(count, bytes).ok(); };
}

std::optional<std::uint32_t> randomBelow(std::uint32_t bound, const RandomSource& random)
{
    constexpr std::uint32_t Range = 1 << 16;
    const std::uint32_t usable = Range - Range % bound; // beyond it small numbers would come more often
    SecretBytes bytes;
    while (random(2, bytes)) {
        const std::uint32_t number = bytes[0] * 256U + bytes[1];
        if (number < usable)
            return number % bound;
    }
    return std::nullopt;
}

std::optional<SGeneratedPassword> generatePassword(PasswordKind kind, int count, const RandomSource& random)
{
    const std::vector<std::string_view> all = choices(kind);
    SecretBytes text;
    for (int made = 0; made < count; ++made) {
        const auto chosen = randomBelow(static_cast<std::uint32_t>(all.size()), random);
        if (!chosen)
            return std::nullopt;
        if (kind == PasswordKind::Words && made > 0)
            text.push_back(' ');
        text.append(all[*chosen].begin(), all[*chosen].end());
    }
    return SGeneratedPassword{SecretText({reinterpret_cast<const char*>(text.data()), text.size()}),
                              count * std::log2(static_cast<double>(all.size()))};
}

} // namespace thisapp
