#include "app/job/InputRemoval.h"

#include "app/job/SEncryptData.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/format/FileHeader.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <QCoreApplication>

#include <cstdint>

namespace thisapp {

using namespace tessaly;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(InputRemoval)
};

bool isUnchanged(const platform::FileStatus& now, const platform::FileStatus& asRead)
{
    return now.sameFile(asRead) && now.size == asRead.size && now.modifiedNs == asRead.modifiedNs;
}

std::uint64_t expectedOutputSize(const SEncryptData& data)
{
    return crypto::encryptedSize(static_cast<std::uint64_t>(data.outcome.input.size),
                                 crypto::AlgInfo().record(data.selection.algorithm).blockLength);
}

} // namespace

std::optional<KeepReason> reasonToKeepInput(const SEncryptData& data)
{
    // A job that is done has synced its output and the folder of it.
    if (data.operation != Operation::Encrypt || !data.outcome.done())
        return KeepReason::NotEncrypted;

    const platform::FileStatus output = platform::fileStatus(platform::widePath(data.outputPath));
    if (!output.sameFile(data.outcome.output) ||
        static_cast<std::uint64_t>(output.size) != expectedOutputSize(data))
        return KeepReason::OutputDiffers;

    const platform::FileStatus input = platform::fileStatus(platform::widePath(data.inputPath));
    if (input.isLink)
        return KeepReason::SymbolicLink;
    if (!isUnchanged(input, data.outcome.input))
        return KeepReason::Changed;
    if (input.hardLinks != 1)
        return KeepReason::HardLinks;
    return {};
}

InputRemoval removeInput(const SEncryptData& data)
{
    InputRemoval removal;
    removal.kept = reasonToKeepInput(data);
    if (!removal.kept)
        removal.error = platform::removeFile(platform::widePath(data.inputPath));
    return removal;
}

QString keptText(KeepReason reason)
{
    switch (reason) {
    case KeepReason::NotEncrypted:
        break;
    case KeepReason::SymbolicLink:
        return Text::tr("The input file has been kept: it is a symbolic link.");
    case KeepReason::HardLinks:
        return Text::tr("The input file has been kept: it has another name (hard link).");
    case KeepReason::Changed:
        return Text::tr("The input file has been kept: it has changed since it was encrypted.");
    case KeepReason::OutputDiffers:
        return Text::tr("The input file has been kept: the output file is not what was written.");
    }
    return Text::tr("The input file has been kept.");
}

} // namespace thisapp
