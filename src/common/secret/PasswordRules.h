#pragma once

#include <string_view>

namespace thisapp {

/// Why a password cannot be taken: a character in it that no password field lets one type again, such
/// as a pasted line break. An English sentence, translated under the context "PasswordRules"; null
/// for a password that can be taken. Any thread; keeps no copy.
const char* passwordProblem(std::string_view utf8);

} // namespace thisapp
