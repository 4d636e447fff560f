#pragma once

#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <utility>

namespace test {

/// A field in which \n, \r, \t, \\ and bytes such as \xFF are written as in C++.
inline std::string unescaped(const std::string& field)
{
    const std::map<char, char> letters = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'\\', '\\'}};
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\') {
            text += field[i];
        } else if (field.at(++i) == 'x') {
            text += static_cast<char>(std::stoi(field.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            text += letters.at(field[i]);
        }
    }
    return text;
}

/// What stands before and behind the bar in a text.
inline std::pair<std::string, std::string> halves(const std::string& text)
{
    const auto bar = text.find('|');
    return {text.substr(0, bar), text.substr(bar + 1)};
}

/// A function that is given a text, or nothing, and gives one, or nothing.
class Step
{
public:
    template <class Function>
    Step(Function function)
        : m_run([function](const std::string& text) -> std::string {
              const auto call = [&] {
                  if constexpr (std::is_invocable_v<const Function&, const std::string&>)
                      return function(text);
                  else
                      return function();
              };
              if constexpr (std::is_void_v<decltype(call())>) {
                  call();
                  return {};
              } else {
                  return call();
              }
          })
    {
    }
    std::string operator()(const std::string& text) const { return m_run(text); }

private:
    std::function<std::string(const std::string&)> m_run;
};

/// Takes the steps of a table, one a row: its name, what it is given, what has to come of it. Both may be
/// left out for nothing.
inline void walk(const std::string& table, const std::map<std::string, Step>& steps)
{
    const std::vector<Row> rows = dataRows(table);
    EXPECT_FALSE(rows.empty()) << table;
    for (Row row : rows) {
        row.resize(3);
        EXPECT_EQ(steps.at(row[0])(unescaped(row[1])), unescaped(row[2])) << testing::PrintToString(row);
    }
}

} // namespace test
