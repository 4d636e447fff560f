#include "common/secret/KeyFile.h"

#include "lib/secret/Hex.h"

#include <initializer_list>

namespace thisapp {

using namespace tessaly;

namespace {

constexpr std::string_view Title = "Quillet key and initialization vector";
constexpr std::string_view AlgorithmLabel = "Algorithm:";
constexpr std::string_view IvLabel = "Initialization vector (IV):";
constexpr std::string_view KeyLabel = "Key:";

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view Blanks = " \t\r\n";

/// Where a line begins with the label; npos for nowhere.
std::size_t findLabel(std::string_view text, std::string_view label)
{
    for (std::size_t at = text.find(label); at != std::string_view::npos; at = text.find(label, at + 1))
        if (at == 0 || LineEnds.find(text[at - 1]) != std::string_view::npos)
            return at;
    return std::string_view::npos;
}

/// What follows the label, up to the next label or an empty line.
std::optional<std::string_view> valueOf(std::string_view text, std::string_view label)
{
    const std::size_t at = findLabel(text, label);
    if (at == std::string_view::npos)
        return std::nullopt;
    std::string_view value = text.substr(at + label.size());
    for (const std::string_view next : {AlgorithmLabel, IvLabel, KeyLabel})
        value = value.substr(0, findLabel(value, next));
    for (const std::string_view emptyLine : {"\n\n", "\r\n\r\n"})
        value = value.substr(0, value.find(emptyLine));
    return value;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

} // namespace

SecretText keyFileText(std::string_view algorithmName, const SecretBytes& key, const SecretBytes& iv)
{
    const SecretText keyText = encodeHex(key);
    const SecretText ivText = encodeHex(iv);
    SecretBytes text;
    for (const std::string_view part :
         {Title, std::string_view("\n"), AlgorithmLabel, std::string_view(" "), algorithmName,
          std::string_view("\n"), IvLabel, std::string_view(" "), ivText.view(), std::string_view("\n"),
          KeyLabel, std::string_view(" "), keyText.view(), std::string_view("\n")})
        text.append(part.begin(), part.end());
    return SecretText({reinterpret_cast<const char*>(text.data()), text.size()});
}

std::optional<SKeyFile> parseKeyFile(std::string_view text)
{
    const auto ivText = valueOf(text, IvLabel);
    const auto keyText = valueOf(text, KeyLabel);
    if (!ivText || !keyText)
        return std::nullopt;
    auto iv = decodeHex(*ivText);
    auto key = decodeHex(*keyText);
    if (!iv || iv->empty() || !key || key->empty())
        return std::nullopt;
    return SKeyFile{std::string(trimmed(valueOf(text, AlgorithmLabel).value_or(""))), std::move(*key),
                    std::move(*iv)};
}

} // namespace thisapp
