#pragma once

#include "app/job/IJobRequestHost.h"

#include <QCoreApplication>

class QWidget;

class CInputField;
class CJobFrame;
class CDiskWork;

namespace thisapp {

class CFileJob;
class ICryptoAlgProvider;

/// Answers a request's questions by the window's form, dialogs and job.
class CRequestHost final : public IJobRequestHost
{
    Q_DECLARE_TR_FUNCTIONS(CRequestHost)

public:
    CRequestHost(QWidget& window, CJobFrame& form, CInputField& input, CDiskWork& disk, bool isJobRunning,
                 CFileJob& job, const ICryptoAlgProvider& algorithms);

    bool isJobRunning() const override;
    AlgSelection selection() const override;
    QString inputText() const override;
    QString outputText() const override;
    void setInputText(const QString& text) override;
    void setOutputText(const QString& text) override;
    std::optional<std::filesystem::path> resolve(const QString& text) override;
    std::optional<RequestFacts> look(const std::filesystem::path& input,
                                     const std::filesystem::path& output) override;
    QString chooseInput(const QString& title) override;
    QString chooseOutput(const QString& title) override;
    OnEncrypted askAboutEncrypted(int encrypted, int all) override;
    bool enterPassword(PasswordEntry& entry) override;
    bool enterKeyAndIv(KeyEntry& entry) override;
    bool prepareEngine(Operation operation, const AlgSelection& selection) override;

private:
    QWidget& m_window;
    CJobFrame& m_form;
    CInputField& m_input;
    CDiskWork& m_disk;
    const bool m_isJobRunning;
    CFileJob& m_job;
    const ICryptoAlgProvider& m_algorithms;
};

} // namespace thisapp
