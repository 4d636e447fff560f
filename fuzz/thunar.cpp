// Thunar's file of actions, which is the user's: adding ours and taking them away leaves all else to the
// letter.

#include "app/desktop/linux/shell/ThunarActions.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cstdint>
#include <string>

using namespace fuzz;
using thisapp::desktop::ThunarActions;

namespace {

constexpr const char* File = "config/Thunar/uca.xml";
const std::string Program = "/opt/it's 100% <free>/quillet";

/// Whether one of the actions may be taken for ours: what stands in an element, however it is written.
bool mayHoldOurs(const std::string& xml)
{
    std::string letters;
    for (std::size_t at = 0; at < xml.size(); ++at) {
        if (xml[at] == '<')
            at = std::min(xml.find('>', at), xml.size());
        else
            letters += xml[at];
    }
    return letters.find("quillet-") != std::string::npos || xml.find("&#") != std::string::npos ||
           xml.find("<!") != std::string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const test::TempFolder folder;
    const std::string before(text(data, size));
    folder.write(File, before);
    const ThunarActions actions((folder.path() / "config").string());
    (void)actions.program();

    if (!actions.write(Program)) {
        require(test::readFile(folder / File) == before, "what is not understood stays as it is");
        require(!actions.remove(), "and nothing can be taken away");
        require(test::readFile(folder / File) == before, "nor is it");
        return 0;
    }
    const std::string with = test::readFile(folder / File);
    require(actions.program() == Program, "our actions start the program");
    require(actions.write(Program) && test::readFile(folder / File) == with, "there is nothing more to add");
    require(actions.remove(), "they can be taken away");
    require(actions.program().empty(), "all of them");
    const std::string after = test::readFile(folder / File);
    if (!mayHoldOurs(before))
        require(after.empty() || after == before, "what remains is what there was");
    std::filesystem::remove_all(folder.path() / "config");
    return 0;
}
