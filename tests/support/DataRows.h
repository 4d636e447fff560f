#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace test {

using Row = std::vector<std::string>;

/// The rows of a text file in tests/data, split into fields at blanks. Empty lines and those that
/// begin with '#' are skipped; "-" stands for an empty field.
inline std::vector<Row> dataRows(const std::string& name)
{
    std::ifstream file(std::string(TEST_DATA_DIR "/") + name);
    if (!file)
        throw std::runtime_error("no " + name);
    std::vector<Row> rows;
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        Row row;
        for (std::string field; fields >> field;)
            row.push_back(field == "-" ? "" : field);
        if (!row.empty() && !row.front().starts_with('#'))
            rows.push_back(row);
    }
    return rows;
}

} // namespace test
