#include "io/HiddenName.h"

#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <utility>

namespace tessaly::io {

namespace {

namespace fs = std::filesystem;

/// Begins every hidden name of ours, and nobody else's.
constexpr const char* Prefix = ".quillet-partial-";

using Names = std::map<fs::path, std::shared_ptr<const FilePlace>>;
using NamesInUse = sync::internal::SafeData<sync::Locker, Names>;

/// Never destroyed: a worker may outlive main.
NamesInUse& namesInUse()
{
    static auto* names = [] {
        std::atexit(HiddenName::removeAll);
        return new NamesInUse;
    }();
    return *names;
}

} // namespace

fs::path HiddenName::fresh()
{
    std::random_device random;
    std::string name = Prefix;
    for (int word = 0; word < 4; ++word)
        name += std::to_string(random());
    return name;
}

void HiddenName::choose(std::shared_ptr<const FilePlace> place)
{
    release();
    fs::path name = fresh();
    namesInUse().with([&](Names& names) { names.emplace(name, place); });
    m_place = std::move(place);
    m_name = std::move(name);
}

void HiddenName::release()
{
    if (!isSet())
        return;
    namesInUse().with([this](Names& names) { names.erase(m_name); });
    m_name.clear();
    m_place.reset();
}

platform::FileStatus HiddenName::status() const
{
    return isSet() ? m_place->folder().status(m_name) : platform::FileStatus{};
}

bool HiddenName::remove(const platform::FileStatus& file)
{
    const platform::FileStatus there = status();
    const bool isAnother = there.exists() && !there.sameFile(file);
    const bool removed = isSet() && !isAnother && m_place->folder().remove(m_name).ok();
    release();
    return removed;
}

void HiddenName::removeForsaken(const platform::Folder& folder)
{
    for (const fs::path& name : folder.ownFiles(Prefix)) {
        platform::File file;
        if (folder.openForReading(name, file).ok() && file.tryLock(platform::Lock::Exclusive).ok())
            static_cast<void>(folder.remove(name));
    }
}

void HiddenName::removeAll()
{
    const Names names = namesInUse().with([](Names& inUse) { return std::exchange(inUse, {}); });
    for (const auto& [name, place] : names)
        static_cast<void>(place->folder().remove(name));
}

} // namespace tessaly::io
