#include "cli/Secrets.h"

#include "common/secret/PasswordRules.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Terminal.h"
#include "lib/secret/Hex.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string_view>

namespace cli {

using tessaly::SecretBytes;
using tessaly::SecretText;

namespace {

/// Far beyond any password, key or IV; a wrong file name must not fill the memory.
constexpr std::size_t SecretFileLimit = 1 << 20;

struct FileCloser
{
    void operator()(std::FILE* file) const
    {
        if (file != stdin)
            std::fclose(file);
    }
};

/// Unbuffered, so that no copy stays behind in the runtime; may be a pipe.
bool readSecretFile(const std::string& path, bool firstLineOnly, SecretBytes& bytes)
{
    const std::unique_ptr<std::FILE, FileCloser> file(path == "-" ? stdin : std::fopen(path.c_str(), "rb"));
    if (!file)
        return false;
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    for (int c = 0; (c = std::fgetc(file.get())) != EOF;) {
        if (firstLineOnly && c == '\n')
            break;
        if (bytes.size() == SecretFileLimit)
            return false;
        bytes.push_back(static_cast<std::uint8_t>(c));
    }
    if (firstLineOnly && bytes.size() > 0 && bytes.data()[bytes.size() - 1] == '\r')
        bytes.resize(bytes.size() - 1);
    return std::ferror(file.get()) == 0;
}

/// `source` begins the problem: where the password came from.
bool acceptPassword(const SecretBytes& bytes, const std::string& source, SecretText& password,
                    std::string& problem)
{
    if (bytes.size() == 0) {
        problem = source + "the password is empty";
        return false;
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (const char* found = thisapp::passwordProblem(text)) {
        problem = source + found;
        return false;
    }
    password = SecretText(text);
    return true;
}

/// Without a length any will do.
bool readHexFile(const std::string& path, const char* what, std::optional<std::uint32_t> length,
                 SecretBytes& bytes, std::string& problem)
{
    SecretBytes text;
    if (!readSecretFile(path, false, text)) {
        problem = "cannot read the " + std::string(what) + " file " + path;
        return false;
    }
    auto decoded = tessaly::decodeHex({reinterpret_cast<const char*>(text.data()), text.size()});
    if (!decoded) {
        problem = "the " + std::string(what) + " file " + path + " is not hexadecimal";
        return false;
    }
    if (length && decoded->size() != *length) {
        problem = "the " + std::string(what) + " in " + path + " has " + std::to_string(decoded->size()) +
                  " bytes, the algorithm takes " + std::to_string(*length);
        return false;
    }
    bytes = std::move(*decoded);
    return true;
}

SecretOutcome askForPassword(bool twice, SecretText& password, std::string& problem)
{
    using tessaly::platform::readHiddenLine;
    if (!tessaly::platform::canAsk())
        return SecretOutcome::NotAsked;
    SecretBytes first;
    SecretBytes second;
    if (!readHiddenLine("Password: ", first) || (twice && !readHiddenLine("Confirm password: ", second)))
        return tessaly::platform::Interrupts::happened() ? SecretOutcome::Interrupted
                                                         : SecretOutcome::NotAsked;
    if (twice && !std::ranges::equal(first, second)) {
        problem = "the passwords do not match";
        return SecretOutcome::Unusable;
    }
    return acceptPassword(first, "", password, problem) ? SecretOutcome::Ready : SecretOutcome::Unusable;
}

bool readKeyAndIv(const Arguments& arguments, tessaly::crypto::FileJobRequest& request, std::string& problem)
{
    using namespace tessaly::crypto;
    std::optional<std::uint32_t> keyLength;
    std::optional<std::uint32_t> ivLength;
    if (arguments.algorithmId) {
        const auto& record = findAlgorithm(*arguments.algorithmId)->record;
        keyLength = record.keyLength;
        ivLength = record.ivLength;
    }
    if (!readHexFile(*arguments.keyFile, "key", keyLength, request.key, problem) ||
        !readHexFile(*arguments.ivFile, "IV", ivLength, request.iv, problem))
        return false;
    const bool isTaken = std::ranges::any_of(catalogue(), [&](const CatalogueEntry& entry) {
        return entry.record.keyLength == request.key.size() && entry.record.ivLength == request.iv.size();
    });
    if (!isTaken)
        problem = "no algorithm takes a key of " + std::to_string(request.key.size()) + " bytes (" +
                  *arguments.keyFile + ") with an IV of " + std::to_string(request.iv.size()) + " bytes (" +
                  *arguments.ivFile + ')';
    return isTaken;
}

} // namespace

SecretOutcome gatherSecret(const Arguments& arguments, tessaly::crypto::FileJobRequest& request,
                           std::string& problem)
{
    request.passwordMode = !arguments.keyFile;
    if (arguments.keyFile)
        return readKeyAndIv(arguments, request, problem) ? SecretOutcome::Ready : SecretOutcome::Unusable;
    if (!arguments.passwordFile)
        return askForPassword(arguments.command == Command::Encrypt, request.password, problem);
    SecretBytes line;
    if (!readSecretFile(*arguments.passwordFile, true, line)) {
        problem = "cannot read the password file " + *arguments.passwordFile;
        return SecretOutcome::Unusable;
    }
    const std::string source = "password file " + *arguments.passwordFile + ": ";
    return acceptPassword(line, source, request.password, problem) ? SecretOutcome::Ready
                                                                   : SecretOutcome::Unusable;
}

} // namespace cli
