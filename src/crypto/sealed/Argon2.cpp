#include "crypto/sealed/Argon2.h"

#include "crypto/Guard.h"
#include "lib/platform/Memory.h"

#include <argon2.h>

#include <string_view>
#include <utility>

namespace tessaly::crypto {

namespace {

constexpr std::size_t RootSize = 64;

SecretBytes takeBytes(SecretText password)
{
    const std::string_view text = password.view();
    return {text.begin(), text.end()};
}

CryptoResult resultOf(int code)
{
    if (code == ARGON2_OK)
        return {};
    if (code == ARGON2_MEMORY_ALLOCATION_ERROR)
        return {platform::outOfMemory(), err::library(err::KeyDerivationFailed)};
    return err::KeyDerivationFailed;
}

/// The library reads the salt only, and takes its length in 32 bits.
argon2_context contextOf(SecretBytes& password, const SecretBytes& salt, const Argon2Cost& cost,
                         SecretBytes& root)
{
    argon2_context context = {};
    context.out = root.data();
    context.outlen = static_cast<std::uint32_t>(root.size());
    context.pwd = password.data();
    context.pwdlen = static_cast<std::uint32_t>(password.size());
    context.salt = const_cast<std::uint8_t*>(salt.data());
    context.saltlen = static_cast<std::uint32_t>(salt.size());
    context.t_cost = cost.passes;
    context.m_cost = cost.kibibytes;
    context.lanes = cost.lanes;
    // When a thread cannot be started, the library leaves the others at work in memory that is gone.
    context.threads = 1;
    context.version = ARGON2_VERSION_13;
    context.flags = ARGON2_FLAG_CLEAR_PASSWORD;
    return context;
}

} // namespace

CryptoResult argon2id(SecretText password, const SecretBytes& salt, const Argon2Cost& cost, SecretBytes& root)
{
    root.clear();
    return guarded(err::library(err::KeyDerivationFailed), [&] {
        SecretBytes bytes = takeBytes(std::move(password));
        SecretBytes made(RootSize);
        argon2_context context = contextOf(bytes, salt, cost, made);
        const CryptoResult result = resultOf(argon2id_ctx(&context));
        if (result.ok())
            root = std::move(made);
        return result;
    });
}

} // namespace tessaly::crypto
