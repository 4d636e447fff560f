#include "lib/i18n/StrBundleTrMgr.h"

#include <utility>

namespace tessaly::i18n::internal {

/// Collects the texts of a resource.
class StrBundleTrMgr::Loading final : public ILocaleResLoaderCallback
{
public:
    explicit Loading(const file::IVariablesSetter* variables) : m_variables(variables) {}

    void onItem(const std::string& context, const std::string& source,
                const std::string& translation) override
    {
        (*m_contexts)[context][source] = translation;
    }

    const file::IVariablesSetter* variables() const override { return m_variables; }

    std::shared_ptr<const Contexts> take() { return std::move(m_contexts); }

private:
    const file::IVariablesSetter* m_variables;
    std::shared_ptr<Contexts> m_contexts = std::make_shared<Contexts>();
};

StrBundleText StrBundleTrMgr::lookup(std::string_view context, std::string_view source) const
{
    auto contexts = m_contexts.get();
    const auto texts = contexts->find(context);
    if (texts == contexts->end())
        return {};
    const auto text = texts->second.find(source);
    if (text == texts->second.end())
        return {};
    return {text->second, std::move(contexts)};
}

LoadResult StrBundleTrMgr::load(const ILocaleResLoader& loader, const std::wstring& path,
                                const file::IVariablesSetter* variables)
{
    Loading loading(variables);
    LoadResult result = loader.load(path, loading);
    if (result.ok())
        m_contexts.set(loading.take());
    return result;
}

void StrBundleTrMgr::clear()
{
    m_contexts.set(std::make_shared<const Contexts>());
}

} // namespace tessaly::i18n::internal
