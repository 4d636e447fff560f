#include "io/IStreamFile.h"
#include "io/OStreamFile.h"
#include "support/SystemCall.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

#include <array>
#include <optional>
#include <sys/stat.h>

namespace {

using namespace tessaly;
using std::string;
using test::SystemCall;
using test::told;
namespace fs = std::filesystem;

/// Reads once, at most `count` bytes; "!" for a failure.
string readSome(io::IStreamFile<wchar_t>& stream, std::int64_t count)
{
    std::array<char, 64> buffer{};
    std::int64_t got = 0;
    const bool done = stream.read(buffer.data(), count, got);
    return done ? string(buffer.data(), static_cast<std::size_t>(got)) : "!";
}

TEST(FileStream, ReadsUpToTheSizeAtOpeningAndWritesToTheEnd)
{
    const test::TempFolder folder;
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    const auto pathOf = [&](const string& name) { return name.empty() ? L"" : folder.wide(name); };
    io::IStreamFile<wchar_t> in;
    io::OStreamFile<wchar_t> out;
    std::optional<SystemCall> call;
    const auto setNextCall = [&](const string& text) {
        const auto blank = text.find(' ');
        call.emplace(text.substr(0, blank), SystemCall::way(text.substr(blank + 1)));
    };
    const auto place = [&] {
        if (in.isAtStart())
            return "start";
        return in.isAtEnd() ? "end" : "middle";
    };
    test::walk(
        "streams.txt",
        {{"file holds", [&](const string& text) { folder.write("file", text); }},
         {"file has size", [&](const string& size) { fs::resize_file(folder / "file", std::stoul(size)); }},
         {"file", [&] { return test::readFile(folder / "file"); }},
         {"next call", setNextCall},
         {"open in", [&](const string& name) { return told(in.open(pathOf(name))); }},
         {"size", [&] { return std::to_string(in.size()); }},
         {"read", [&](const string& count) { return readSome(in, std::stol(count)); }},
         {"at", place},
         {"error of in", [&] { return told(in.lastError()); }},
         {"rewind", [&] { return told(in.rewind()); }},
         {"open out", [&](const string& name) { return told(out.open(pathOf(name))); }},
         {"write",
          [&](const string& text) { return std::to_string(out.write(text.data(), std::ssize(text))); }},
         {"error of out", [&] { return told(out.lastError()); }},
         {"flush", [&] { return told(out.flush()); }},
         {"close out", [&] { return told(out.close()); }}});
}

} // namespace
