#pragma once

#include "lib/file/IVariablesSetter.h"
#include "lib/i18n/IStrBundle.h"
#include "lib/i18n/ItemNameCmp.h"
#include "lib/i18n/resource/ILocaleResLoader.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <map>
#include <memory>
#include <string>

namespace tessaly::i18n::internal {

/// The texts of one translation. A load fills a map of its own and then swaps it in, so that the lock
/// is held for no longer than it takes to copy a pointer and look-ups never wait for a file.
class StrBundleTrMgr final : public IStrBundle
{
public:
    StrBundleText lookup(std::string_view context, std::string_view source) const override;

    /// Replaces the texts by those of the resource; a failure leaves them as they were.
    LoadResult load(const ILocaleResLoader& loader, const std::wstring& path,
                    const file::IVariablesSetter* variables = nullptr);
    /// Leaves no text at all.
    void clear();

private:
    using Texts = std::map<std::string, std::string, ItemNameCmp>;
    using Contexts = std::map<std::string, Texts, ItemNameCmp>;
    class Loading;

    sync::internal::SafeData<sync::Locker, std::shared_ptr<const Contexts>> m_contexts{
        std::make_shared<const Contexts>()};
};

} // namespace tessaly::i18n::internal
