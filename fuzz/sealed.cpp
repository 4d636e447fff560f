// A whole decryption job on sealed files: forged by somebody who knows the secret, or honest and then
// damaged, cut or put together anew by somebody who does not. Not one changed byte of an honest file may
// pass.

#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "crypto/job/FileJob.h"
#include "crypto/sealed/SealingOutput.h"
#include "fuzz/support/AllocationWatch.h"
#include "fuzz/support/PlainFormat.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/SealedFormat.h"
#include "fuzz/support/SilentJob.h"
#include "fuzz/support/Streams.h"

#include <algorithm>

using namespace fuzz;
using namespace tessaly::crypto;
namespace err = tessaly::err;

namespace {

constexpr const char* Password = "correct horse";
/// The least that the derivation takes; the format's own cost would leave one file a second.
constexpr Argon2Cost Cheap{.passes = 1, .kibibytes = 32, .lanes = 4};

std::unique_ptr<ISymmetricDecryptor> decryptorOf(std::uint32_t id)
{
    std::unique_ptr<ISymmetricDecryptor> decryptor;
    require(tessaly::cryptopp::CDecryptorFactory().create(CryptoPPLibraryId, id, &decryptor).ok(),
            "there is a decryptor");
    return decryptor;
}

FileJobRequest requestFor(const RawCipher& cipher, bool byPassword)
{
    FileJobRequest request;
    request.passwordMode = byPassword;
    request.password = tessaly::SecretText(Password);
    request.key = tessaly::SecretBytes(cipher.keyLength, 0x5A);
    request.iv = tessaly::SecretBytes(cipher.ivLength, 0x3C);
    request.cost = Cheap;
    return request;
}

SealedKeys keysOf(const FileJobRequest& request, const ISymmetricEngine& algorithm, const Bytes& salt)
{
    tessaly::SecretBytes root;
    SealedKeys keys;
    const CryptoResult made = request.passwordMode
                                  ? argon2id(request.password, secret(salt), request.cost, root)
                                  : rootOfKeyAndIv(request.key, request.iv, algorithm, secret(salt), root);
    require(made.ok() && expandRoot(root, algorithm, keys).ok(), "the keys can be made");
    return keys;
}

void checkWriter(const SealedKeys& keys, const Bytes& salt, const Bytes& inner, const Bytes& file,
                 std::size_t atOnce)
{
    ByteSink out;
    SealingOutput sealing(out, secret(salt));
    require(sealing.open(keys.tagKey).ok(), "the seal can be made");
    for (std::size_t at = 0; at < inner.size(); at += atOnce) {
        const auto count = static_cast<std::int64_t>(std::min(atOnce, inner.size() - at));
        require(sealing.write(inner.data() + at, count) == count, "the seal takes all");
    }
    require(sealing.finish() && out.bytes == file, "the seal is that of the second writer");
}

struct Expected
{
    Reading reading;
    bool isExact = true;       ///< else it fails in some way
    std::size_t mostBytes = 0; ///< of output
    bool fitsFirstPiece = false;
};

Expected expect(const RawCipher& cipher, const FileJobRequest& request, const ISymmetricEngine& algorithm,
                const Bytes& file, bool isHonest)
{
    Expected expected;
    if (file.empty())
        return expected;
    expected.reading.result = file.size() < 56 ? err::InputTooShort : err::CheckValueDiffers;
    if (!canBeSealed(file.size()))
        return expected;
    const SealedKeys keys = keysOf(request, algorithm, {file.begin(), file.begin() + SaltBytes});
    const Opening opening = openSealedFile(keys.tagKey, file).value();
    expected.reading.result = err::CheckValueDiffers;
    if (opening.wrongPiece == 0U)
        return expected;
    expected.fitsFirstPiece = true;
    expected.mostBytes = opening.inner.size();
    if (opening.wrongPiece) {
        expected.reading.result = err::SealBroken;
        expected.isExact = isHonest;
        return expected;
    }
    expected.reading = readPlainFormat(cipher, keys.cipherKey, keys.iv, opening.inner);
    if (expected.reading.result == CryptoResult(err::InputTruncated))
        expected.reading.result = err::SealBroken;
    return expected;
}

/// What the harness knows of the file that it made.
struct Sealed
{
    const RawCipher& cipher;
    std::unique_ptr<ISymmetricDecryptor> own;
    FileJobRequest request;
    Forgery forgery;
    Bytes whole; ///< as it was made
    Bytes file;  ///< as it is now
};

Sealed makeSealed(Choices& choices)
{
    const RawCipher& cipher = choices.oneOf(rawCiphers());
    const bool byPassword = choices.seldom(8); // all algorithms are then tried, which takes its time
    Sealed made{cipher, decryptorOf(cipher.id), requestFor(cipher, byPassword), {}, {}, {}};
    const Bytes salt = choices.noise(SaltBytes);
    const SealedKeys keys = keysOf(made.request, *made.own, salt);
    made.forgery = forge(choices, cipher);
    const Bytes inner = processed(cipher.encryption, keys.cipherKey, keys.iv, made.forgery.plaintext);
    made.file = made.whole = sealInnerFile(salt, keys.tagKey, inner);
    if (choices.seldom(4))
        checkWriter(keys, salt, inner, made.whole, 1 + choices.upTo<std::size_t>(100'000));
    if (choices.seldom(3)) {
        const SealedKeys others = keysOf(made.request, *made.own, Bytes(SaltBytes));
        shuffle(choices, made.file, sealInnerFile(salt, others.tagKey, inner));
    }
    damage(choices, made.file);
    return made;
}

void checkBytes(const Sealed& made, const Expected& expected, const Bytes& written)
{
    const Bytes& right = made.forgery.isHonest ? made.forgery.data : expected.reading.data;
    if (made.forgery.isHonest || expected.reading.result.ok())
        require(written.size() <= right.size() &&
                    std::ranges::equal(written, std::span(right).first(written.size())),
                "nothing wrong is written");
}

void checkOther(const Sealed& made, const Expected& expected, const FileJobOutcome& outcome,
                const Bytes& written)
{
    require(outcome.result.ok() == made.file.empty() && written.empty(), "another algorithm opens nothing");
    require(outcome.fittingAlgorithm ==
                (expected.fitsFirstPiece ? std::optional(made.cipher.id) : std::nullopt),
            "the right algorithm is found by the first piece");
}

void checkOwn(const Sealed& made, const Expected& expected, const FileJobOutcome& outcome,
              const Bytes& written)
{
    require(!outcome.done() || !made.forgery.isHonest || made.file == made.whole || made.file.empty(),
            "a changed file never passes");
    if (!expected.isExact)
        return;
    require(outcome.result == expected.reading.result, "the result is that of the second reader");
    if (outcome.done())
        require(written == expected.reading.data && outcome.sealed == !made.file.empty(),
                "the data are those of the second reader");
    else
        require(written.size() <= expected.mostBytes, "nothing behind a wrong tag is written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(data, size);
    Sealed made = makeSealed(choices);
    const Expected expected = expect(made.cipher, made.request, *made.own, made.file, made.forgery.isHonest);

    const bool isOther = made.request.passwordMode && choices.seldom(4);
    const std::uint32_t otherId = made.cipher.id == DefaultAlgorithmId ? 452 : DefaultAlgorithmId;
    const auto decryptor = decryptorOf(isOther ? otherId : made.cipher.id);
    ByteSource in(choices, made.file);
    ByteSink out(StreamFault::choose(choices, made.file.size()));
    out.bytes.reserve(made.file.size());
    made.request.source = &in;
    made.request.sink = &out;
    SilentJob observer;
    const AllocationWatch memory;
    const FileJobOutcome outcome = runFileJob(*decryptor, made.request, observer);
    require(memory.peak() <= 8 * made.file.size() + (2 << 20), "memory in proportion to the file");

    checkBytes(made, expected, out.bytes);
    require(!outcome.cancelled, "nobody stopped it");
    if (in.hasFailed() || out.hasFailed())
        require(!outcome.done(), "a failed stream is told");
    else if (isOther)
        checkOther(made, expected, outcome, out.bytes);
    else
        checkOwn(made, expected, outcome, out.bytes);
    return 0;
}
