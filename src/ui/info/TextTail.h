#pragma once

#include <QString>

namespace thisapp {

struct TextTail
{
    bool ok;
    QString text; ///< the reason when not ok
};

/// The end of a UTF-8 text file. Of a file longer than `maxBytes`, only its last lines that fit are
/// read and kept in memory.
TextTail readTextTail(const QString& path, qint64 maxBytes = 1 << 20);

} // namespace thisapp
