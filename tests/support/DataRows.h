#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace test {

using Row = std::vector<std::string>;

/// The rows of a text file in tests/data, or of all files in a folder there, split into fields at
/// blanks. Lines that begin with '#' are skipped; "-" stands for an empty field. With tabs in it a line is
/// split at these.
inline std::vector<Row> dataRows(const std::string& name)
{
    const std::filesystem::path path = std::filesystem::path(TEST_DATA_DIR) / name;
    std::stringstream text;
    if (std::filesystem::is_directory(path))
        for (const auto& entry : std::filesystem::directory_iterator(path))
            text << std::ifstream(entry.path()).rdbuf();
    else
        text << std::ifstream(path).rdbuf();
    std::vector<Row> rows;
    for (std::string line; std::getline(text, line);) {
        std::istringstream fields(line);
        Row row;
        const bool hasTabs = line.find('\t') != std::string::npos;
        for (std::string field; hasTabs ? bool(std::getline(fields, field, '\t')) : bool(fields >> field);)
            row.push_back(field == "-" ? "" : field);
        if (!line.starts_with('#'))
            rows.push_back(row);
    }
    return rows;
}

} // namespace test
