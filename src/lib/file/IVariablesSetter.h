#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaly::file {

/// Supplies the values of the variables in a text.
class IVariablesSetter
{
public:
    virtual ~IVariablesSetter() = default;

    /// The value of the variable, or nothing when there is no such variable.
    virtual std::optional<std::string> variable(std::string_view name) const = 0;
};

} // namespace tessaly::file
