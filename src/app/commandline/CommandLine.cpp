#include "app/commandline/CommandLine.h"

#include "crypto/catalogue/Catalogue.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace thisapp {

using namespace tessaly;

namespace {

struct Option
{
    const char* word;
    bool takesValue;
    void (*apply)(CommandLine& line, const QString& value);
};

constexpr Option Options[] = {
    {"encrypt", false, [](CommandLine& line, const QString&) { line.operation = Operation::Encrypt; }},
    {"decrypt", false, [](CommandLine& line, const QString&) { line.operation = Operation::Decrypt; }},
    {"start", false, [](CommandLine& line, const QString&) { line.start = true; }},
    {"ifile", true, [](CommandLine& line, const QString& value) { line.input = value; }},
    {"ofile", true, [](CommandLine& line, const QString& value) { line.output = value; }},
    {"algorithm", true, [](CommandLine& line, const QString& value) { line.algorithm = value; }},
    {"library", true, [](CommandLine& line, const QString& value) { line.library = value; }},
};

bool hasSign(const QString& argument)
{
    return argument.startsWith('-') || argument.startsWith('/');
}

/// Null for what is no option of the table.
const Option* findOption(const QString& argument)
{
    const auto found = std::ranges::find_if(Options, [&argument](const Option& option) {
        return hasSign(argument) &&
               argument.mid(1).compare(QLatin1String(option.word), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(Options) ? nullptr : found;
}

QString trimmedUnlessFile(const QString& name, const std::function<bool(const QString& path)>& fileExists)
{
    return name != name.trimmed() && fileExists(name) ? name : name.trimmed();
}

bool isOptionWord(const QString& argument, SlashRule rule)
{
    if (rule == SlashRule::KnownWord && argument.startsWith('/'))
        return findOption(argument) != nullptr;
    return hasSign(argument);
}

} // namespace

SlashRule systemSlashRule()
{
    return QDir::rootPath() == QLatin1String("/") ? SlashRule::KnownWord : SlashRule::AnyWord;
}

CommandLine parseCommandLine(const QStringList& arguments, SlashRule rule,
                             const std::function<bool(const QString& path)>& fileExists)
{
    CommandLine line;
    if (arguments.size() == 1) {
        const QString name = trimmedUnlessFile(arguments.front(), fileExists);
        if (fileExists(name)) {
            line.input = name;
            return line;
        }
    }
    for (int i = 0; i < arguments.size(); ++i) {
        const Option* option = findOption(arguments[i]);
        if (option == nullptr) {
            if (!isOptionWord(arguments[i], rule))
                line.words += arguments[i];
            continue;
        }
        if (!option->takesValue)
            option->apply(line, {});
        else if (i + 1 < arguments.size() && !isOptionWord(arguments[i + 1], rule))
            option->apply(line, arguments[++i]);
    }
    if (line.output)
        line.output = trimmedUnlessFile(*line.output, fileExists);
    return line;
}

AlgSelection namedSelection(const CommandLine& line)
{
    const crypto::CatalogueEntry* entry = crypto::findAlgorithm(line.algorithm.toStdString());
    const std::uint32_t number = line.library.toUInt(); // 0 for a name: there is but one
    return {number != 0 ? number : crypto::CryptoPPLibraryId, entry != nullptr ? entry->id : 0};
}

QString quotedArguments(const QStringList& arguments)
{
    QStringList quoted;
    for (const QString& argument : arguments)
        quoted += '"' + argument + '"';
    return quoted.join(' ');
}

} // namespace thisapp
