#include "lib/file/Variables.h"

namespace tessaly::file {

std::string expandVariables(std::string_view text, const IVariablesSetter& variables)
{
    std::string expanded;
    for (auto end = text.find('}'); end != std::string_view::npos; end = text.find('}')) {
        const std::string_view piece = text.substr(0, end);
        const auto start = piece.rfind("${");
        const auto value =
            start == std::string_view::npos ? std::nullopt : variables.variable(piece.substr(start + 2));
        if (value)
            expanded.append(piece.substr(0, start)).append(*value);
        else
            expanded.append(text.substr(0, end + 1));
        text.remove_prefix(end + 1);
    }
    return expanded.append(text);
}

} // namespace tessaly::file
