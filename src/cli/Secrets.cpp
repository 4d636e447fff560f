#include "cli/Secrets.h"

#include "common/secret/KeyFile.h"
#include "common/secret/PasswordRules.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Terminal.h"
#include "lib/secret/Hex.h"

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

bool acceptPassword(const SecretBytes& bytes, SecretText& password, std::string& problem)
{
    if (bytes.size() == 0) {
        problem = "the password is empty";
        return false;
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (const char* found = thisapp::passwordProblem(text)) {
        problem = found;
        return false;
    }
    password = SecretText(text);
    return true;
}

struct SKeyAndIv
{
    std::optional<SecretBytes> key;
    std::optional<SecretBytes> iv;
    bool isPair = false; ///< else the same bytes stand for either
};

/// Of hexadecimal digits, which may be either, or of what the window's "Save..." wrote, which has both.
bool readKeyAndIv(const std::string& path, const char* what, SKeyAndIv& read, std::string& problem)
{
    SecretBytes bytes;
    if (!readSecretFile(path, false, bytes)) {
        problem = "cannot read the " + std::string(what) + " file " + path;
        return false;
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (auto saved = thisapp::parseKeyFile(text))
        read = {std::move(saved->key), std::move(saved->iv), true};
    else
        read.key = read.iv = tessaly::decodeHex(text);
    if (!read.key)
        problem = "the " + std::string(what) + " is not hexadecimal: " + path;
    return problem.empty();
}

bool hasLength(const SecretBytes& bytes, const char* what, std::uint32_t length, std::string& problem)
{
    if (bytes.size() != length)
        problem = "the " + std::string(what) + " has " + std::to_string(bytes.size()) +
                  " bytes, the algorithm takes " + std::to_string(length);
    return problem.empty();
}

bool readKeyFiles(const Arguments& arguments, tessaly::crypto::FileJobRequest& request, std::string& problem)
{
    SKeyAndIv key;
    SKeyAndIv iv;
    if (!readKeyAndIv(*arguments.keyFile, "key", key, problem) ||
        (arguments.ivFile && !readKeyAndIv(*arguments.ivFile, "IV", iv, problem)))
        return false;
    if (!arguments.ivFile && !key.isPair) {
        problem = "no IV in " + *arguments.keyFile + ": name its --iv-file";
        return false;
    }
    request.key = std::move(*key.key);
    request.iv = std::move(*(arguments.ivFile ? iv.iv : key.iv));
    const auto& record = tessaly::crypto::findAlgorithm(arguments.algorithmId)->record;
    return hasLength(request.key, "key", record.keyLength, problem) &&
           hasLength(request.iv, "IV", record.ivLength, problem);
}

SecretOutcome askForPassword(bool twice, SecretText& password, std::string& problem)
{
    using tessaly::platform::readHiddenLine;
    if (!tessaly::platform::isInputTerminal())
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
    return acceptPassword(first, password, problem) ? SecretOutcome::Ready : SecretOutcome::Unusable;
}

} // namespace

SecretOutcome gatherSecret(const Arguments& arguments, tessaly::crypto::FileJobRequest& request,
                           std::string& problem)
{
    request.passwordMode = !arguments.keyFile;
    if (arguments.keyFile)
        return readKeyFiles(arguments, request, problem) ? SecretOutcome::Ready : SecretOutcome::Unusable;
    if (!arguments.passwordFile)
        return askForPassword(arguments.command == Command::Encrypt, request.password, problem);
    SecretBytes line;
    if (!readSecretFile(*arguments.passwordFile, true, line)) {
        problem = "cannot read the password file " + *arguments.passwordFile;
        return SecretOutcome::Unusable;
    }
    return acceptPassword(line, request.password, problem) ? SecretOutcome::Ready : SecretOutcome::Unusable;
}

} // namespace cli
