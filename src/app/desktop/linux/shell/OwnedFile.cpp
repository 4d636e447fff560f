#include "app/desktop/linux/shell/OwnedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>
#include <utility>

namespace thisapp::desktop {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Marker = "# Kept by Quillet; its options switch this entry off.\n";
constexpr std::string_view ProgramLine = "# Program: ";
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

/// Where the line after the marker begins; npos without one.
std::size_t markerEnd(const std::string& content)
{
    std::size_t at = content.find(Marker);
    while (at != std::string::npos && at > 0 && content[at - 1] != '\n')
        at = content.find(Marker, at + 1);
    return at == std::string::npos ? at : at + Marker.size();
}

} // namespace

std::string OwnedFile::head(const std::string& program)
{
    const QByteArray encoded = QByteArray::fromStdString(program).toPercentEncoding("/ ");
    return std::string(Marker).append(ProgramLine).append(encoded.toStdString()).append("\n");
}

std::vector<OwnedFile> OwnedFile::in(const std::string& folder)
{
    std::vector<OwnedFile> files;
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (OwnedFile file(entry->path().string()); !file.isForeign())
            files.push_back(std::move(file));
    return files;
}

OwnedFile::OwnedFile(std::string path) : m_path(std::move(path))
{
}

bool OwnedFile::isForeign() const
{
    const QFileInfo info(QFile::decodeName(m_path.c_str()));
    return info.isSymLink() || (info.exists() && markerEnd(readAll(info.filePath())) == std::string::npos);
}

std::string OwnedFile::program() const
{
    const std::string content = readAll(QFile::decodeName(m_path.c_str()));
    const std::size_t line = markerEnd(content);
    if (line == std::string::npos || content.compare(line, ProgramLine.size(), ProgramLine) != 0)
        return {};
    const std::size_t begin = line + ProgramLine.size();
    const std::string encoded = content.substr(begin, content.find('\n', begin) - begin);
    return QByteArray::fromPercentEncoding(QByteArray::fromStdString(encoded)).toStdString();
}

bool OwnedFile::write(const std::string& content, bool executable) const
{
    const QString path = QFile::decodeName(m_path.c_str());
    if (isForeign() || (readAll(path) == content && isExecutable(path) == executable))
        return true;
    QSaveFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content.data(), static_cast<qint64>(content.size())) >= 0 && file.flush() &&
           file.setPermissions(executable ? PlainBits | ExecutableBits : PlainBits) && file.commit();
}

bool OwnedFile::remove(const std::string& base) const
{
    std::error_code error;
    if (!isForeign() && fs::remove(m_path, error))
        removeEmptyFolders(fs::path(m_path).parent_path().string(), base);
    return !error;
}

void removeEmptyFolders(const std::string& folder, const std::string& base)
{
    std::error_code error;
    fs::path empty = folder;
    while (!error && empty != base && empty.string().starts_with(base) && fs::is_empty(empty, error) &&
           fs::remove(empty, error))
        empty = empty.parent_path();
}

} // namespace thisapp::desktop
