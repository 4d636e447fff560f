#pragma once

#include "common/settings/AppSettings.h"

/// This program's own settings.
class CAppSettings : public tessaly::AppSettings
{
    Q_OBJECT

public:
    CAppSettings();

    /// The product whose settings every later CAppSettings opens; start-up sets it before the first.
    static void setApplicationProductId(std::uint32_t productId);
};
