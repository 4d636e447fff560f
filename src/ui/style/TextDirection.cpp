#include "ui/style/TextDirection.h"

#include <QGuiApplication>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

namespace thisapp {

namespace {

constexpr QChar RightToLeftMark(0x200f);
constexpr QChar LeftToRightIsolate(0x2066);
constexpr QChar EndOfIsolate(0x2069);

} // namespace

QString leftToRight(const QString& text)
{
    return QGuiApplication::isRightToLeft() ? LeftToRightIsolate + text + EndOfIsolate : text;
}

QString atLanguageSide(const QString& line)
{
    if (!QGuiApplication::isRightToLeft() || line.isRightToLeft() || line.isEmpty())
        return line;
    return RightToLeftMark + leftToRight(line);
}

void followLanguageSide(QTextDocument& document)
{
    if (!QGuiApplication::isRightToLeft())
        return;
    QTextOption option = document.defaultTextOption();
    option.setTextDirection(Qt::RightToLeft);
    option.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    document.setDefaultTextOption(option);
    QTextBlockFormat format; // that of HTML has a direction of its own
    format.setLayoutDirection(Qt::RightToLeft);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
}

} // namespace thisapp
