#include "app/desktop/ShellIntegration.h"

#include "app/desktop/EntryOwnership.h"
#include "app/desktop/windows/shell/ContextMenu.h"
#include "app/desktop/windows/shell/SendToLink.h"
#include "common/path/PathText.h"
#include "lib/logger/Log.h"

#include <QDir>

namespace thisapp::desktop {

namespace {

void tell(bool done, const char* entry)
{
    if (!done)
        tessaly::logger::log(tessaly::logger::Warning, "desktop") << "Failed to update shell entry " << entry;
}

void updateSendTo(const std::filesystem::path& program, const EntryOwnership& ownership, bool wanted)
{
    const SendToLink link;
    const std::filesystem::path startedNow = link.program();
    const bool isForeign = !startedNow.empty() && startedNow.filename() != program.filename();
    if (!isForeign && ownership.mayChange(startedNow))
        tell(wanted ? link.write(program) : link.remove(), "in the send-to menu");
}

} // namespace

void updateShellIntegration(const QString& program, bool contextMenu, bool sendTo)
{
    const std::filesystem::path path = textPath(QDir::toNativeSeparators(program));
    const EntryOwnership ownership(path);
    if (ownership.mayChange(ContextMenu::program()))
        tell(contextMenu ? ContextMenu::write(program) : ContextMenu::remove(), "in the context menu");
    updateSendTo(path, ownership, sendTo);
}

} // namespace thisapp::desktop
