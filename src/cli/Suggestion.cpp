#include "cli/Suggestion.h"

#include <algorithm>
#include <cctype>

namespace cli {

namespace {

std::string essence(const std::string& word)
{
    std::string letters;
    for (const char c : word)
        if (c != '-' && c != '_')
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return letters;
}

/// How many letters have to be inserted, dropped, replaced or swapped with their neighbour.
std::size_t distance(const std::string& a, const std::string& b)
{
    std::vector<std::vector<std::size_t>> cost(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i)
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = i + j;
                continue;
            }
            const std::size_t replaced = cost[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            cost[i][j] = std::min({replaced, cost[i - 1][j] + 1, cost[i][j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
        }
    return cost[a.size()][b.size()];
}

std::string listed(const std::vector<std::string>& words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i)
        text += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
    return text;
}

std::vector<std::string> alikeOf(const std::string& word, const std::vector<std::string>& known)
{
    const std::string wanted = essence(word);
    if (wanted.size() < 2 || wanted.size() > 40)
        return {};
    std::size_t best = std::max<std::size_t>(1, wanted.size() / 3);
    std::vector<std::string> alike;
    for (const std::string& one : known) {
        const std::string letters = essence(one);
        const std::size_t apart = letters.starts_with(wanted) ? 1 : distance(wanted, letters);
        if (apart < best)
            alike.clear();
        if (apart <= best)
            alike.push_back(one);
        best = std::min(best, apart);
    }
    return alike;
}

} // namespace

std::string withSuggestion(const std::string& problem, const std::string& word,
                           const std::vector<std::string>& known, const char* otherwise)
{
    const std::vector<std::string> alike = alikeOf(word, known);
    return problem + "; " + (alike.empty() ? otherwise : "did you mean " + listed(alike) + "?");
}

} // namespace cli
