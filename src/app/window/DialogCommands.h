#pragma once

class CSelectAlgFrame;
class QWidget;

namespace thisapp {

class IAppOptionsChanged;
class ICryptoAlgProvider;
class OptionsHandler;

/// The commands of the main window that run a dialog each and have nothing to do with a job.
class DialogCommands
{
public:
    /// `algorithm` is what the user works with, `receiver` gets changed options.
    DialogCommands(QWidget& window, const ICryptoAlgProvider& algorithms, OptionsHandler& options,
                   CSelectAlgFrame& algorithm, IAppOptionsChanged& receiver);

    void onUiOptionsItem();
    void onUiDefaultAlgorithmItem();
    void onUiAlgorithmInfoItem();
    void onUiShortcutsItem();
    void onUiAboutItem();

private:
    QWidget& m_window;
    const ICryptoAlgProvider& m_algorithms;
    OptionsHandler& m_options;
    CSelectAlgFrame& m_algorithm;
    IAppOptionsChanged& m_receiver;
};

} // namespace thisapp
