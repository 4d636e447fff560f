#pragma once

#include "lib/platform/Path.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace test {

/// A new empty folder, removed with all that is in it.
class TempFolder
{
public:
    TempFolder()
    {
        std::random_device random;
        m_path = std::filesystem::temp_directory_path() / ("quillet-" + std::to_string(random()));
        if (!std::filesystem::create_directory(m_path))
            throw std::runtime_error("no temporary folder");
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string operator/(std::string_view name) const { return (m_path / name).string(); }
    const std::filesystem::path& path() const { return m_path; }

    std::filesystem::path at(std::string_view name) const { return m_path / name; }
    /// The path as the readers take it.
    std::wstring wide(std::string_view name = {}) const { return tessaly::platform::widePath(*this / name); }
    /// Writes the file anew, in folders that are made, and gives its path. The name may be a whole path.
    std::wstring write(std::string_view name, std::string_view content) const
    {
        std::filesystem::create_directories((m_path / name).parent_path());
        std::ofstream(*this / name, std::ios::binary) << content;
        return wide(name);
    }

private:
    std::filesystem::path m_path;
};

inline std::string readFile(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

/// Without their line ends; a last line without one counts too.
inline std::vector<std::string> readLines(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

} // namespace test
