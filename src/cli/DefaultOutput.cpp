#include "cli/DefaultOutput.h"

#include "cli/CommandLine.h"
#include "common/naming/OutputNaming.h"
#include "common/path/PathText.h"
#include "common/settings/AppSettings.h"
#include "common/settings/Product.h"
#include "lib/platform/Path.h"

#include <filesystem>

namespace cli {

namespace {

using thisapp::NamingDirection;
using thisapp::NamingSettings;

/// Scripts rely on the defaults; of the user's settings only the extension of encrypted files counts.
NamingSettings namingOf(const QString& encrypted)
{
    NamingSettings naming;
    if (thisapp::namingDirection(encrypted, naming) == NamingDirection::Decryption)
        return naming;
    const QString extension =
        thisapp::readNamingSettings(tessaly::AppSettings(tessaly::QuilletProductId)).encryption.ext;
    if (!extension.isEmpty())
        naming.encryption.ext = extension;
    return naming;
}

} // namespace

std::string defaultOutput(const std::string& input, Command command,
                          const std::function<bool(const std::string&)>& isFree)
{
    const std::filesystem::path path = tessaly::platform::pathFromNative(input);
    const QString name = thisapp::pathText(path.filename());
    const auto beside = [&](const QString& output) {
        const std::string file =
            tessaly::platform::nativeText(path.parent_path() / thisapp::textPath(output));
        return file == StandardStream ? "./" + file : file; // it is the name of a file
    };
    if (command == Command::Encrypt)
        return beside(thisapp::outputFileName(name, NamingDirection::Encryption, NamingSettings(),
                                              QDate::currentDate()));
    const NamingSettings naming = namingOf(name);
    if (thisapp::namingDirection(name, naming) == NamingDirection::Decryption) {
        const QString stem = name.left(name.lastIndexOf(QLatin1Char('.')));
        if (!stem.isEmpty() && isFree(beside(stem)))
            return beside(stem);
    }
    return beside(thisapp::outputFileName(name, NamingDirection::Decryption, naming, QDate::currentDate()));
}

} // namespace cli
