#pragma once

#include "app/job/Operation.h"

#include "common/settings/AlgSelection.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// The arguments that the program is started with.
namespace thisapp {

struct CommandLine
{
    Operation operation = Operation::Encrypt;
    bool start = false;
    std::optional<QString> input;
    std::optional<QString> output;
    QString algorithm;
    QString library;
    /// The words that are neither options nor their values. Where they name files, these are inputs, too:
    /// a file manager hands over all selected ones as plain arguments.
    QStringList words = {};
};

/// Which arguments the sign "/" makes an option.
enum class SlashRule {
    AnyWord,   ///< every argument that begins with it
    KnownWord, ///< the options alone, as absolute paths begin with it, too
};

/// The rule of this system.
SlashRule systemSlashRule();

/// `arguments` are those after the program's name.
CommandLine parseCommandLine(const QStringList& arguments, SlashRule rule,
                             const std::function<bool(const QString& path)>& fileExists);

/// The pair that the names of algorithm and library give, letter case ignored. Without the option, and
/// for a name that nobody knows, the library is the built-in one. A library may be given by its
/// number, too. Incomplete when no known algorithm is named.
AlgSelection namedSelection(const CommandLine& line);

/// What the log says of the arguments: each in double quotes.
QString quotedArguments(const QStringList& arguments);

} // namespace thisapp
