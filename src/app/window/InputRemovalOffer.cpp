#include "app/window/InputRemovalOffer.h"

#include "app/job/InputRemoval.h"
#include "app/job/JobReport.h"
#include "app/job/SEncryptData.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/SettingsKeys.h"
#include "lib/platform/File.h"
#include "ui/disk/CDiskWork.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace thisapp {

using namespace tessaly;

namespace {

struct OfferText
{
    Q_DECLARE_TR_FUNCTIONS(InputRemoval)
};

/// What the disk says of both files.
struct Look
{
    bool areBothThere = false;
    std::optional<KeepReason> reasonToKeep;
};

Look lookAt(const SEncryptData& ended)
{
    const bool areThere = platform::fileStatus(ended.request.output).exists() &&
                          platform::fileStatus(ended.request.input).exists();
    return {areThere, reasonToKeepInput(ended)};
}

bool confirm(QWidget& window, const QString& inputPath)
{
    const QString text = OfferText::tr("Are you sure you want to delete the input file after encryption?") +
                         '\n' + OfferText::tr("File") + QStringLiteral(": '") + inputPath +
                         QStringLiteral("'\n");
    QMessageBox box(QMessageBox::Question, OfferText::tr("Deleting the input file"), text,
                    QMessageBox::Yes | QMessageBox::No, &window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

bool isInputRemovalWanted(QWidget& window, const SEncryptData& ended, CDiskWork& disk, IMessageAreas& areas)
{
    const CAppSettings settings;
    if (ended.operation != Operation::Encrypt || !ended.outcome.done() ||
        !readSetting(settings, keys::DeleteSourceFileAfterEncryption))
        return false;
    const auto look = disk.start<Look>([ended] { return lookAt(ended); });
    if (!disk.wait(look) || !look.get().areBothThere)
        return false;
    if (const auto reason = look.get().reasonToKeep) {
        reportInputRemoval({reason, {}}, ended, areas);
        return false;
    }
    return !readSetting(settings, keys::ConfirmDeleteSourceFileAfterEncryption) ||
           confirm(window, pathText(ended.request.input));
}

} // namespace thisapp
