#include "app/commandline/Arguments.h"

#include "common/path/PathText.h"
#include "common/path/UrlPath.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace thisapp {

namespace {

bool isUrl(const char* argument)
{
    std::error_code ignored;
    return std::string_view(argument).starts_with("file://") && !std::filesystem::exists(argument, ignored);
}

QString argumentText(const char* argument)
{
    const QString path = isUrl(argument) ? urlPath(QUrl::fromEncoded(argument)) : QString();
    return path.isEmpty() ? pathText(argument) : path;
}

} // namespace

QStringList argumentTexts(std::span<const char* const> arguments)
{
    QStringList texts;
    for (const char* argument : arguments)
        texts += argumentText(argument);
    return texts;
}

} // namespace thisapp
