#pragma once

#include <string>
#include <vector>

namespace cli {

/// The problem with a word that is none of the known ones, and behind it "; did you mean AES-256?" where it
/// looks like some of them, else the other advice. Letter case, hyphens and underscores make no difference.
std::string withSuggestion(const std::string& problem, const std::string& word,
                           const std::vector<std::string>& known, const char* otherwise);

} // namespace cli
