#pragma once

#include "common/secret/KeyFile.h"
#include "ui/style/MessageStyle.h"

#include <QString>
#include <optional>

class CDiskWork;
class QWidget;

namespace thisapp {

struct SKeyFileOutcome
{
    QString message;
    MessageKind kind = MessageKind::Error;
    /// What was read; a text that was written leaves it empty.
    std::optional<SKeyFile> key = std::nullopt;
};

/// Asks for a file and writes the text so that only the user can read it. Nothing when the user cancels.
std::optional<SKeyFileOutcome> saveKeyFile(QWidget& parent, CDiskWork& disk, const QString& algorithmName,
                                           tessaly::SecretText text);

/// Asks for a file and reads the key and IV that it holds. Nothing when the user cancels.
std::optional<SKeyFileOutcome> loadKeyFile(QWidget& parent, CDiskWork& disk, const QString& algorithmName);

} // namespace thisapp
