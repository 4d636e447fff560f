#include "ui/password/KeyFileDialogs.h"

#include "common/path/PathText.h"
#include "io/PrivateFile.h"
#include "ui/disk/CDiskWork.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace thisapp {

using namespace tessaly;

namespace {

struct KeyFileDialogs
{
    Q_DECLARE_TR_FUNCTIONS(KeyFileDialogs)
};

QString textFiles()
{
    return KeyFileDialogs::tr("Text files") + QStringLiteral(" (*.txt)");
}

SKeyFileOutcome notSaved(const QString& reason)
{
    return {KeyFileDialogs::tr("The key and IV could not be saved: %1").arg(reason)};
}

SKeyFileOutcome loaded(SKeyFile key, const QString& algorithmName)
{
    const QString savedFor = QString::fromStdString(key.algorithm);
    if (savedFor.isEmpty() || savedFor == algorithmName)
        return {KeyFileDialogs::tr("The key and IV were loaded."), MessageKind::Success, std::move(key)};
    return {KeyFileDialogs::tr("The key and IV were saved for %1. The selected algorithm is %2.")
                .arg(savedFor, algorithmName),
            MessageKind::Warning, std::move(key)};
}

} // namespace

std::optional<SKeyFileOutcome> saveKeyFile(QWidget& parent, CDiskWork& disk, const QString& algorithmName,
                                           SecretText text)
{
    const QString path =
        QFileDialog::getSaveFileName(&parent, KeyFileDialogs::tr("Save key and IV"),
                                     KeyFileDialogs::tr("%1 key and IV.txt").arg(algorithmName), textFiles());
    if (path.isEmpty())
        return std::nullopt;
    const auto saved = disk.start<std::optional<ResultCode>>(
        [file = textPath(path), text = std::move(text)] { return io::writePrivateFile(file, text.view()); });
    if (!disk.wait(saved) || !saved.get())
        return notSaved(KeyFileDialogs::tr("no answer from the disk"));
    if (!saved.get()->ok())
        return notSaved(qt_error_string(static_cast<int>(saved.get()->code)));
    return SKeyFileOutcome{KeyFileDialogs::tr("The key and IV were saved. Only you can read the file."),
                           MessageKind::Success};
}

std::optional<SKeyFileOutcome> loadKeyFile(QWidget& parent, CDiskWork& disk, const QString& algorithmName)
{
    const QString path = QFileDialog::getOpenFileName(
        &parent, KeyFileDialogs::tr("Load key and IV"), QString(),
        textFiles() + QStringLiteral(";;") + KeyFileDialogs::tr("All files") + QStringLiteral(" (*)"));
    if (path.isEmpty())
        return std::nullopt;
    const auto read = disk.start<std::optional<SecretBytes>>([file = textPath(path)] {
        SecretBytes bytes;
        return io::readSmallFile(file, bytes).ok() ? std::optional(std::move(bytes)) : std::nullopt;
    });
    if (!disk.wait(read) || !read.get())
        return SKeyFileOutcome{KeyFileDialogs::tr("The file cannot be read.")};
    const SecretBytes& bytes = *read.get();
    auto key = parseKeyFile({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (!key)
        return SKeyFileOutcome{KeyFileDialogs::tr("The file holds no key and IV.")};
    return loaded(std::move(*key), algorithmName);
}

} // namespace thisapp
