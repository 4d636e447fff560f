#include "common/naming/NamingSettings.h"

#include "common/settings/OptionsStore.h"
#include "common/settings/SAppOptions.h"

namespace thisapp {

NamingSettings::NamingSettings() : NamingSettings(SAppOptions{})
{
}

NamingSettings::NamingSettings(const SAppOptions& options)
    : autogenerate(options.useOutputFileAutogenerator),
      useDefaultOutputDir(options.useDefaultOutputDir),
      outputDirPath(options.outputDirPath),
      encryption{options.encFileNameAddExt,  options.encFileNameAddSuffix, options.encFileNameAddPrefix,
                 options.encFileNameAddDate, options.encFileNameExt,       options.encFileNameSuffix,
                 options.encFileNamePrefix},
      decryption{options.decFileNameAddExt,  options.decFileNameAddSuffix, options.decFileNameAddPrefix,
                 options.decFileNameAddDate, options.decFileNameExt,       options.decFileNameSuffix,
                 options.decFileNamePrefix}
{
}

void NamingSettings::store(SAppOptions& options) const
{
    options.useOutputFileAutogenerator = autogenerate;
    options.useDefaultOutputDir = useDefaultOutputDir;
    options.outputDirPath = outputDirPath;
    options.encFileNameAddExt = encryption.addExt;
    options.encFileNameAddSuffix = encryption.addSuffix;
    options.encFileNameAddPrefix = encryption.addPrefix;
    options.encFileNameAddDate = encryption.addDate;
    options.encFileNameExt = encryption.ext;
    options.encFileNameSuffix = encryption.suffix;
    options.encFileNamePrefix = encryption.prefix;
    options.decFileNameAddExt = decryption.addExt;
    options.decFileNameAddSuffix = decryption.addSuffix;
    options.decFileNameAddPrefix = decryption.addPrefix;
    options.decFileNameAddDate = decryption.addDate;
    options.decFileNameExt = decryption.ext;
    options.decFileNameSuffix = decryption.suffix;
    options.decFileNamePrefix = decryption.prefix;
}

NamingSettings readNamingSettings(const QSettings& settings)
{
    return NamingSettings(readStoredOptions(settings));
}

} // namespace thisapp
