#include "ui/info/TextTail.h"

#include <QFile>

namespace thisapp {

TextTail readTextTail(const QString& path, qint64 maxBytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {false, file.errorString()};
    const bool cut = file.size() > maxBytes && file.seek(file.size() - maxBytes);
    const QByteArray bytes = file.read(maxBytes);
    // The first line of a cut text is most likely torn, perhaps inside a character.
    const int start = cut ? bytes.indexOf('\n') + 1 : 0;
    return {true, QString::fromUtf8(bytes.constData() + start, bytes.size() - start)};
}

} // namespace thisapp
