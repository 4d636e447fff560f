#include "app/job/InputRemoval.h"

#include "app/job/SEncryptData.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/format/FileHeader.h"
#include "crypto/sealed/SealedFormat.h"
#include "lib/platform/File.h"

#include <QCoreApplication>

#include <cstdint>

namespace thisapp {

using namespace tessaly;

namespace {

struct RemovalText
{
    Q_DECLARE_TR_FUNCTIONS(InputRemoval)
};

bool isUnchanged(const platform::FileStatus& now, const platform::FileStatus& asRead)
{
    return now.size == asRead.size && now.modifiedNs == asRead.modifiedNs;
}

std::uint64_t expectedOutputSize(const SEncryptData& data)
{
    const std::uint64_t plain =
        crypto::encryptedSize(static_cast<std::uint64_t>(data.outcome.input.status.size),
                              crypto::AlgInfo().record(data.selection.algorithm).blockLength);
    return data.outcome.sealed ? crypto::sealedSize(plain) : plain;
}

} // namespace

std::optional<KeepReason> reasonToKeepInput(const SEncryptData& data)
{
    const crypto::JobFile& input = data.outcome.input;
    const crypto::JobFile& output = data.outcome.output;
    // A job that is done has synced its output and the folder of it.
    if (data.operation != Operation::Encrypt || !data.outcome.done() || !input.place || !output.place)
        return KeepReason::NotEncrypted;

    if (!output.place->names(output.status) ||
        static_cast<std::uint64_t>(output.place->status().size) != expectedOutputSize(data))
        return KeepReason::OutputDiffers;

    const platform::FileStatus now = input.place->status();
    if (now.isLink)
        return KeepReason::SymbolicLink;
    if (!input.place->names(input.status) || !isUnchanged(now, input.status))
        return KeepReason::Changed;
    if (now.hardLinks != 1)
        return KeepReason::HardLinks;
    return {};
}

InputRemoval removeInput(const SEncryptData& data)
{
    InputRemoval removal;
    removal.kept = reasonToKeepInput(data);
    if (removal.kept)
        return removal;
    const io::FilePlace& place = *data.outcome.input.place;
    removal.error = place.folder().remove(place.name());
    removal.removed = removal.error.ok();
    if (removal.removed)
        removal.error = place.folder().sync();
    return removal;
}

QString keptText(KeepReason reason)
{
    switch (reason) {
    case KeepReason::NotEncrypted:
        break;
    case KeepReason::SymbolicLink:
        return RemovalText::tr("The input file has been kept: it is a symbolic link.");
    case KeepReason::HardLinks:
        return RemovalText::tr("The input file has been kept: it has another name (hard link).");
    case KeepReason::Changed:
        return RemovalText::tr("The input file has been kept: it has changed since it was encrypted.");
    case KeepReason::OutputDiffers:
        return RemovalText::tr("The input file has been kept: the output file is not what was written.");
    }
    return RemovalText::tr("The input file has been kept.");
}

} // namespace thisapp
