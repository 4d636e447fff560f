#pragma once

class CJobFrame;
class QWidget;

namespace thisapp {

class IAppOptionsChanged;
class ICryptoAlgProvider;
class OptionsHandler;

/// The commands of the main window that run a dialog each and have nothing to do with a job.
class DialogCommands
{
public:
    /// `form` has the algorithm that the user works with, `receiver` gets changed options.
    DialogCommands(QWidget& window, const ICryptoAlgProvider& algorithms, OptionsHandler& options,
                   CJobFrame& form, IAppOptionsChanged& receiver);

    void onUiOptionsItem();
    void onUiDefaultAlgorithmItem();
    void onUiAlgorithmInfoItem();
    void onUiShortcutsItem();
    void onUiAboutItem();

private:
    QWidget& m_window;
    const ICryptoAlgProvider& m_algorithms;
    OptionsHandler& m_options;
    CJobFrame& m_form;
    IAppOptionsChanged& m_receiver;
};

} // namespace thisapp
