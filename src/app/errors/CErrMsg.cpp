#include "app/errors/CErrMsg.h"

#include "lib/err/ErrorCodes.h"
#include "lib/platform/SystemMessage.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <iterator>

namespace thisapp {

namespace {

using namespace tessaly;

constexpr char Context[] = "CErrMsg";

struct CodeText
{
    std::uint32_t first;
    const char* text;
    std::uint32_t last = first;
};

constexpr CodeText CodeTexts[] = {
    {err::Busy, QT_TRANSLATE_NOOP("CErrMsg", "Object busy")},
    {err::NoInputStream, QT_TRANSLATE_NOOP("CErrMsg", "Data stream not defined")},
    {err::FileNameNotDefined, QT_TRANSLATE_NOOP("CErrMsg", "File name not defined")},
    {err::FileNotFound, QT_TRANSLATE_NOOP("CErrMsg", "File not found")},
    {err::OpenFileFailed, QT_TRANSLATE_NOOP("CErrMsg", "Open file failed")},
    {err::GetFileSizeFailed, QT_TRANSLATE_NOOP("CErrMsg", "Get file size failed")},
    {err::ReadFileFailed, QT_TRANSLATE_NOOP("CErrMsg", "Reading file failed")},
    {err::ReadStreamFailed, QT_TRANSLATE_NOOP("CErrMsg", "Reading data stream failed")},
    {err::InputNameNotDefined, QT_TRANSLATE_NOOP("CErrMsg", "Input file name not defined")},
    {err::InputNotFound, QT_TRANSLATE_NOOP("CErrMsg", "Input file not found")},
    {err::OutputNameNotDefined, QT_TRANSLATE_NOOP("CErrMsg", "Output file name not defined")},
    {err::OutputNotFound, QT_TRANSLATE_NOOP("CErrMsg", "Output file not found")},
    {err::OutputMatchesInput,
     QT_TRANSLATE_NOOP("CErrMsg", "Output file name matches the name of the input file")},
    {err::OperationStopped, QT_TRANSLATE_NOOP("CErrMsg", "Operation was stopped")},
    {err::KeyingFailed, QT_TRANSLATE_NOOP("CErrMsg", "Failed to calculate data hash"),
     err::CheckValueHashFailed},
    {err::CheckValueDiffers, QT_TRANSLATE_NOOP("CErrMsg", "Corrupted data"), err::InputTruncated},
    {err::EngineNotInitialized, QT_TRANSLATE_NOOP("CErrMsg", "Cryptographic engine is not initialized")},
};

bool lookupOwn(std::uint32_t code, std::string& text)
{
    const auto found = std::ranges::find_if(
        CodeTexts, [code](const CodeText& row) { return row.first <= code && code <= row.last; });
    if (found == std::end(CodeTexts))
        return false;
    text = QCoreApplication::translate(Context, found->text).toStdString();
    return true;
}

bool lookupSystem(std::uint32_t code, std::string& text)
{
    const auto message = platform::systemMessage(code);
    if (message)
        text = QString::fromLocal8Bit(message->c_str()).trimmed().toStdString();
    return message.has_value();
}

} // namespace

bool CErrMsg::lookup(std::uint32_t category, std::uint32_t code, std::string& text) const
{
    switch (category) {
    case err::CategorySystem:
        return lookupSystem(code, text);
    case err::CategoryLibrary:
        return lookupOwn(code, text);
    default:
        return false;
    }
}

} // namespace thisapp
