#include "app/window/DialogCommands.h"

#include "app/window/CJobFrame.h"
#include "app/window/Commands.h"
#include "app/window/OptionsHandler.h"
#include "common/settings/IAppOptionsChanged.h"
#include "ui/algorithms/CAlgInfoDialog.h"
#include "ui/algorithms/CSelectAlgFrame.h"
#include "ui/algorithms/DefaultAlgCommand.h"
#include "ui/info/CAboutDialog.h"
#include "ui/info/CkeyboardShortcutInfoDialog.h"
#include "ui/options/COptionsDialog.h"

namespace thisapp {

DialogCommands::DialogCommands(QWidget& window, const ICryptoAlgProvider& algorithms, OptionsHandler& options,
                               CJobFrame& form, IAppOptionsChanged& receiver)
    : m_window(window), m_algorithms(algorithms), m_options(options), m_form(form), m_receiver(receiver)
{
}

void DialogCommands::onUiOptionsItem()
{
    COptionsDialog dialog(&m_window);
    dialog.setLanguages(m_options.languages());
    dialog.setAlgProvider(m_algorithms);
    dialog.setShortcuts(shortcuts());
    dialog.setLogFilePath(m_options.logFilePath());
    dialog.setReceiver(&m_receiver);
    dialog.setOptions(m_options.read());
    QString told = m_options.problem();
    dialog.setProblem(told);
    while (dialog.exec() == QDialog::Accepted) {
        const SAppliedOptions applied = m_receiver.appOptionsChanged(dialog.options());
        if (applied.problem.isEmpty() || applied.problem == told)
            return;
        told = applied.problem;
        dialog.setApplied(applied); // it comes back and tells of the problem
    }
}

void DialogCommands::onUiDefaultAlgorithmItem()
{
    const auto outcome = askDefaultAlgorithm(&m_window, m_algorithms, m_options.defaultAlgorithm());
    if (!outcome)
        return;
    m_form.algFrame().setSelection(outcome->current);
    if (outcome->storeAsDefault && !m_options.storeDefaultAlgorithm(outcome->current))
        m_form.showMessage(Area::Result,
                           {MessageKind::Error, [problem = m_options.problem()] { return problem; }});
}

void DialogCommands::onUiAlgorithmInfoItem()
{
    CAlgInfoDialog dialog(&m_window);
    dialog.setProvider(m_algorithms);
    dialog.setSelection(m_form.algFrame().selection());
    dialog.exec();
}

void DialogCommands::onUiShortcutsItem()
{
    CkeyboardShortcutInfoDialog dialog(&m_window);
    dialog.setShortcuts(shortcuts());
    dialog.exec();
}

void DialogCommands::onUiAboutItem()
{
    CAboutDialog(&m_window).exec();
}

} // namespace thisapp
