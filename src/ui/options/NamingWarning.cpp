#include "ui/options/NamingWarning.h"

#include "common/naming/OutputNaming.h"
#include "common/settings/TextRules.h"

#include <QCoreApplication>
#include <QDate>
#include <algorithm>

namespace thisapp {

namespace {

struct NamingWarning
{
    Q_DECLARE_TR_FUNCTIONS(NamingWarning)
};

QString folderWarning(const NamingSettings& naming)
{
    if (!naming.useDefaultOutputDir)
        return {};
    if (!folderPath(naming.outputDirPath))
        return NamingWarning::tr("The default output folder must be an absolute path.");
    return naming.outputDirPath.isEmpty()
               ? NamingWarning::tr("No default output folder is given: files go beside their input.")
               : QString();
}

QString sameNameWarning(const NamingSettings& naming)
{
    const auto nextName = [&](const QString& name) {
        return outputFileName(name, namingDirection(name, naming), naming, QDate::currentDate());
    };
    const auto sameName = [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) == 0;
    };
    const QString encrypted = nextName(SampleInput);
    if (sameName(encrypted, SampleInput))
        return NamingWarning::tr("Encrypted files would get the names of their input files.");
    if (sameName(nextName(encrypted), encrypted))
        return NamingWarning::tr("Decrypted files would get the names of their input files.");
    return {};
}

QString nameWarning(const NamingSettings& naming, NamingDirection direction)
{
    constexpr int MostBytes = 255; // of nearly every file system
    const QString forbidden = QStringLiteral("<>:\"|?*");
    const NameParts& parts = direction == NamingDirection::Encryption ? naming.encryption : naming.decryption;
    const QString name = outputFileName(SampleInput, direction, naming, QDate::currentDate());
    if (name.toUtf8().size() > MostBytes)
        return NamingWarning::tr("File names would become longer than a file system takes.");
    if (parts.addExt && parts.ext.contains(QLatin1Char('.')))
        return NamingWarning::tr("Files are not recognised by an extension with a dot inside.");
    if (std::ranges::any_of(forbidden, [&](QChar c) { return name.contains(c); }))
        return NamingWarning::tr("Windows and most memory sticks take no names with one of %1")
            .arg(forbidden);
    return {};
}

} // namespace

QString namingWarning(const NamingSettings& naming)
{
    if (!naming.autogenerate)
        return {};
    if (const QString warning = folderWarning(naming); !warning.isEmpty())
        return warning;
    for (const NamingDirection direction : {NamingDirection::Encryption, NamingDirection::Decryption})
        if (const QString warning = nameWarning(naming, direction); !warning.isEmpty())
            return warning;
    return naming.useDefaultOutputDir ? QString() : sameNameWarning(naming);
}

} // namespace thisapp
