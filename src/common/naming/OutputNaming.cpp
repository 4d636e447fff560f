#include "common/naming/OutputNaming.h"

#include "common/path/PathText.h"
#include "lib/platform/Folders.h"
#include "lib/platform/Path.h"

#include <QDir>
#include <QFileInfo>

namespace thisapp {
namespace {

/// Longer names are left as they are, so that the output stays within what file systems allow.
constexpr int MaxExtendedNameLength = 128;

/// A file name cut at its last dot. The extension, kept with its dot, is empty when nothing follows.
struct SplitName
{
    explicit SplitName(const QString& name)
    {
        const int dot = name.lastIndexOf(QLatin1Char('.'));
        stem = dot < 0 ? name : name.left(dot);
        if (dot >= 0 && dot + 1 < name.size())
            dottedExt = name.mid(dot);
    }

    bool hasExt(const QString& ext) const
    {
        return !dottedExt.isEmpty() && dottedExt.midRef(1).compare(ext, Qt::CaseInsensitive) == 0;
    }

    QString stem;
    QString dottedExt;
};

QString datePart(int value, int digits)
{
    return value == 0 ? QString() : QStringLiteral("_%1").arg(value, digits, 10, QLatin1Char('0'));
}

QString dateText(const QDate& date)
{
    return datePart(date.year(), 4) + datePart(date.month(), 2) + datePart(date.day(), 2);
}

QString decoratedStem(const QString& stem, const NameParts& parts, const QDate& today)
{
    return (parts.addPrefix ? parts.prefix : QString()) + stem +
           (parts.addDate ? dateText(today) : QString()) + (parts.addSuffix ? parts.suffix : QString());
}

QString withExtension(const QString& name, const QString& ext)
{
    const QLatin1Char dot('.');
    return name.endsWith(dot) || ext.startsWith(dot) ? name + ext : name + dot + ext;
}

QString compose(const QString& name, const NameParts& parts, bool addExt, const QDate& today)
{
    const SplitName split(name);
    const bool tooLong = name.size() > MaxExtendedNameLength;
    const QString stem = tooLong ? split.stem : decoratedStem(split.stem, parts, today);
    const QString composed = stem + split.dottedExt;
    return addExt && !parts.ext.isEmpty() ? withExtension(composed, parts.ext) : composed;
}

/// The name of a file may begin with a colon, which Qt takes for a place in its resources.
QString fileText(const QString& path)
{
    return path.startsWith(QLatin1Char(':')) ? QLatin1String("./") + path : path;
}

QString outputFolder(const QFileInfo& input, const NamingSettings& settings, const FolderMaker& folderMaker)
{
    const QString& folder = settings.outputDirPath;
    const bool useDefault = settings.useDefaultOutputDir && !folder.isEmpty() && folderMaker(folder);
    return useDefault ? folder : input.absolutePath();
}

} // namespace

bool makeFolder(const QString& path)
{
    return tessaly::platform::createFolders(tessaly::platform::nativeText(textPath(path))).ok();
}

NamingDirection namingDirection(const QString& fileName, const NamingSettings& settings)
{
    return SplitName(fileName).hasExt(settings.encryption.ext) ? NamingDirection::Decryption
                                                               : NamingDirection::Encryption;
}

QString outputFileName(const QString& fileName, NamingDirection direction, const NamingSettings& settings,
                       const QDate& today)
{
    const bool encrypting = direction == NamingDirection::Encryption;
    const NameParts& parts = encrypting ? settings.encryption : settings.decryption;
    const NameParts& opposite = encrypting ? settings.decryption : settings.encryption;
    const SplitName split(fileName);

    if (encrypting && split.hasExt(parts.ext))
        return compose(fileName, parts, false, today);
    // The other direction's extension is replaced instead of stacked, whatever addExt says.
    if (split.hasExt(opposite.ext))
        return compose(split.stem + QLatin1Char('.') + parts.ext, parts, false, today);
    return compose(fileName, parts, parts.addExt, today);
}

QString outputPath(const QString& inputPath, const NamingSettings& settings, const QDate& today,
                   const FolderMaker& folderMaker)
{
    const QFileInfo input(fileText(inputPath));
    if (!settings.autogenerate || input.fileName().isEmpty())
        return {};
    const QString name =
        outputFileName(input.fileName(), namingDirection(input.fileName(), settings), settings, today);
    const QDir folder(outputFolder(input, settings, folderMaker));
    return QDir::toNativeSeparators(QDir::cleanPath(folder.absoluteFilePath(fileText(name))));
}

} // namespace thisapp
