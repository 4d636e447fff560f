#pragma once

#include "app/window/DroppedFile.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

class CInputField;
class CJobFrame;
class CDiskWork;

namespace thisapp {

/// The commands of the main window that fill the two fields, or show where their files are.
class FieldCommands
{
public:
    /// All must outlive the object.
    /// `takeFiles` gets more than one file for the input.
    FieldCommands(CJobFrame& form, CInputField& input, CDiskWork& disk,
                  std::function<void(const QStringList&)> takeFiles);

    void onUiAddFileItem();
    void onUiBrowseOutput();
    void onUiOpenInputFolderItem();
    void onUiOpenOutputFolderItem();
    /// The window's part of a drop on the widget of that id.
    void takeDrop(int widgetId, const QList<QUrl>& urls);
    /// Shows where a file stands.
    void openFolderOf(const QString& text);
    /// To be called when there are new facts about the input.
    void showFacts();

private:
    CJobFrame& m_form;
    CInputField& m_input;
    CDiskWork& m_disk;
    const std::function<void(const QStringList&)> m_takeFiles;
    std::optional<DroppedFile> m_drop; ///< whose file is still looked at
};

} // namespace thisapp
