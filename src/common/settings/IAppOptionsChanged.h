#pragma once

#include <QString>

#include <cstdint>

namespace thisapp {

struct SAppOptions;

/// What came of options that were to take effect.
struct SAppliedOptions
{
    QString problem;            ///< a sentence on what is not in effect; empty when all is
    std::uint32_t localeId = 0; ///< of the language that is in use now
};

/// Receives the options that the user accepted or applied, and makes them take effect.
class IAppOptionsChanged
{
public:
    virtual ~IAppOptionsChanged() = default;
    virtual SAppliedOptions appOptionsChanged(const SAppOptions& options) = 0;
};

} // namespace thisapp
