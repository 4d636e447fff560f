#include "common/path/PathText.h"
#include "common/path/UrlPath.h"

#include <gtest/gtest.h>

#include <QSysInfo>

namespace {

TEST(PathText, KeepsEveryCharacterBothWays)
{
    const QString lone(QChar(0xd800));
    for (const QString& text : {QString("/a b"), QString::fromUtf8("\xc3\xa4\xf0\x9d\x84\x9e\xef\xbf\xbf"),
                                QString::fromUtf8("\xf0\x9f\x94\x91x")})
        EXPECT_EQ(thisapp::pathText(thisapp::textPath(text)), text) << text.toStdString();
    EXPECT_EQ(thisapp::textPath(QString::fromUtf8("\xf0\x9d\x84\x9e")).string(), "\xf0\x9d\x84\x9e");
    EXPECT_TRUE(thisapp::pathText(thisapp::textPath(lone + "abc")).endsWith("abc"));
}

TEST(UrlPath, NamesFilesOfThisComputerOnly)
{
    const std::pair<QString, QString> rows[] = {
        {"file:///a%20b", "/a b"},
        {"file:///%C3%A4%23", QString::fromUtf8("/\xc3\xa4#")},
        {"file://LocalHost/a", "/a"},
        {"file://" + QSysInfo::machineHostName() + "/a", "/a"},
        {"file://elsewhere.invalid/a", ""},
        {"http://localhost/a", ""},
        {"/a", ""},
    };
    for (const auto& [url, path] : rows)
        EXPECT_EQ(thisapp::urlPath(QUrl(url)), path) << url.toStdString();
}

} // namespace
