#include "lib/i18n/resource/LocaleResLoaderPropFile.h"

#include "lib/file/PropertiesFileReader.h"

namespace tessaly::i18n::internal {

namespace {

constexpr char ContextEnd = '|';

} // namespace

LoadResult LocaleResLoaderPropFile::load(const std::wstring& path, ILocaleResLoaderCallback& callback) const
{
    const auto sink = [&](const std::string& key, const std::string& value) {
        const auto end = key.find(ContextEnd);
        callback.onItem(key.substr(0, end), key.substr(end + 1), value);
    };
    const auto filter = [](const std::string& key) { return key.find(ContextEnd) != std::string::npos; };
    file::internal::PropertiesFileReader reader(ResourceLimits);
    return {reader.read(path, sink, filter, callback.variables()), path};
}

} // namespace tessaly::i18n::internal
