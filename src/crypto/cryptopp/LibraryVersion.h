#pragma once

#include <string>

namespace tessaly::cryptopp {

/// The version of the Crypto++ library in use, for example "8.7.0".
std::string libraryVersion();

} // namespace tessaly::cryptopp
