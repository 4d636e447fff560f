#pragma once

#include <memory>
#include <string_view>

namespace tessaly::i18n {

/// A translated UTF-8 text, empty when there is none, and what keeps it in memory.
struct StrBundleText
{
    std::string_view text;
    std::shared_ptr<const void> owner;
};

/// Answers look-ups of translated texts. For any thread.
class IStrBundle
{
public:
    virtual ~IStrBundle() = default;

    virtual StrBundleText lookup(std::string_view context, std::string_view source) const = 0;
};

} // namespace tessaly::i18n
