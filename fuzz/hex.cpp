// Keys and IVs as text: hexadecimal, the files that the window saves, and what is wrong with a password.

#include "lib/secret/Hex.h"
#include "common/secret/KeyFile.h"
#include "common/secret/PasswordRules.h"
#include "fuzz/support/Choices.h"
#include "fuzz/support/RawCipher.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "ui/password/HexCheck.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <string>

using namespace fuzz;
using namespace tessaly;

namespace {

/// The bytes by way of the C library; nothing for what is not hexadecimal.
std::optional<Bytes> bytesOf(std::string_view text)
{
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits),
                         [](char c) { return std::isspace(static_cast<unsigned char>(c)) == 0; });
    if (digits.size() % 2 != 0 ||
        !std::ranges::all_of(digits, [](unsigned char c) { return std::isxdigit(c) != 0; }))
        return std::nullopt;
    Bytes bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    return bytes;
}

void checkText(std::string_view text)
{
    const auto decoded = decodeHex(text);
    const auto expected = bytesOf(text);
    require(decoded.has_value() == expected.has_value() &&
                (!decoded || std::ranges::equal(*decoded, *expected)),
            "the bytes are those of the second reader");
    const thisapp::SHexCheck check = thisapp::checkHex(thisapp::HexInput::Key, SecretText(text), 16);
    require(check.passed() == (expected && expected->size() == 16), "what passes for a key");
    if (const char* problem = thisapp::passwordProblem(text))
        require(*problem != 0, "a problem has a name");
    (void)thisapp::parseKeyFile(text);
}

/// What was saved, sent through a mail program or not.
void checkKeyFile(Choices& choices)
{
    const SecretBytes key = secret(choices.noise(1 + choices.upTo<std::size_t>(200)));
    const SecretBytes iv = secret(choices.noise(1 + choices.upTo<std::size_t>(200)));
    const SecretText saved = thisapp::keyFileText("AES-256", key, iv);
    std::string sent = choices.ConsumeBool() ? "Hello\n" : "";
    for (const char c : saved.view()) {
        if (c == '\n' && choices.ConsumeBool())
            sent += '\r';
        sent += c;
    }
    sent += choices.ConsumeBool() ? "\nBye\n" : "";
    const auto read = thisapp::parseKeyFile(sent);
    require(read && read->key == key && read->iv == iv && read->algorithm == "AES-256",
            "a saved key comes back");
    const auto text = encodeHex(key);
    require(decodeHex(text.view()) == key, "hexadecimal text comes back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    checkText(text(data, size));
    Choices choices(data, size);
    checkKeyFile(choices);
    return 0;
}
