#pragma once

#include "io/IStreamBytes.h"

namespace tessaly::io {

/// A source of bytes that can be read more than once.
class IRewindableBytes : public IStreamBytes
{
public:
    /// Reads from the start once more, up to the same size.
    virtual ResultCode rewind() = 0;
};

} // namespace tessaly::io
