#include "app/window/Actions.h"

#include "app/widgets/SymbolicIcon.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStringList>
#include <QToolBar>

#include <optional>

namespace thisapp {

namespace {

/// By the order of Menu.
constexpr const char* MenuTitles[] = {
    QT_TRANSLATE_NOOP("Actions", "&File"),
    QT_TRANSLATE_NOOP("Actions", "A&ctions"),
    QT_TRANSLATE_NOOP("Actions", "&Options"),
    QT_TRANSLATE_NOOP("Actions", "&Help"),
};
static_assert(std::size(MenuTitles) == static_cast<std::size_t>(Menu::Count));

QString translated(const char* text)
{
    return QCoreApplication::translate("Actions", text);
}

/// The keys of a command as the platform prints them.
QStringList keysOf(const Command& command)
{
    QStringList keys;
    for (const int key : command.keys)
        if (key != 0)
            keys += QKeySequence(key).toString(QKeySequence::NativeText);
    return keys;
}

/// What the tool tip says: the text without mnemonic and dots, and the keys.
QString toolTip(const QString& text, const QStringList& keys)
{
    QString tip = text;
    // Scripts without Latin letters name the key behind the text: "(&E)".
    static const QRegularExpression keyBehind(QStringLiteral(R"(\s*\(&\w\))"));
    tip.remove(keyBehind).remove('&').remove(QStringLiteral("..."));
    return keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys.join(QStringLiteral(", ")));
}

} // namespace

Actions::Actions(QMainWindow& window, const std::function<void(const Command&)>& run)
    : m_toolBar(window.addToolBar(QString()))
{
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    for (QMenu*& menu : m_menus)
        menu = window.menuBar()->addMenu(QString());
    std::optional<Menu> lastMenu;
    for (const Command& command : commands()) {
        auto* action = new QAction(symbolicIcon(command.id), QString(), &window);
        action->setObjectName(command.id);
        action->setMenuRole(command.role);
        QObject::connect(action, &QAction::triggered, &window, [run, &command] { run(command); });
        m_actions.push_back(action);
        QMenu& menu = *m_menus[static_cast<std::size_t>(command.menu)];
        if (command.startsGroup)
            menu.addSeparator();
        menu.addAction(action);
        if (!command.inToolBar)
            continue;
        if (command.startsGroup || (lastMenu && *lastMenu != command.menu))
            m_toolBar->addSeparator();
        m_toolBar->addAction(action);
        lastMenu = command.menu;
    }
    retranslate();
}

void Actions::setState(const CommandState& state)
{
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        const auto offered = commands()[i].offered;
        m_actions[i]->setEnabled(offered == nullptr || state.*offered);
    }
}

void Actions::retranslate()
{
    m_toolBar->setWindowTitle(translated(QT_TRANSLATE_NOOP("Actions", "Tool bar")));
    for (std::size_t i = 0; i < m_menus.size(); ++i)
        m_menus[i]->setTitle(translated(MenuTitles[i]));
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        const QString text = translated(commands()[i].text);
        const QStringList keys = keysOf(commands()[i]);
        // What stands behind a tab is shown as the shortcut.
        m_actions[i]->setText(keys.isEmpty() ? text : text + '\t' + keys.front());
        m_actions[i]->setToolTip(toolTip(text, keys));
        m_actions[i]->setIconText(toolTip(text, {}));
    }
}

} // namespace thisapp
