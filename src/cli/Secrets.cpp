#include "cli/Secrets.h"

#include "common/secret/KeyFile.h"
#include "common/secret/PasswordRules.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/StandardStreams.h"
#include "lib/platform/Terminal.h"
#include "lib/secret/Hex.h"
#include "lib/text/Utf8.h"

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

/// That of UTF-8, which some editors and shells put before every text, and which nobody types.
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view textOf(const SecretBytes& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// A file, a pipe or standard input, byte by byte, so that no copy stays behind in the runtime.
class SecretSource
{
public:
    explicit SecretSource(const std::string& path)
        : m_file(path == StandardStream ? nullptr : tessaly::platform::openBytes(path)),
          m_isGood(m_file || path == StandardStream)
    {
        if (m_file)
            std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
    }

    /// Nothing has failed so far.
    bool isGood() const { return m_isGood; }
    /// False at the end and after a failure.
    bool next(std::uint8_t& byte)
    {
        std::size_t count = 0;
        if (m_file) {
            count = std::fread(&byte, 1, 1, m_file.get());
            m_isGood = std::ferror(m_file.get()) == 0;
        } else if (m_isGood) {
            m_isGood = tessaly::platform::readStandardInput(&byte, 1, count).ok();
        }
        return m_isGood && count == 1;
    }

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> m_file; ///< null for standard input
    bool m_isGood;
};

bool readSecretFile(const std::string& path, bool firstLineOnly, SecretBytes& bytes)
{
    SecretSource source(path);
    for (std::uint8_t byte = 0; source.next(byte);) {
        if (firstLineOnly && byte == '\n')
            break;
        if (bytes.size() == SecretFileLimit)
            return false;
        bytes.push_back(byte);
    }
    if (firstLineOnly && bytes.size() > 0 && bytes.data()[bytes.size() - 1] == '\r')
        bytes.resize(bytes.size() - 1);
    if (textOf(bytes).starts_with(ByteOrderMark))
        bytes = SecretBytes(bytes.begin() + ByteOrderMark.size(), bytes.end());
    return source.isGood();
}

bool isUtf8(std::string_view text)
{
    unsigned codePoint = 0;
    while (!text.empty()) {
        const std::size_t length = tessaly::text::decodeUtf8(text, codePoint);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

/// `source` begins the problem: where the password came from. What has been encrypted with bytes that no
/// field gives can still be decrypted with them.
bool acceptPassword(Command command, const SecretBytes& bytes, const std::string& source,
                    SecretText& password, std::string& problem)
{
    if (bytes.size() == 0) {
        problem = source + "the password is empty";
        return false;
    }
    const std::string_view text = textOf(bytes);
    if (const char* found = thisapp::passwordProblem(text)) {
        problem = source + found;
        return false;
    }
    if (command == Command::Encrypt && !isUtf8(text)) {
        problem = source + "the password is not UTF-8";
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
    const std::string_view text = textOf(bytes);
    if (auto saved = thisapp::parseKeyFile(text))
        read = {std::move(saved->key), std::move(saved->iv), true};
    else
        read.key = read.iv = tessaly::decodeHex(text);
    if (!read.key)
        problem = "the " + std::string(what) + " file " + path + " is not hexadecimal";
    return problem.empty();
}

SecretOutcome askForPassword(Command command, SecretText& password, std::string& problem)
{
    const bool twice = command == Command::Encrypt;
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
    return acceptPassword(command, first, "", password, problem) ? SecretOutcome::Ready
                                                                 : SecretOutcome::Unusable;
}

/// With an algorithm they have its lengths, else those that some algorithm takes.
std::string lengthProblem(const Arguments& arguments, const SecretBytes& key, const SecretBytes& iv)
{
    using namespace tessaly::crypto;
    const std::string ivPath = arguments.ivFile.value_or(*arguments.keyFile);
    const auto differs = [](const char* what, const std::string& path, std::size_t is, std::uint32_t taken) {
        return std::string("the ") + what + " in " + path + " has " + std::to_string(is) +
               " bytes, the algorithm takes " + std::to_string(taken);
    };
    if (arguments.algorithmId) {
        const auto& record = findAlgorithm(*arguments.algorithmId)->record;
        if (key.size() != record.keyLength)
            return differs("key", *arguments.keyFile, key.size(), record.keyLength);
        return iv.size() == record.ivLength ? "" : differs("IV", ivPath, iv.size(), record.ivLength);
    }
    const bool isTaken = std::ranges::any_of(catalogue(), [&](const CatalogueEntry& entry) {
        return entry.record.keyLength == key.size() && entry.record.ivLength == iv.size();
    });
    return isTaken ? ""
                   : "no algorithm takes a key of " + std::to_string(key.size()) + " bytes (" +
                         *arguments.keyFile + ") with an IV of " + std::to_string(iv.size()) + " bytes (" +
                         ivPath + ')';
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
    problem = lengthProblem(arguments, request.key, request.iv);
    return problem.empty();
}

} // namespace

SecretOutcome gatherSecret(const Arguments& arguments, tessaly::crypto::FileJobRequest& request,
                           std::string& problem)
{
    request.passwordMode = !arguments.keyFile;
    if (arguments.keyFile)
        return readKeyFiles(arguments, request, problem) ? SecretOutcome::Ready : SecretOutcome::Unusable;
    if (!arguments.passwordFile)
        return askForPassword(arguments.command, request.password, problem);
    SecretBytes line;
    if (!readSecretFile(*arguments.passwordFile, true, line)) {
        problem = "cannot read the password file " + *arguments.passwordFile;
        return SecretOutcome::Unusable;
    }
    const std::string source = "password file " + *arguments.passwordFile + ": ";
    return acceptPassword(arguments.command, line, source, request.password, problem)
               ? SecretOutcome::Ready
               : SecretOutcome::Unusable;
}

} // namespace cli
