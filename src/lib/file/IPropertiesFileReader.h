#pragma once

#include "lib/err/ResultCode.h"
#include "lib/file/IVariablesSetter.h"

#include <functional>
#include <string>

namespace tessaly::file {

/// Reads a file of key and value pairs.
class IPropertiesFileReader
{
public:
    using PairSink = std::function<void(const std::string& key, const std::string& value)>;
    /// Whether pairs with this key are wanted.
    using KeyFilter = std::function<bool(const std::string& key)>;

    virtual ~IPropertiesFileReader() = default;

    /// Hands every pair to the sink, in file order; after a failure these are the pairs before it.
    /// An empty filter passes every key, null variables leave the values as they are.
    virtual ResultCode read(const std::wstring& path, const PairSink& sink, const KeyFilter& filter,
                            const IVariablesSetter* variables) = 0;
    virtual ResultCode read(const std::wstring& path, const PairSink& sink, const KeyFilter& filter) = 0;
    virtual ResultCode read(const std::wstring& path, const PairSink& sink) = 0;
};

} // namespace tessaly::file
