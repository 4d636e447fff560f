#include "app/desktop/windows/shell/ContextMenu.h"

#include "app/desktop/ShellCommand.h"
#include "common/path/PathText.h"

#include <QDir>
#include <QMap>
#include <QSettings>

namespace thisapp::desktop {

namespace {

using Values = QMap<QString, QString>;

constexpr QLatin1String Key("Quillet");
constexpr QLatin1String FirstIcon(",0");

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// "." is a key's value without a name.
Values wantedValues(const QString& program)
{
    Values values{
        {QStringLiteral("MUIVerb"), Key},
        {QStringLiteral("Icon"), program + FirstIcon},
        {QStringLiteral("MultiSelectModel"), QStringLiteral("Single")},
        {QStringLiteral("SubCommands"), QString()}, // the entries stand below
    };
    int number = 0;
    for (const ShellCommand& command : shellCommands()) {
        // The menu has them in the order of their names.
        const QString entry = QStringLiteral("shell/%1%2/").arg(++number).arg(text(std::string(command.id)));
        const QString options = text(std::string(command.options)).replace('-', '/');
        values[entry + QStringLiteral("MUIVerb")] = text(shellText(command.name));
        values[entry + QStringLiteral("command/.")] =
            '"' + program + QLatin1String("\" ") + options + QLatin1String("/ifile \"%L\"");
    }
    return values;
}

/// Opens the menus' key for a while.
class Menus
{
public:
    Menus()
        : m_settings(QStringLiteral("HKEY_CURRENT_USER\\Software\\Classes\\*\\shell"),
                     QSettings::NativeFormat)
    {
    }

    Values ours()
    {
        Values values;
        m_settings.beginGroup(Key);
        for (const QString& name : m_settings.allKeys())
            values[name] = m_settings.value(name).toString();
        m_settings.endGroup();
        return values;
    }

    bool putOurs(const Values& values)
    {
        m_settings.remove(Key);
        m_settings.beginGroup(Key);
        for (auto value = values.begin(); value != values.end(); ++value)
            m_settings.setValue(value.key(), value.value());
        m_settings.endGroup();
        m_settings.sync();
        return m_settings.status() == QSettings::NoError;
    }

private:
    QSettings m_settings;
};

} // namespace

std::filesystem::path ContextMenu::program()
{
    QString icon = Menus().ours().value(QStringLiteral("Icon"));
    icon.chop(FirstIcon.size());
    return textPath(icon);
}

bool ContextMenu::write(const QString& program)
{
    const Values wanted = wantedValues(QDir::toNativeSeparators(program));
    Menus menus;
    return menus.ours() == wanted || menus.putOurs(wanted);
}

bool ContextMenu::remove()
{
    Menus menus;
    return menus.ours().isEmpty() || menus.putOurs({});
}

} // namespace thisapp::desktop
