#pragma once

#include "lib/secret/Secret.h"

#include <QString>

namespace thisapp {

/// Key and IV in hexadecimal with their names and the algorithm's, for a person to keep.
tessaly::SecretText keyAndIvText(const QString& algorithmName, const tessaly::SecretBytes& key,
                                 const tessaly::SecretBytes& iv);

} // namespace thisapp
