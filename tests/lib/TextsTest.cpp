#include "lib/err/CErrMsgBuilder.h"
#include "lib/file/PropertiesFileReader.h"
#include "lib/i18n/list/WordTest.h"
#include "lib/logger/FileTime.h"
#include "lib/logger/LogLine.h"
#include "lib/logger/LogText.h"
#include "lib/platform/Path.h"
#include "lib/secret/Hex.h"
#include "support/AppVariable.h"
#include "support/Environment.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

namespace {

using namespace tessaly;
using namespace tessaly::logger;
using std::string;

string timeText(LocalTime time)
{
    return formatFileTime(toFileTime(time));
}

string logLine(const string& fields)
{
    std::istringstream text(fields);
    logger::internal::LogLine line;
    char bar = 0;
    text >> line.time >> bar >> line.processId >> bar >> line.threadId >> bar >> line.level >> bar;
    std::getline(text, line.source, '|');
    std::getline(text, line.message, '\0');
    string formatted;
    line.format(formatted);
    return formatted;
}

template <class... More>
string pairs(const string& text, const More&... more)
{
    const test::TempFolder folder;
    string read;
    const auto sink = [&](const string& key, const string& value) { read += '[' + key + "][" + value + ']'; };
    const auto result = file::internal::PropertiesFileReader().read(folder.write("p", text), sink, more...);
    return result.ok() ? read : "failed";
}

/// Has texts for category 7 only.
class ErrorTexts final : public err::IErrMsg<char>
{
public:
    bool lookup(std::uint32_t category, std::uint32_t code, string& text) const override
    {
        text = " text " + std::to_string(code) + " \r\n";
        return category == 7;
    }
};

string errorLine(const string& sentenceAndCodes)
{
    const auto [sentence, numbers] = test::halves(sentenceAndCodes);
    std::istringstream text(numbers);
    ResultCode codes[3];
    char slash = 0;
    for (ResultCode& code : codes)
        text >> code.category >> slash >> code.code;
    const ErrorTexts texts;
    return err::internal::CErrMsgBuilder<char>(texts).build(sentence, codes[0], codes[1], codes[2]);
}

string hex(const string& text)
{
    const auto bytes = decodeHex(text);
    return bytes ? string(encodeHex(*bytes).view()) : "refused";
}

string localTime(const string& milliseconds)
{
    using namespace std::chrono;
    return timeText(
        toLocalTime(system_clock::time_point(std::chrono::milliseconds(std::stoll(milliseconds)))));
}

string logText(const string& text)
{
    string line;
    appendOneLine(line, text);
    return line;
}

string yesOrNo(const string& word)
{
    const auto isYes = i18n::readYesNo(word);
    return !isYes ? "neither" : *isYes ? "yes" : "no";
}

TEST(Texts, BecomeWhatTheirTableSays)
{
    const test::Environment zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    const test::AppVariable variables;
    const auto isB = [](const string& key) { return key == "b"; };
    test::walk("texts.txt",
               {{"hex", hex},
                {"error line", errorLine},
                {"file time", [](const string& units) { return timeText(fromFileTime(std::stoll(units))); }},
                {"local time", localTime},
                {"log text", logText},
                {"log line", logLine},
                {"properties", [](const string& text) { return pairs(text); }},
                {"properties of b", [&](const string& text) { return pairs(text, isB); }},
                {"expanded", [&](const string& text) { return pairs(text, nullptr, &variables); }},
                {"yes or no", yesOrNo},
                {"lower", [](const string& text) { return i18n::asciiLower(text); }},
                {"path", [](const string& name) { return platform::nativePath(platform::widePath(name)); }}});
}

} // namespace
