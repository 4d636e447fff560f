#pragma once

#include "app/window/InputLook.h"

#include <QObject>
#include <QString>

#include <future>
#include <optional>

class CJobFrame;
class CDiskWork;

/// The window's input field, and what is known of the file that it names. Each change is looked at
/// once, on a thread of its own; the newest look counts, when it has come. GUI thread.
class CInputField final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the field.
    CInputField(CJobFrame& form, CDiskWork& disk, thisapp::InputLook look);

    /// What becomes of the output field when the input is a usable file.
    enum class Proposal {
        None,
        IfEmpty, ///< proposed where nothing stands yet
        Always,
    };

    /// Puts in what the user has chosen elsewhere, and waits a moment for the look at it.
    void set(const QString& text, Proposal proposal = Proposal::Always);
    /// Waits for a look that is still under way; false when the file system doesn't answer.
    bool settle();
    /// Whether exactly this path names a usable file; false, too, when the file system doesn't answer.
    bool isFile(const QString& path);
    /// Of the last text that was looked at.
    const thisapp::InputFacts& facts() const { return m_facts; }

signals:
    /// The user has given a usable file. The fields are ready for a job on it.
    void notifyAccepted();
    /// There are new facts.
    void notifyFacts();

private slots:
    void onUiEdited();
    void onUiTextChanged();
    void onUiLooked();

private:
    void schedule(Proposal proposal);
    void look();
    void take();
    void propose();

    CJobFrame& m_form;
    CDiskWork& m_disk;
    const thisapp::InputLook m_look;
    thisapp::InputFacts m_facts;
    Proposal m_proposal = Proposal::None;
    QString m_outputBefore;
    bool m_isStale = false; ///< the text has changed, and nobody looks at it yet
    std::shared_future<thisapp::InputFacts> m_pending;
};
