#include "ui/algorithms/CCryptoAlgProvider.h"

#include "crypto/catalogue/Catalogue.h"

namespace thisapp {

using namespace tessaly;

int CCryptoAlgProvider::count() const
{
    return static_cast<int>(crypto::catalogue().size());
}

bool CCryptoAlgProvider::entry(int index, AlgSelection& selection, bool& enabled) const
{
    if (index < 0 || index >= count())
        return false;
    selection = {crypto::CryptoPPLibraryId, crypto::catalogue()[static_cast<std::size_t>(index)].id};
    enabled = true;
    return true;
}

QString CCryptoAlgProvider::displayName(const AlgSelection& selection) const
{
    if (!isValid(selection))
        return {};
    const std::string_view name = crypto::displayName(selection.algorithm);
    return QString::fromLatin1(name.data(), static_cast<int>(name.size()));
}

bool CCryptoAlgProvider::isValid(const AlgSelection& selection) const
{
    return selection.library == crypto::CryptoPPLibraryId && crypto::findAlgorithm(selection.algorithm);
}

} // namespace thisapp
