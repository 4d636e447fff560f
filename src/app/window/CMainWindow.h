#pragma once

#include "app/job/CFileJob.h"
#include "app/job/CMsgDispatcher.h"
#include "app/queue/FileQueue.h"
#include "app/widgets/IFilesDragDropEvent.h"
#include "app/window/Actions.h"
#include "app/window/CAlgorithmOffer.h"
#include "app/window/CInputField.h"
#include "app/window/CQueueJob.h"
#include "app/window/DialogCommands.h"
#include "app/window/FieldCommands.h"
#include "app/window/InputLook.h"
#include "app/window/JobDisplay.h"
#include "app/window/OptionsHandler.h"
#include "common/settings/IAppOptionsChanged.h"
#include "crypto/cipher/ICipherFactory.h"
#include "crypto/sealed/Argon2.h"
#include "ui/disk/CDiskWork.h"

#include <QMainWindow>
#include <QStringList>

class CJobFrame;

namespace thisapp {

/// What the main window works with; all of it outlives the window.
struct WindowServices
{
    const tessaly::crypto::IEncryptorFactory& encryptors;
    const tessaly::crypto::IDecryptorFactory& decryptors;
    const ICryptoAlgProvider& algorithms;
    OptionsHandler& options;
    desktop::ITaskbarProgress& taskbar;
    desktop::INotifier& notifier;
    InputLook look = lookAtInput;
    tessaly::crypto::Argon2Cost cost = {}; ///< see FileJobRequest
    std::chrono::milliseconds offerLifetime = CAlgorithmOffer::Lifetime;
};

} // namespace thisapp

/// The window in which the user encrypts and decrypts files, one job at a time, or a list of them. Destroying
/// it stops a running job and waits for it.
class CMainWindow final : public QMainWindow, public IFilesDragDropEvent, public thisapp::IAppOptionsChanged
{
    Q_OBJECT

public:
    using SEncryptor = thisapp::SEncryptor;

    explicit CMainWindow(const thisapp::WindowServices& services);
    ~CMainWindow() override;

    /// `arguments` are those after the program's name.
    void processCommandLine(const QStringList& arguments);

    /// Stops a running job and waits for at most that long; false when it has not ended by then.
    [[nodiscard]] bool endJob(unsigned milliseconds) { return m_job.end(milliseconds); }

    void filesDropped(int widgetId, const QList<QUrl>& urls) override;
    thisapp::SAppliedOptions appOptionsChanged(const thisapp::SAppOptions& options) override;

public slots:
    void onUiEncryptItem();
    void onUiDecryptItem();
    void onUiStopItem();
    void onUiClearItem();
    void onUiQuitItem();

private slots:
    void onUiEncryptStarted();
    void onUiEncryptProgressChanged();
    void onUiEncryptFinished();
    void onUiInputRemovalFinished();
    void onUiInputFacts();
    void onUiOfferTaken(const thisapp::SEncryptData& request);
    /// Brings enabled states and title in line with the fields and the job.
    void refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void run(const thisapp::Command& command);
    void connectForm();
    void connectJob();
    void requestJob(thisapp::Operation operation);
    void startJob(const thisapp::JobRequest& request, thisapp::SEncryptData job);
    bool isRunning() const { return m_job.isRunning() || m_queueJob.isRunning(); }

    void resetMessages();
    void setTitle();

    const thisapp::WindowServices m_services;
    CMsgDispatcher m_dispatcher;
    thisapp::FileQueue m_queue;
    CJobFrame* m_form;
    CDiskWork m_disk;
    CInputField m_input;
    thisapp::FieldCommands m_fields;
    thisapp::DialogCommands m_dialogs;
    thisapp::Actions m_actions;
    thisapp::JobDisplay m_display;
    CAlgorithmOffer m_offer;
    /// Its end, which waits for the worker, comes before that of the rest.
    thisapp::CFileJob m_job;
    CQueueJob m_queueJob;
};
