#include "cli/CommandTable.h"

#include <algorithm>

namespace cli {

namespace {

constexpr unsigned Encrypts = bitOf(Command::Encrypt);
constexpr unsigned Decrypts = bitOf(Command::Decrypt);
constexpr unsigned Verifies = bitOf(Command::Verify);
constexpr unsigned Writes = Encrypts | Decrypts;
constexpr unsigned Reads = Writes | Verifies;

constexpr CommandRow Commands[] = {
    {Command::Encrypt, "encrypt", "FILE...", "Encrypt files",
     "Each output stands beside its input and is called FILE.enc; that of standard input goes to standard "
     "output."},
    {Command::Decrypt, "decrypt", "FILE...", "Decrypt files, sealed or not",
     "Each output stands beside its input: x.enc becomes x where that is free, else x.dec; that of standard "
     "input goes to standard output. Each piece of a sealed file is checked before it is written; the plain "
     "format cannot tell whether the data was changed."},
    {Command::Verify, "verify", "FILE...", "Check password and files without writing anything",
     "Tells for each file whether the password fits, which algorithm it was encrypted with, and whether it "
     "is "
     "sealed, whole and unchanged."},
    {Command::Algorithms, "algorithms", "", "List the algorithms with their sizes in bytes", ""},
};

constexpr OptionRow Options[] = {
    {Encrypts, 'a', "algorithm", "NAME", "as listed by \"algorithms\", letter case ignored; else AES-256",
     &Words::algorithm},
    {Decrypts | Verifies, 'a', "algorithm", "NAME",
     "as listed by \"algorithms\", letter case ignored; else it is found out", &Words::algorithm},
    {Writes, 'o', "output", "FILE", "where the result of a single input goes; - is standard output",
     &Words::output},
    {Writes, 'f', "force", nullptr, "replace existing outputs", &Words::force},
    {Encrypts, 's', "seal", nullptr,
     "make guessing the password expensive and any change of the file evident; takes 256 MiB of memory and a "
     "moment; a sealed file is always salted",
     &Words::seal},
    {Encrypts, 0, "salt", nullptr, "make equal files encrypt differently each second", &Words::salt},
    {Reads, 0, "password-file", "FILE", "the password is its first line; - is standard input",
     &Words::passwordFile},
    {Reads, 0, "key-file", "FILE", "the key in hexadecimal, or what the window saved", &Words::keyFile},
    {Reads, 0, "iv-file", "FILE", "the IV in hexadecimal, or what the window saved", &Words::ivFile},
    {Reads, 'q', "quiet", nullptr, "tell nothing but errors", &Words::quiet},
    {bitOf(Command::Algorithms), 0, "json", nullptr, "as a JSON array", &Words::json},
    {Reads | bitOf(Command::Algorithms), 'h', "help", nullptr, "tell what can be said here", &Words::help},
    {0, 'h', "help", nullptr, "tell what can be said here", &Words::help},
    {0, 'V', "version", nullptr, "tell the version", &Words::version},
};

constexpr OptionRule Rules[] = {
    {"password-file", false, "key-file"},
    {"password-file", false, "iv-file"},
    {"iv-file", true, "key-file"},
    {"salt", false, "seal"},
};

} // namespace

std::span<const CommandRow> commandRows()
{
    return Commands;
}

std::span<const OptionRow> optionRows()
{
    return Options;
}

std::span<const OptionRule> optionRules()
{
    return Rules;
}

const CommandRow* findCommand(const std::string& name)
{
    const auto* row = std::ranges::find_if(Commands, [&](const CommandRow& one) { return name == one.name; });
    return row == std::end(Commands) ? nullptr : row;
}

const CommandRow& rowOf(Command command)
{
    return *std::ranges::find(Commands, command, &CommandRow::command);
}

} // namespace cli
