#pragma once

#include <QString>

#include <cstdint>

namespace thisapp {

enum class Operation : std::uint32_t {
    Encrypt = 1,
    Decrypt = 2,
};

/// What the program says differently for the two operations; source texts, see translated().
struct OperationTexts
{
    const char* algorithmNotDefined;
    const char* selectFile;
    const char* fileNotDefined;
    const char* fileNotFound;
    const char* engineFailed;
    const char* startFailed;
    const char* step;
    const char* cancelled;
    const char* succeeded;
    const char* failed;
};

const OperationTexts& operationTexts(Operation operation);

/// One of the texts in the current language.
QString translated(const char* operationText);

} // namespace thisapp
