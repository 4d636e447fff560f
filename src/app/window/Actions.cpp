#include "app/window/Actions.h"

#include "app/widgets/SymbolicIcon.h"
#include "ui/shortcuts/Shortcuts.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>
#include <QToolBar>

#include <optional>

namespace thisapp {

namespace {

constexpr char Context[] = "Actions";

enum Menu : std::size_t { File, Commands, Settings, Help };

constexpr const char* MenuTitles[] = {
    QT_TRANSLATE_NOOP("Actions", "&File"),
    QT_TRANSLATE_NOOP("Actions", "A&ctions"),
    QT_TRANSLATE_NOOP("Actions", "&Options"),
    QT_TRANSLATE_NOOP("Actions", "&Help"),
};

struct Row
{
    ActionId id;
    Menu menu;
    const char* text;
    const char* icon;
    std::optional<Command> command = {};
    bool startsGroup = false;
};

constexpr Row Rows[] = {
    {ActionId::AddFile, File, QT_TRANSLATE_NOOP("Actions", "&Add file..."), "add-file", Command::AddFile},
    {ActionId::OpenInputFolder, File, QT_TRANSLATE_NOOP("Actions", "Open folder with &input file"),
     "open-input-folder", Command::OpenInputFolder},
    {ActionId::OpenOutputFolder, File, QT_TRANSLATE_NOOP("Actions", "Open folder with &output file"),
     "open-output-folder", Command::OpenOutputFolder},
    {ActionId::Quit, File, QT_TRANSLATE_NOOP("Actions", "&Quit"), "quit", {}, true},
    {ActionId::Encrypt, Commands, QT_TRANSLATE_NOOP("Actions", "&Encrypt"), "encrypt", Command::Encrypt},
    {ActionId::Decrypt, Commands, QT_TRANSLATE_NOOP("Actions", "&Decrypt"), "decrypt", Command::Decrypt},
    {ActionId::Stop, Commands, QT_TRANSLATE_NOOP("Actions", "&Stop encryption/decryption"), "stop",
     Command::Stop},
    {ActionId::Clear, Commands, QT_TRANSLATE_NOOP("Actions", "&Clear entered data"), "clear", Command::Clear,
     true},
    {ActionId::Options, Settings, QT_TRANSLATE_NOOP("Actions", "&Options..."), "options"},
    {ActionId::DefaultAlgorithm, Settings, QT_TRANSLATE_NOOP("Actions", "&Default algorithm..."),
     "default-algorithm"},
    {ActionId::AlgorithmInfo, Help, QT_TRANSLATE_NOOP("Actions", "&Information about algorithms..."),
     "algorithm-info"},
    {ActionId::Shortcuts, Help, QT_TRANSLATE_NOOP("Actions", "&Keyboard shortcuts..."), "shortcuts"},
    {ActionId::About, Help, QT_TRANSLATE_NOOP("Actions", "&About..."), "about", {}, true},
};
static_assert(std::size(Rows) == static_cast<std::size_t>(ActionId::Count));

QString translated(const char* text)
{
    return QCoreApplication::translate(Context, text);
}

/// The keys of a command as the platform prints them.
QStringList keysOf(const std::optional<Command>& command)
{
    QStringList keys;
    for (const Shortcut& shortcut : shortcuts())
        if (command == shortcut.command)
            keys += shortcut.sequence().toString(QKeySequence::NativeText);
    return keys;
}

/// What the tool tip says: the text without mnemonic and dots, and the keys.
QString toolTip(const QString& text, const QStringList& keys)
{
    QString tip = text;
    tip.remove('&').remove(QStringLiteral("..."));
    return keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys.join(QStringLiteral(", ")));
}

} // namespace

Actions::Actions(QMainWindow& window) : m_toolBar(window.addToolBar(QString()))
{
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    for (QMenu*& menu : m_menus)
        menu = window.menuBar()->addMenu(QString());
    std::optional<Menu> lastMenu;
    for (const Row& row : Rows) {
        auto* action = new QAction(symbolicIcon(row.icon), QString(), &window);
        m_actions[static_cast<std::size_t>(row.id)] = action;
        if (row.startsGroup)
            m_menus[row.menu]->addSeparator();
        m_menus[row.menu]->addAction(action);
        if (row.id == ActionId::Quit)
            continue;
        if (row.startsGroup || (lastMenu && *lastMenu != row.menu))
            m_toolBar->addSeparator();
        m_toolBar->addAction(action);
        lastMenu = row.menu;
    }
    (*this)[ActionId::Quit].setMenuRole(QAction::QuitRole);
    (*this)[ActionId::Options].setMenuRole(QAction::PreferencesRole);
    (*this)[ActionId::About].setMenuRole(QAction::AboutRole);
    retranslate();
}

void Actions::retranslate()
{
    m_toolBar->setWindowTitle(translated(QT_TRANSLATE_NOOP("Actions", "Tool bar")));
    for (std::size_t i = 0; i < MenuCount; ++i)
        m_menus[i]->setTitle(translated(MenuTitles[i]));
    for (const Row& row : Rows) {
        QAction& action = (*this)[row.id];
        const QString text = translated(row.text);
        const QStringList keys = keysOf(row.command);
        // What stands behind a tab is shown as the shortcut.
        action.setText(keys.isEmpty() ? text : text + '\t' + keys.front());
        action.setToolTip(toolTip(text, keys));
        action.setIconText(toolTip(text, {}));
    }
}

} // namespace thisapp
