#include "common/path/PathText.h"
#include "common/path/UrlPath.h"

#include <gtest/gtest.h>

#include <QSysInfo>

namespace {

using thisapp::pathText;
using thisapp::textPath;

TEST(PathText, EveryNameSurvives)
{
    for (const char* name :
         {"/a/b", "\u00E9 \u65E5", "\U0001F511", "x\U0001F512y\U0001F511", "caf\xE9", "\xFF\xFE"})
        EXPECT_EQ(textPath(pathText(name)), name);
    EXPECT_EQ(pathText("x\U0001F511y"), QString::fromUtf8("x\U0001F511y"));
    const QChar loneSurrogate(0xD83D);
    EXPECT_EQ(pathText(textPath(QString(loneSurrogate) + "x")).size(), 4) << "three bytes that are no letter";
}

TEST(UrlPath, IsThatOfAFileOnThisComputer)
{
    const std::pair<QString, const char*> rows[] = {
        {"file:///a%20b", "/a b"},
        {"file://localhost/a", "/a"},
        {"file://LocalHost/caf%E9", "/caf\xE9"},
        {"file://" + QSysInfo::machineHostName() + "/%F0%9F%94%91", "/\U0001F511"},
        {"file://elsewhere.invalid/a", ""},
        {"https://localhost/a", ""},
    };
    for (const auto& [url, path] : rows)
        EXPECT_EQ(textPath(thisapp::urlPath(QUrl(url))), path) << url.toStdString();
}

} // namespace
