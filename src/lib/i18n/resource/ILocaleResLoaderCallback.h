#pragma once

#include "lib/file/IVariablesSetter.h"
#include "lib/i18n/resource/ITrResReadCallback.h"

namespace tessaly::i18n {

/// The caller's side of loading a translation resource.
class ILocaleResLoaderCallback : public ITrResReadCallback
{
public:
    /// Values for the variables in the translations; null leaves the translations as they are.
    virtual const file::IVariablesSetter* variables() const = 0;
};

} // namespace tessaly::i18n
