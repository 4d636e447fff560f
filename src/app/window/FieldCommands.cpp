#include "app/window/FieldCommands.h"

#include "app/window/CInputField.h"
#include "app/window/CJobFrame.h"
#include "app/window/FileDialogs.h"
#include "app/window/FolderOpener.h"
#include "ui/disk/CDiskWork.h"

#include <QCoreApplication>
#include <QDir>

#include <utility>

namespace thisapp {

namespace {

struct WindowText
{
    Q_DECLARE_TR_FUNCTIONS(CMainWindow)
};

/// What is on no disk of this computer, for the list to tell that it isn't found.
QStringList foreignNames(const QList<QUrl>& urls)
{
    QStringList names;
    for (const QUrl& url : urls)
        if (droppedFiles({url}).isEmpty())
            names += url.toDisplayString();
    return names;
}

} // namespace

FieldCommands::FieldCommands(CJobFrame& form, CInputField& input, CDiskWork& disk,
                             std::function<void(const QStringList&)> takeFiles)
    : m_form(form), m_input(input), m_disk(disk), m_takeFiles(std::move(takeFiles))
{
}

void FieldCommands::onUiAddFileItem()
{
    const QStringList chosen = askFilesToOpen(
        m_form.window(), m_disk, WindowText::tr("Add file to encrypt/decrypt"), m_form.inputText());
    if (chosen.size() == 1 && !m_form.isQueueShown())
        m_input.set(QDir::toNativeSeparators(chosen.front()));
    else if (!chosen.isEmpty())
        m_takeFiles(chosen);
}

void FieldCommands::onUiBrowseOutput()
{
    const QString near = m_form.outputText().isEmpty() ? m_form.inputText() : m_form.outputText();
    const QString chosen = askFileToSave(m_form.window(), m_disk, WindowText::tr("Define output file"), near);
    if (!chosen.isEmpty())
        m_form.setOutputText(QDir::toNativeSeparators(chosen));
}

void FieldCommands::onUiOpenInputFolderItem()
{
    openFolderOf(m_form.inputText());
}

void FieldCommands::onUiOpenOutputFolderItem()
{
    openFolderOf(m_form.outputText());
}

void FieldCommands::openFolderOf(const QString& text)
{
    const auto folder = m_disk.start<QUrl>([text] { return folderOf(text); });
    if (m_disk.wait(folder))
        openFolder(folder.get());
}

void FieldCommands::takeDrop(int widgetId, const QList<QUrl>& urls)
{
    const QStringList files = droppedFiles(urls);
    const bool onOutput = widgetId == DropOnOutput;
    if (!onOutput && (files.size() > 1 || (m_form.isQueueShown() && !files.isEmpty()))) {
        m_takeFiles(files + foreignNames(urls));
        return;
    }
    const DroppedFile drop{files.value(0), !files.isEmpty() && urls.size() > 1};
    if (drop.path.isEmpty() || onOutput)
        m_form.showMessage(onOutput ? Area::Output : Area::Input, dropMessage(drop));
    if (drop.path.isEmpty())
        return;
    if (onOutput) {
        m_form.setOutputText(drop.path);
    } else {
        m_drop = drop;
        m_input.set(drop.path);
    }
}

void FieldCommands::showFacts()
{
    const InputFacts& facts = m_input.facts();
    const auto drop = std::exchange(m_drop, {});
    if (drop && drop->path.trimmed() == facts.path.trimmed())
        m_form.showMessage(Area::Input, dropMessage(*drop, facts.check));
    if (facts.isUsable())
        m_form.showFile(facts.path, facts.size);
    else
        m_form.showNoFile();
}

} // namespace thisapp
