#pragma once

namespace thisapp {

struct SAppOptions;

/// Receives the options that the user accepted or applied, and makes them take effect.
class IAppOptionsChanged
{
public:
    virtual ~IAppOptionsChanged() = default;
    virtual void appOptionsChanged(const SAppOptions& options) = 0;
};

} // namespace thisapp
