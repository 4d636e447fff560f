#include "app/desktop/linux/shell/ThunarActions.h"

#include "app/desktop/ShellCommand.h"
#include "app/desktop/linux/shell/CommandQuoting.h"
#include "app/desktop/linux/shell/OwnedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace thisapp::desktop {

namespace {

constexpr qint64 MostOfActions = 1 << 20; ///< bytes; the user may have many actions
const QLatin1String FileName("/Thunar/uca.xml");
const QLatin1String IdKey("unique-id");

/// The children of an action that tell it from another version of itself.
using Facts = std::map<QString, QString>;

struct Action
{
    int begin; ///< of "<action>"
    int end;   ///< behind "</action>" and the end of its line
    Facts facts;
};

struct Document
{
    std::vector<Action> actions;
    int end = -1; ///< where "</actions>" begins
};

/// The children without a language, which are those that we write.
Facts readFacts(QXmlStreamReader& reader)
{
    Facts facts;
    while (reader.readNextStartElement()) {
        const QString key = reader.name().toString();
        const bool isTranslation = !reader.attributes().isEmpty();
        const QString value = reader.readElementText(QXmlStreamReader::SkipChildElements);
        if (!isTranslation)
            facts[key] = value;
    }
    return facts;
}

/// Nothing for what Thunar wouldn't read either.
std::optional<Document> parse(const QString& xml)
{
    QXmlStreamReader reader(xml);
    Document document;
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("actions"))
        return std::nullopt;
    while (reader.readNextStartElement()) {
        Action action{xml.lastIndexOf('<', static_cast<int>(reader.characterOffset()) - 1), 0,
                      readFacts(reader)};
        action.end = static_cast<int>(reader.characterOffset());
        if (xml.midRef(action.end, 1) == QLatin1String("\n"))
            ++action.end;
        document.actions.push_back(std::move(action));
    }
    document.end = xml.lastIndexOf(QLatin1String("</"), static_cast<int>(reader.characterOffset()) - 1);
    // "<actions/>" has no end to write before.
    return reader.hasError() || document.end < 0 ? std::nullopt : std::optional(document);
}

/// Ours, in the order of the menu. A percent sign alone would begin a field code.
std::vector<Facts> ourActions(const std::string& program)
{
    std::vector<Facts> ours;
    for (const ShellCommand& command : shellCommands()) {
        if (command.options.empty())
            continue; // Thunar has an entry to open files, and one to send them
        const std::string options(command.options);
        const QString word = QFile::decodeName(shellWord(program).c_str()).replace('%', QLatin1String("%%"));
        const QString id = QStringLiteral("quillet-") + QString::fromStdString(std::string(command.id));
        ours.push_back({
            {IdKey, id},
            {QStringLiteral("icon"), QStringLiteral("quillet")},
            {QStringLiteral("name"), QString::fromStdString(shellText(command.name))},
            {QStringLiteral("description"), QString::fromStdString(shellText(command.comment))},
            {QStringLiteral("command"),
             word + ' ' + QString::fromStdString(options) + QLatin1String("-ifile %F")},
        });
    }
    return ours;
}

QString idOf(const Facts& facts)
{
    const auto id = facts.find(IdKey);
    return id == facts.end() ? QString() : id->second;
}

bool isOurs(const Action& action)
{
    return idOf(action.facts).startsWith(QLatin1String("quillet-"));
}

QString actionText(const Facts& facts)
{
    QString text = QStringLiteral("<action>\n");
    for (const auto& [key, value] : facts)
        text += QStringLiteral("\t<%1>%2</%1>\n").arg(key, value.toHtmlEscaped());
    return text + QLatin1String("\t<range>*</range>\n\t<patterns>*</patterns>\n\t<startup-notify/>\n"
                                "\t<audio-files/>\n\t<image-files/>\n\t<other-files/>\n\t<text-files/>\n"
                                "\t<video-files/>\n</action>\n");
}

bool isUpToDate(const Action& action, const Facts& facts)
{
    return std::ranges::all_of(facts, [&action](const auto& fact) {
        const auto found = action.facts.find(fact.first);
        return found != action.facts.end() && found->second == fact.second;
    });
}

/// The text with `wanted` as our actions: what is among them already keeps its place.
QString merged(QString xml, const Document& document, const std::vector<Facts>& wanted)
{
    QString added;
    for (const Facts& facts : wanted)
        if (std::ranges::none_of(document.actions,
                                 [&](const Action& action) { return idOf(action.facts) == idOf(facts); }))
            added += actionText(facts);
    xml.insert(document.end, added);
    // From the end on, as the offsets hold for what stands before a change.
    for (auto action = document.actions.rbegin(); action != document.actions.rend(); ++action) {
        if (!isOurs(*action))
            continue;
        const auto want = std::ranges::find(wanted, idOf(action->facts), idOf);
        if (want == wanted.end() || !isUpToDate(*action, *want))
            xml.replace(action->begin, action->end - action->begin,
                        want == wanted.end() ? QString() : actionText(*want));
    }
    return xml;
}

std::optional<QString> readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > MostOfActions)
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    const QString text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes ? std::optional(text) : std::nullopt; // to the letter, or not at all
}

/// What Thunar goes by where the user has no file.
QString systemText()
{
    for (const QString& folder :
         QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation).mid(1))
        if (const auto text = readText(folder + FileName); text && parse(*text))
            return *text;
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<actions>\n</actions>\n");
}

} // namespace

ThunarActions::ThunarActions(std::string configFolder)
    : m_configFolder(std::move(configFolder)), m_path(QFile::decodeName(m_configFolder.c_str()) + FileName)
{
}

/// Nothing for a file that can't be understood.
std::optional<QString> ThunarActions::read() const
{
    if (!QFile::exists(m_path))
        return systemText();
    auto text = readText(m_path);
    return text && parse(*text) ? text : std::nullopt;
}

std::string ThunarActions::program() const
{
    const auto xml = read();
    const auto document = xml ? parse(*xml) : std::nullopt;
    if (!document)
        return {};
    const auto ours = std::ranges::find_if(document->actions, isOurs);
    if (ours == document->actions.end())
        return {};
    const auto command = ours->facts.find(QStringLiteral("command"));
    QString text = command == ours->facts.end() ? QString() : command->second;
    return firstShellWord(
        QFile::encodeName(text.replace(QLatin1String("%%"), QLatin1String("%"))).toStdString());
}

bool ThunarActions::store(const QString& xml) const
{
    const QByteArray bytes = xml.toUtf8();
    QSaveFile file(m_path); // writes through a symbolic link, and keeps the permissions
    return QDir().mkpath(QFileInfo(m_path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.flush() &&
           file.commit(); // commit() overlooks a failed flush
}

bool ThunarActions::write(const std::string& program) const
{
    const auto xml = read();
    if (!xml)
        return false;
    const QString wanted = merged(*xml, *parse(*xml), ourActions(program));
    return wanted == *xml || store(wanted);
}

bool ThunarActions::remove() const
{
    const auto xml = QFile::exists(m_path) ? read() : QString();
    if (!xml)
        return false;
    const auto document = parse(*xml);
    const QString rest = document ? merged(*xml, *document, {}) : *xml;
    if (rest == *xml)
        return true; // none of ours
    if (rest != systemText() || QFileInfo(m_path).isSymLink())
        return store(rest);
    if (!QFile::remove(m_path))
        return false;
    removeEmptyFolders(QFile::encodeName(QFileInfo(m_path).path()).toStdString(), m_configFolder);
    return true;
}

} // namespace thisapp::desktop
