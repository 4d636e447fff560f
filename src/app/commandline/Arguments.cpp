#include "app/commandline/Arguments.h"

#include "common/path/PathText.h"
#include "common/path/UrlPath.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <QByteArray>

namespace thisapp {

using namespace tessaly;

namespace {

bool isUrl(const std::string& argument)
{
    return argument.starts_with("file://") &&
           !platform::fileStatus(platform::pathFromNative(argument)).exists();
}

QString argumentText(const std::string& argument)
{
    const QString path =
        isUrl(argument) ? urlPath(QUrl::fromEncoded(QByteArray::fromStdString(argument))) : QString();
    return path.isEmpty() ? pathText(platform::pathFromNative(argument)) : path;
}

} // namespace

QStringList argumentTexts(const std::vector<std::string>& arguments)
{
    QStringList texts;
    for (const std::string& argument : arguments)
        texts += argumentText(argument);
    return texts;
}

} // namespace thisapp
