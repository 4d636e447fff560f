#include "common/settings/CAppSettings.h"

#include "common/settings/Product.h"

namespace {

std::uint32_t applicationProductId = tessaly::QuilletProductId;

} // namespace

CAppSettings::CAppSettings() : AppSettings(applicationProductId)
{
}

void CAppSettings::setApplicationProductId(std::uint32_t productId)
{
    applicationProductId = productId;
}
