#include "app/queue/QueueReport.h"

#include "common/path/PathText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <set>

namespace thisapp {

namespace {

struct QueueText
{
    Q_DECLARE_TR_FUNCTIONS(FileQueue)
};

QString summary(Operation operation, FileQueue::Count count, std::size_t all, bool isStopped)
{
    const auto total = static_cast<int>(all);
    const QString done = operation == Operation::Encrypt
                             ? QueueText::tr("%1 of %Ln files encrypted", "", total)
                             : QueueText::tr("%1 of %Ln files decrypted", "", total);
    QStringList parts{done.arg(QLocale().toString(static_cast<int>(count.done)))};
    if (const auto failed = static_cast<int>(count.failed))
        parts += QueueText::tr("%Ln failed", "after \"9 of 11 files encrypted\"", failed);
    if (const auto skipped = static_cast<int>(count.skipped))
        parts += QueueText::tr("%Ln skipped", "after \"9 of 11 files encrypted\"", skipped);
    const QString text = parts.join(QStringLiteral(", "));
    return isStopped ? QueueText::tr("Stopped: %1").arg(text) : text;
}

/// Of the outputs; empty when they stand in more than one.
QString folderOf(const FileQueue& queue)
{
    std::set<std::filesystem::path> folders;
    for (const QueueEntry& entry : queue.entries())
        if (entry.state == EntryState::Done)
            folders.insert(entry.output.parent_path());
    return folders.size() == 1 ? pathText(*folders.begin()) : QString();
}

} // namespace

Message queueMessage(Operation operation, const FileQueue& queue, bool isStopped)
{
    const FileQueue::Count count = queue.count();
    const std::size_t all = queue.runSize();
    const bool isComplete = count.done == all;
    const MessageKind kind = isComplete                      ? MessageKind::Success
                             : count.failed > 0 || isStopped ? MessageKind::Error
                                                             : MessageKind::Warning;
    return {kind, [=] { return summary(operation, count, all, isStopped); }, folderOf(queue)};
}

Message leftOutMessage(const QueueLook& look)
{
    if (!look.isFolderLeftOut && look.missing.isEmpty())
        return {};
    return {MessageKind::Warning, [isFolder = look.isFolderLeftOut, missing = look.missing] {
                QStringList sentences;
                if (isFolder)
                    sentences +=
                        QueueText::tr("Folders and devices are left out: only files can be encrypted or "
                                      "decrypted.");
                if (missing.size() == 1)
                    sentences += QueueText::tr("\"%1\" is not found.").arg(missing.front());
                else if (!missing.isEmpty())
                    sentences +=
                        QueueText::tr("Not found, and left out: %1").arg(missing.join(QStringLiteral(", ")));
                return sentences.join(QLatin1Char(' '));
            }};
}

Message removalMessage(std::size_t removed, std::size_t kept)
{
    return {
        kept > 0 ? MessageKind::Warning : MessageKind::Success, [removed, kept] {
            QString text =
                QueueText::tr("Input files deleted after their encryption, according to your options: %1.")
                    .arg(QLocale().toString(static_cast<int>(removed)));
            if (kept > 0)
                text +=
                    QLatin1Char(' ') +
                    QueueText::tr("Kept: %1, see the list.").arg(QLocale().toString(static_cast<int>(kept)));
            return text;
        }};
}

} // namespace thisapp
