#pragma once

#include "crypto/catalogue/IAlgInfo.h"

#include <QString>

namespace thisapp {

/// One algorithm's parameters as text, opened by a separator line; every line ends with "\r\n".
QString algInfoReport(const QString& name, const tessaly::crypto::AlgRecord& record);

} // namespace thisapp
