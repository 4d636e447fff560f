#include "cli/DefaultOutput.h"

#include "common/naming/OutputNaming.h"

#include <filesystem>

namespace cli {

std::string defaultOutput(const std::string& input, Command command)
{
    const auto direction = command == Command::Encrypt ? thisapp::NamingDirection::Encryption
                                                       : thisapp::NamingDirection::Decryption;
    const std::filesystem::path path = input;
    // Latin-1 both ways keeps every byte of a name that is not UTF-8; the rules look at ASCII only.
    const QString name = QString::fromLatin1(path.filename().c_str());
    const QString output =
        thisapp::outputFileName(name, direction, thisapp::NamingSettings(), QDate::currentDate());
    return path.parent_path() / output.toLatin1().toStdString();
}

} // namespace cli
