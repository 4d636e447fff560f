#pragma once

#include "lib/file/IVariablesSetter.h"

#include <string>
#include <string_view>

namespace tessaly::file {

/// The text with each "${name}" replaced by its value. An unknown name stays as written, and a value
/// is not searched for further variables.
std::string expandVariables(std::string_view text, const IVariablesSetter& variables);

} // namespace tessaly::file
