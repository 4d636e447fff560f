#include "crypto/Guard.h"

#include "crypto/Engine.h"
#include "crypto/cryptopp/LibraryVersion.h"

#include <cryptopp/cryptlib.h>

#include <regex>
#include <stdexcept>

namespace {

using namespace test;
using tessaly::crypto::guarded;

TEST(Guard, TellsWhatWasThrownAndWhere)
{
    static constexpr auto Stage = err::library(err::KeyingFailed);
    const auto result = [](CryptoPP::Exception::ErrorType type) {
        return CryptoResult({err::CategoryCryptoPP, static_cast<std::uint32_t>(type)}, Stage);
    };
    EXPECT_EQ(guarded(Stage, [] { throw CryptoPP::InvalidArgument("x"); }),
              result(CryptoPP::Exception::INVALID_ARGUMENT));
    EXPECT_EQ(guarded(Stage, [] { throw std::runtime_error("x"); }),
              result(CryptoPP::Exception::OTHER_ERROR));
    EXPECT_EQ(guarded(Stage, [] { throw 1; }), result(CryptoPP::Exception::OTHER_ERROR));
    EXPECT_TRUE(guarded(Stage, [] {}).ok());
}

TEST(LibraryVersion, HasThreeNumbersOfOneDigit)
{
    EXPECT_TRUE(std::regex_match(tessaly::cryptopp::libraryVersion(), std::regex("\\d\\.\\d\\.\\d")));
}

} // namespace
