#pragma once

#include <string>

namespace tessaly::i18n {

/// Takes the texts of a translation resource, one by one, all in UTF-8.
class ITrResReadCallback
{
public:
    virtual ~ITrResReadCallback() = default;

    virtual void onItem(const std::string& context, const std::string& source,
                        const std::string& translation) = 0;
};

} // namespace tessaly::i18n
