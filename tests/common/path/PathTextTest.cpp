#include "common/path/PathText.h"
#include "common/path/UrlPath.h"
#include "support/Walk.h"

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
    const auto path = [](const std::string& url) {
        const QString ofThisComputer =
            QString::fromStdString(url).replace("HERE", QSysInfo::machineHostName());
        return textPath(thisapp::urlPath(QUrl(ofThisComputer))).string();
    };
    test::walk("urls.txt", {{"path of", path}});
}

} // namespace
