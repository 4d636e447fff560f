#pragma once

#include "lib/file/IVariablesSetter.h"

namespace test {

/// Knows one variable, "app", whose value looks like a variable itself.
class AppVariable final : public tessaly::file::IVariablesSetter
{
public:
    std::optional<std::string> variable(std::string_view name) const override
    {
        return name == "app" ? std::optional<std::string>("${app}!") : std::nullopt;
    }
};

} // namespace test
