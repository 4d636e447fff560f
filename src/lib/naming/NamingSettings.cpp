#include "lib/naming/NamingSettings.h"

#include "lib/settings/OptionsStore.h"
#include "lib/settings/SAppOptions.h"

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

NamingSettings readNamingSettings(const QSettings& settings)
{
    return NamingSettings(readStoredOptions(settings));
}

} // namespace thisapp
