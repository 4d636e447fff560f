#include "crypto/cryptopp/LibraryVersion.h"

#include <cryptopp/cryptlib.h>

namespace tessaly::cryptopp {

std::string libraryVersion()
{
    const int version = CryptoPP::LibraryVersion();
    return std::to_string(version / 100) + '.' + std::to_string(version / 10 % 10) + '.' +
           std::to_string(version % 10);
}

} // namespace tessaly::cryptopp
