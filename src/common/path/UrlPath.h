#pragma once

#include <QString>
#include <QUrl>

namespace thisapp {

/// The path of a file on this computer; empty for any other URL. Unlike QUrl's own answer with every byte
/// of a name that is not UTF-8.
QString urlPath(const QUrl& url);

} // namespace thisapp
