#pragma once

#include "io/FilePlace.h"
#include "io/HiddenName.h"
#include "io/OStreamFile.h"
#include "lib/platform/File.h"

#include <functional>
#include <memory>

namespace tessaly::io {

/// A new file, from its first byte to its name. It is written without a name in the folder where it is
/// to stand; where the file system has no such files, under a hidden name that is removed on every way
/// out. Only commit makes it appear, whole and on the disk; without it nothing ever stands at the path.
/// One thread, but for lastError.
class OutputFile final : public OStreamBytes
{
public:
    enum class Existing {
        Keep,    ///< what has come to stand at the path stays, and commit fails
        Replace, ///< it gives way in one step, and is whole until then
    };

    enum class Kind {
        Nameless, ///< where the file system allows it, else hidden
        Hidden,
    };

    explicit OutputFile(Kind kind = Kind::Nameless) : m_kind(kind) {}
    /// Discards what was not committed.
    ~OutputFile() override;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// The place is an open one. Errors are the system's, a lack of room for that many bytes among them.
    ResultCode open(std::shared_ptr<const FilePlace> place, const platform::Access& access,
                    std::int64_t expectedSize = 0);

    /// A file that is never given up for this one, though it may come to stand at the path: the input.
    void protect(const platform::FileStatus& file) { m_protected = file; }

    [[nodiscard]] std::int64_t write(const void* buffer, std::int64_t count) override;
    ResultCode lastError() const override { return m_stream.lastError(); }
    /// Somebody has tried to write to it.
    bool isBegun() const { return m_begun; }

    /// Flushes the file, names it and flushes the folder. `isWanted` is asked between the first two, as
    /// the flush may take long: (5, 1004) when the file is not wanted any more. (5, 203) when, at the
    /// end, the path does not name the file: its folder has been moved. After any failure all is as it
    /// was before: nothing of the file is left, and what it was to replace stands. (Where the file system
    /// cannot exchange two files, a failure to flush the folder leaves the new one in its place.) What
    /// others do to the path meanwhile stays as they did it.
    ResultCode commit(
        Existing existing, const std::function<bool()>& isWanted = [] { return true; });
    /// True when nothing of the file is left: nobody has given it another name, and the disk obeys.
    bool discard();

    /// The file itself, as it was created or, later, committed.
    const platform::FileStatus& status() const { return m_status; }

    /// See HiddenName::removeAll.
    static void removeHiddenNames();

private:
    ResultCode create(const platform::Access& access, platform::File& file);
    ResultCode createHidden(const platform::Access& access, platform::File& file);
    ResultCode publish(Existing existing);
    ResultCode replaceFormer(const ResultCode& occupied);
    ResultCode nameHidden();
    ResultCode verify();
    void withdraw();
    bool isNameless() const;

    /// Where the file is to be found.
    enum class State {
        Unnamed,   ///< without a name, or under the hidden one
        Published, ///< at the path, from which it can be withdrawn
        Exchanged, ///< at the path, and the former file under the hidden name
        Settled,   ///< at the path for good
    };

    const Kind m_kind;
    std::shared_ptr<const FilePlace> m_place;
    OStreamFile<wchar_t> m_stream;
    platform::FileStatus m_status;
    platform::FileStatus m_protected;
    platform::File m_former; ///< held open while it stands under the hidden name
    platform::FileStatus m_formerStatus;
    HiddenName m_hidden;
    bool m_begun = false;
    bool m_nameless = true; ///< as discard found it
    State m_state = State::Unnamed;
};

} // namespace tessaly::io
