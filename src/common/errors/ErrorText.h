#pragma once

#include "crypto/CryptoResult.h"

#include <QString>

namespace thisapp {

/// The one line that tells of an error, with its number, in the current language; empty for success.
/// Any thread.
QString errorText(const tessaly::crypto::CryptoResult& result);

} // namespace thisapp
