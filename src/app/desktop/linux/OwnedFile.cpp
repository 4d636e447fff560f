#include "app/desktop/linux/OwnedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <utility>

namespace thisapp::desktop {

namespace {

constexpr qint64 MaxSize = 65536; ///< bytes; ours are far smaller
constexpr auto ExecutableBits = QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;
constexpr auto PlainBits = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser |
                           QFile::ReadGroup | QFile::ReadOther;

std::string readAll(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(MaxSize).toStdString();
}

bool isExecutable(const QString& path)
{
    return QFile::permissions(path).testFlag(QFile::ExeOwner);
}

} // namespace

OwnedFile::OwnedFile(std::string path) : m_path(std::move(path))
{
}

bool OwnedFile::isForeign() const
{
    const QFileInfo info(QFile::decodeName(m_path.c_str()));
    if (info.isSymLink())
        return true;
    const std::string line = "\n" + std::string(Marker) + "\n";
    return info.exists() && ("\n" + readAll(info.filePath())).find(line) == std::string::npos;
}

bool OwnedFile::write(const std::string& content, bool executable) const
{
    const QString path = QFile::decodeName(m_path.c_str());
    if (isForeign() || (readAll(path) == content && isExecutable(path) == executable))
        return true;
    QSaveFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content.data(), static_cast<qint64>(content.size())) >= 0 &&
           file.setPermissions(executable ? PlainBits | ExecutableBits : PlainBits) && file.commit();
}

bool OwnedFile::remove() const
{
    const QString path = QFile::decodeName(m_path.c_str());
    return !QFileInfo::exists(path) || isForeign() || QFile::remove(path);
}

} // namespace thisapp::desktop
