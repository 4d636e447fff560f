#include "lib/i18n/resource/LocaleResLoaderPropFile.h"

#include "lib/file/PropertiesFileReader.h"
#include "lib/i18n/resource/TranslationLimits.h"

namespace tessaly::i18n::internal {

namespace {

constexpr char ContextEnd = '|';

} // namespace

ResultCode LocaleResLoaderPropFile::load(const std::wstring& path, ILocaleResLoaderCallback& callback) const
{
    const auto sink = [&](const std::string& key, const std::string& value) {
        const auto end = key.find(ContextEnd);
        callback.onItem(key.substr(0, end), key.substr(end + 1), value);
    };
    const auto filter = [](const std::string& key) { return key.find(ContextEnd) != std::string::npos; };
    return file::internal::PropertiesFileReader(ResourceLimits)
        .read(path, sink, filter, callback.variables());
}

} // namespace tessaly::i18n::internal
