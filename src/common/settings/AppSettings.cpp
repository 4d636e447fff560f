#include "common/settings/AppSettings.h"

#include "common/settings/Product.h"
#include "common/settings/SettingsFile.h"
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
    : AppSettings(productId, storagePath(productId), removeSerialisedValues(storagePath(productId)))
{
}

/// A file that can be neither read safely nor mended is left alone: all settings have their defaults.
AppSettings::AppSettings(std::uint32_t productId, const QString& path, int removedLines)
    : QSettings(removedLines < 0 ? path + QStringLiteral(".unreadable/") : path, QSettings::NativeFormat),
      m_removedLines(removedLines),
      m_productId(productId)
{
}

bool AppSettings::save()
{
    sync();
    return status() != AccessError;
}

} // namespace tessaly
