#pragma once

#include "crypto/cryptopp/RC6LongKey.h"

#include <cryptopp/aria.h>
#include <cryptopp/blowfish.h>
#include <cryptopp/camellia.h>
#include <cryptopp/cast.h>
#include <cryptopp/des.h>
#include <cryptopp/gost.h>
#include <cryptopp/idea.h>
#include <cryptopp/kalyna.h>
#include <cryptopp/mars.h>
#include <cryptopp/modes.h>
#include <cryptopp/panama.h>
#include <cryptopp/rc5.h>
#include <cryptopp/rc6.h>
#include <cryptopp/rijndael.h>
#include <cryptopp/salsa.h>
#include <cryptopp/seed.h>
#include <cryptopp/serpent.h>
#include <cryptopp/shacal2.h>
#include <cryptopp/simon.h>
#include <cryptopp/skipjack.h>
#include <cryptopp/sm4.h>
#include <cryptopp/sosemanuk.h>
#include <cryptopp/speck.h>
#include <cryptopp/tea.h>
#include <cryptopp/threefish.h>
#include <cryptopp/twofish.h>

/// The names that the catalogue's rows use: Crypto++'s ciphers and our own beside them.
namespace tessaly::cryptopp::ciphers {

using namespace CryptoPP;
using cryptopp::RC6LongKey;

} // namespace tessaly::cryptopp::ciphers
