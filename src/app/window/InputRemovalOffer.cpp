#include "app/window/InputRemovalOffer.h"

#include "app/job/InputRemoval.h"
#include "app/job/JobReport.h"
#include "app/job/SEncryptData.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/SettingsKeys.h"
#include "lib/platform/File.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace thisapp {

using namespace tessaly;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(InputRemoval)
};

bool isThere(const std::filesystem::path& path)
{
    return platform::fileStatus(path).exists();
}

bool confirm(QWidget& window, const QString& inputPath)
{
    const QString text = Text::tr("Are you sure you want to delete the input file after encryption?") + '\n' +
                         Text::tr("File") + QStringLiteral(": '") + inputPath + QStringLiteral("'\n");
    QMessageBox box(QMessageBox::Question, Text::tr("Deleting the input file"), text,
                    QMessageBox::Yes | QMessageBox::No, &window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

bool isInputRemovalWanted(QWidget& window, const SEncryptData& ended, IMessageAreas& areas)
{
    if (ended.operation != Operation::Encrypt || !ended.outcome.done() || !isThere(ended.request.output) ||
        !isThere(ended.request.input))
        return false;
    const CAppSettings settings;
    if (!readSetting(settings, keys::DeleteSourceFileAfterEncryption))
        return false;
    if (const auto reason = reasonToKeepInput(ended)) {
        reportInputRemoval({reason, {}}, areas);
        return false;
    }
    return !readSetting(settings, keys::ConfirmDeleteSourceFileAfterEncryption) ||
           confirm(window, pathText(ended.request.input));
}

} // namespace thisapp
