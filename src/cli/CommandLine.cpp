#include "cli/CommandLine.h"

#include "crypto/catalogue/Catalogue.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

constexpr const char* Footer = R"(
Without a password file or key files, the password is asked for on the terminal.
Exit status: 0 done, 1 failed, 2 wrong usage, 3 wrong password, key, IV or algorithm or
a damaged file, 130 interrupted.)";

struct Parsed
{
    Arguments arguments;
    std::string algorithm{tessaly::crypto::displayName(tessaly::crypto::DefaultAlgorithmId)};
};

/// What is wrong with the name of a file; empty when nothing is.
std::string emptyNameProblem(const std::string& name)
{
    return name.empty() ? "the name is empty" : "";
}

CLI::App* addCipherCommand(CLI::App& app, Parsed& parsed, const char* name, const char* description,
                           const char* defaultOutput)
{
    Arguments& arguments = parsed.arguments;
    CLI::App* command = app.add_subcommand(name, description);
    command->add_option("--algorithm", parsed.algorithm, "as listed by `algorithms`, letter case ignored")
        ->type_name("NAME")
        ->capture_default_str();
    CLI::Option* password = command->add_option("--password-file", arguments.passwordFile,
                                                "the password is its first line; - is standard input");
    CLI::Option* key = command->add_option("--key-file", arguments.keyFile,
                                           "the key in hexadecimal, or what the window saved");
    CLI::Option* iv =
        command->add_option("--iv-file", arguments.ivFile, "the IV in hexadecimal, or what the window saved");
    password->type_name("FILE")->excludes(key)->excludes(iv);
    key->type_name("FILE");
    iv->type_name("FILE")->needs(key);
    command->add_option("--output", arguments.output, defaultOutput)
        ->type_name("OUT")
        ->check(emptyNameProblem);
    command->add_flag("--force", arguments.force, "replace an existing output");
    command->add_option("INPUT", arguments.input, "the file to read")->required()->type_name("");
    command->footer(Footer);
    return command;
}

/// CLI11's messages can span lines; ours are one line each.
std::string oneLine(std::string text)
{
    if (const auto end = text.find('\n'); end != std::string::npos)
        text.resize(end);
    return text;
}

} // namespace

ParseOutcome parseCommandLine(int argc, char** argv)
{
    Parsed parsed;
    CLI::App app("Encrypts and decrypts single files with any of " +
                     std::to_string(tessaly::crypto::catalogue().size()) + " symmetric algorithms.",
                 "quillet-cli");
    app.set_version_flag("--version", "quillet-cli " QUILLET_VERSION);
    app.require_subcommand(1);
    app.footer(Footer);

    CLI::App* encrypt = addCipherCommand(app, parsed, "encrypt", "Encrypt one file", "instead of INPUT.enc");
    CLI::Option* salt =
        encrypt->add_flag("--salt", parsed.arguments.salt, "make equal files encrypt differently");
    encrypt
        ->add_flag("--seal", parsed.arguments.seal,
                   "make guessing the password expensive and any change of the file evident;\n"
                   "takes 256 MiB of memory and a moment; a sealed file is always salted")
        ->excludes(salt);
    CLI::App* decrypt = addCipherCommand(app, parsed, "decrypt", "Decrypt one file, sealed or not",
                                         "instead of INPUT.dec without the .enc");
    CLI::App* algorithms = app.add_subcommand("algorithms", "List the algorithms with their sizes in bytes");
    algorithms->add_flag("--json", parsed.arguments.json, "as a JSON array");

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return {{}, app.help(), {}};
    } catch (const CLI::CallForVersion&) {
        return {{}, app.version() + "\n", {}};
    } catch (const CLI::ParseError& error) {
        return {{}, {}, oneLine(error.what())};
    }

    if (algorithms->parsed()) {
        parsed.arguments.command = Command::Algorithms;
        return {parsed.arguments, {}, {}};
    }
    parsed.arguments.command = decrypt->parsed() ? Command::Decrypt : Command::Encrypt;
    const auto* entry = tessaly::crypto::findAlgorithm(std::string_view(parsed.algorithm));
    if (entry == nullptr)
        return {{}, {}, "unknown algorithm \"" + parsed.algorithm + "\"; see quillet-cli algorithms"};
    parsed.arguments.algorithmId = entry->id;
    return {parsed.arguments, {}, {}};
}

} // namespace cli
