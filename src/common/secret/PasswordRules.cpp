#include "common/secret/PasswordRules.h"

#include <QtGlobal>

namespace thisapp {

namespace {

constexpr const char* LineBreak = QT_TRANSLATE_NOOP("PasswordRules", "The password contains a line break.");
constexpr const char* Tab = QT_TRANSLATE_NOOP("PasswordRules", "The password contains a tab.");
constexpr const char* Control =
    QT_TRANSLATE_NOOP("PasswordRules", "The password contains a control character.");

const char* problemOfByte(char c)
{
    if (c == '\n' || c == '\r')
        return LineBreak;
    if (c == '\t')
        return Tab;
    return static_cast<unsigned char>(c) < 0x20 || c == '\x7F' ? Control : nullptr;
}

/// What stands at the start of `text`, beyond ASCII.
const char* problemOfSequence(std::string_view text)
{
    if (text.starts_with("\xC2\x85") || text.starts_with("\xE2\x80\xA8") || text.starts_with("\xE2\x80\xA9"))
        return LineBreak;
    const bool c1 = text.size() > 1 && text[0] == '\xC2' && static_cast<unsigned char>(text[1]) >= 0x80 &&
                    static_cast<unsigned char>(text[1]) < 0xA0;
    return c1 ? Control : nullptr;
}

} // namespace

const char* passwordProblem(std::string_view utf8)
{
    for (; !utf8.empty(); utf8.remove_prefix(1)) {
        if (const char* problem = problemOfByte(utf8.front()))
            return problem;
        if (const char* problem = problemOfSequence(utf8))
            return problem;
    }
    return nullptr;
}

} // namespace thisapp
