// The names of outputs, against a second model over code points.

#include "common/naming/OutputNaming.h"
#include "common/settings/TextRules.h"
#include "fuzz/support/Choices.h"
#include "fuzz/support/Require.h"

#include <cstdint>
#include <optional>
#include <utility>

using namespace fuzz;
using namespace thisapp;

namespace {

/// A text of few letters, so that extensions meet.
QString word(Choices& choices, int most)
{
    static const QString Letters = QStringLiteral("aAbeEnNcC..: -~%#\u00e9\u00c9\u0130\U0001F600");
    QString made;
    for (int left = choices.upTo(most); left > 0; --left)
        made += choices.seldom(16) ? QChar(choices.ConsumeIntegral<std::uint16_t>())
                                   : Letters[choices.upTo(Letters.size() - 1)];
    return made;
}

NameParts parts(Choices& choices, const char* usual)
{
    NameParts made{choices.ConsumeBool(),
                   choices.ConsumeBool(),
                   choices.ConsumeBool(),
                   choices.ConsumeBool(),
                   choices.ConsumeBool() ? QString(usual) : word(choices, 4),
                   word(choices, 4),
                   word(choices, 4)};
    for (QString* part : {&made.ext, &made.suffix, &made.prefix})
        if (!isNamePart(*part))
            part->clear();
    return made;
}

bool isSameLetter(uint a, uint b)
{
    return QChar::toCaseFolded(a) == QChar::toCaseFolded(b);
}

bool areAlike(const QString& a, const QString& b)
{
    const auto first = a.toUcs4();
    const auto second = b.toUcs4();
    return std::equal(first.begin(), first.end(), second.begin(), second.end(), isSameLetter);
}

/// What stands behind the last dot, if anything does.
std::optional<QString> extension(const QString& name)
{
    const int dot = name.lastIndexOf('.');
    return dot < 0 || dot == name.size() - 1 ? std::nullopt : std::optional(name.mid(dot + 1));
}

QString base(const QString& name)
{
    const int dot = name.lastIndexOf('.');
    return dot < 0 ? name : name.left(dot);
}

QString modelName(const QString& input, const NamingSettings& settings, const QDate& today)
{
    const auto ext = extension(input);
    const bool isEncrypted = ext && areAlike(*ext, settings.encryption.ext);
    const NameParts& own = isEncrypted ? settings.decryption : settings.encryption;
    QString name = input;
    bool addExt = own.addExt && !own.ext.isEmpty();
    if (isEncrypted || (ext && areAlike(*ext, settings.decryption.ext))) {
        name = base(input) + '.' + own.ext;
        addExt = false;
    }
    QString stem = base(name);
    if (name.size() <= 128) {
        if (own.addPrefix)
            stem.prepend(own.prefix);
        if (own.addDate && today.isValid())
            stem += today.toString("_yyyy_MM_dd");
        if (own.addSuffix)
            stem += own.suffix;
    }
    if (const auto kept = extension(name))
        stem += '.' + *kept;
    if (!addExt)
        return stem;
    const bool hasDot = stem.endsWith('.') || own.ext.startsWith('.');
    return stem + (hasDot ? "" : ".") + own.ext;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(data, size);
    NamingSettings settings;
    settings.encryption = parts(choices, "enc");
    settings.decryption = parts(choices, "dec");
    const QDate today = choices.seldom(8)
                            ? QDate()
                            : QDate(1 + choices.upTo(9998), 1 + choices.upTo(11), 1 + choices.upTo(27));
    const QString input = word(choices, choices.seldom(4) ? 140 : 12);
    if (!isNamePart(input) || input.isEmpty() || input == "." || input == "..")
        return 0;

    const QString expected = modelName(input, settings, today);
    require(outputFileName(input, namingDirection(input, settings), settings, today) == expected,
            "the name is that of the second model");
    const QString path = outputPath("/in/" + input, settings, today);
    const bool isNoName = expected.isEmpty() || expected == "." || expected == "..";
    require(isNoName || path == "/in/" + expected, "the output stands beside the input");
    return 0;
}
