#include "common/errors/ErrorTexts.h"

#include "lib/err/ErrorCodes.h"
#include "lib/platform/SystemMessage.h"

#include <algorithm>
#include <iterator>

/// Marks a text for the translators' tools, which look for this name; it changes nothing.
#define QT_TRANSLATE_NOOP(context, text) text

namespace thisapp {

using namespace tessaly;
using namespace tessaly::err;

namespace {

struct CodeText
{
    std::uint32_t first;
    const char* text;
    std::uint32_t last = first;
};

constexpr CodeText CodeTexts[] = {
    {Busy, QT_TRANSLATE_NOOP("CErrMsg", "Object busy")},
    {NoInputStream, QT_TRANSLATE_NOOP("CErrMsg", "Data stream not defined")},
    {FileNameNotDefined, QT_TRANSLATE_NOOP("CErrMsg", "File name not defined")},
    {FileNotFound, QT_TRANSLATE_NOOP("CErrMsg", "File not found")},
    {OpenFileFailed, QT_TRANSLATE_NOOP("CErrMsg", "Open file failed")},
    {GetFileSizeFailed, QT_TRANSLATE_NOOP("CErrMsg", "Get file size failed")},
    {ReadFileFailed, QT_TRANSLATE_NOOP("CErrMsg", "Reading file failed")},
    {ReadStreamFailed, QT_TRANSLATE_NOOP("CErrMsg", "Reading data stream failed")},
    {InputNameNotDefined, QT_TRANSLATE_NOOP("CErrMsg", "Input file name not defined")},
    {InputNotFound, QT_TRANSLATE_NOOP("CErrMsg", "Input file not found")},
    {OutputNameNotDefined, QT_TRANSLATE_NOOP("CErrMsg", "Output file name not defined")},
    {OutputNotFound, QT_TRANSLATE_NOOP("CErrMsg", "Output file not found")},
    {OutputMatchesInput, QT_TRANSLATE_NOOP("CErrMsg", "Output file name matches the name of the input file")},
    {OperationStopped, QT_TRANSLATE_NOOP("CErrMsg", "Operation was stopped")},
    {KeyingFailed, QT_TRANSLATE_NOOP("CErrMsg", "Failed to calculate data hash"), CheckValueHashFailed},
    {CheckValueDiffers, QT_TRANSLATE_NOOP("CErrMsg", "Corrupted data"), InputTruncated},
    {EngineNotInitialized, QT_TRANSLATE_NOOP("CErrMsg", "Cryptographic engine is not initialized")},
    {SealBroken, QT_TRANSLATE_NOOP("CErrMsg", "The file is damaged or has been changed")},
};

/// Null when the code has no text.
const char* ownText(std::uint32_t code)
{
    const auto found = std::ranges::find_if(
        CodeTexts, [code](const CodeText& row) { return row.first <= code && code <= row.last; });
    return found == std::end(CodeTexts) ? nullptr : found->text;
}

} // namespace

bool ErrorTexts::lookup(std::uint32_t category, std::uint32_t code, std::string& text) const
{
    if (category == CategorySystem) {
        const auto message = platform::systemMessage(code);
        text = message.value_or(std::string());
        return message.has_value();
    }
    const char* own = category == CategoryLibrary ? ownText(code) : nullptr;
    text = own ? own : "";
    return own != nullptr;
}

} // namespace thisapp
