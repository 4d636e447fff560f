#include "app/errors/CErrMsg.h"

#include "lib/err/ErrorCodes.h"
#include "lib/err/ErrorTexts.h"
#include "lib/platform/SystemMessage.h"

#include <QCoreApplication>
#include <QString>

namespace thisapp {

namespace {

using namespace tessaly;

constexpr char Context[] = "CErrMsg";

bool lookupOwn(std::uint32_t code, std::string& text)
{
    const char* source = err::errorText(code);
    if (source != nullptr)
        text = QCoreApplication::translate(Context, source).toStdString();
    return source != nullptr;
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
