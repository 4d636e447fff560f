#include "common/settings/AppSettings.h"

#include "common/settings/Product.h"
#include "lib/platform/SettingsLocation.h"

#include <QFile>

namespace tessaly {
namespace {

/// An unknown product gets a place of its own, so that it never disturbs a known one.
std::string productName(std::uint32_t productId)
{
    return productId == QuilletProductId ? QuilletName : "Product" + std::to_string(productId);
}

QString storagePath(std::uint32_t productId)
{
    const std::string path = platform::settingsLocation(OrganisationName, productName(productId));
    return QFile::decodeName(QByteArray::fromStdString(path));
}

} // namespace

AppSettings::AppSettings(std::uint32_t productId)
    : QSettings(storagePath(productId), QSettings::NativeFormat), m_productId(productId)
{
}

} // namespace tessaly
