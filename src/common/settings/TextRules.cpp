#include "common/settings/TextRules.h"

#include <QDir>
#include <QUrl>

namespace thisapp {

namespace {

QString pathOf(const QString& text)
{
    if (text == QLatin1String("~") || text.startsWith(QLatin1String("~/")))
        return QDir::homePath() + text.mid(1);
    if (!text.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return text;
    QUrl url(text);
    if (url.host() == QLatin1String("localhost"))
        url.setHost(QString());
    return url.host().isEmpty() ? url.toLocalFile() : QString();
}

} // namespace

QRegularExpression namePartPattern()
{
    return QRegularExpression(QStringLiteral("[^/\\\\\\x00-\\x1f]*"));
}

bool isNamePart(const QString& text)
{
    static const QRegularExpression whole(QRegularExpression::anchoredPattern(namePartPattern().pattern()));
    return whole.match(text).hasMatch();
}

std::optional<QString> folderPath(const QString& text)
{
    if (text.isEmpty())
        return text;
    const QString path = pathOf(text);
    return QDir::isAbsolutePath(path) && !path.startsWith(QLatin1Char(':')) ? std::optional(path)
                                                                            : std::nullopt;
}

} // namespace thisapp
