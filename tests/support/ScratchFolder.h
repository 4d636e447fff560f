#pragma once

#include <QString>
#include <QTemporaryDir>

#include <fstream>
#include <string>
#include <string_view>

namespace test {

/// A folder of its own for one test, removed with its files at the end.
class ScratchFolder
{
public:
    std::wstring path(const std::string& name = {}) const
    {
        return m_folder.filePath(QString::fromStdString(name)).toStdWString();
    }

    /// Writes the file anew and gives its path.
    std::wstring write(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(nativePath(name), std::ios::binary) << bytes;
        return path(name);
    }

    std::string nativePath(const std::string& name = {}) const
    {
        return m_folder.filePath(QString::fromStdString(name)).toStdString();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace test
