#include "ui/algorithms/DefaultAlgCommand.h"

#include "ui/algorithms/CSetAlgDialog.h"
#include "ui/algorithms/ICryptoAlgProvider.h"

namespace thisapp {

std::optional<SDefaultAlgOutcome> askDefaultAlgorithm(QWidget* parent, const ICryptoAlgProvider& provider,
                                                      const std::optional<AlgSelection>& stored)
{
    CSetAlgDialog dialog(parent);
    dialog.setProvider(provider);
    dialog.setSelection(stored && provider.isValid(*stored) ? *stored : DefaultAlgSelection);
    dialog.setUseAsDefault(true);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const AlgSelection chosen = dialog.selection();
    if (!chosen.isComplete() || !provider.isValid(chosen))
        return std::nullopt;
    return SDefaultAlgOutcome{chosen, dialog.useAsDefault()};
}

} // namespace thisapp
