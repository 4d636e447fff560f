#pragma once

#include "ui/style/MessageStyle.h"

#include <QString>

#include <functional>
#include <utility>

namespace thisapp {

/// A text for the user. It is asked for whenever it is shown, so that it follows a change of the
/// language; without a function there is nothing to say.
struct Message
{
    MessageKind kind = MessageKind::Plain;
    std::function<QString()> text;
    /// The file that it is about. It isn't named beside a field that holds it.
    QString file = {};
    /// Says more, with names of files in it; instead of the bare file, and wherever the message stands.
    std::function<QString()> detail = {};
    /// What the user can do about it, as a link, and what that runs. None without a text.
    std::function<QString()> link = {};
    std::function<void()> follow = {};

    bool isEmpty() const { return !text; }
    QString now() const { return text ? text() : QString(); }
};

/// Stands between the names of two files in a detail.
inline QString nameArrow()
{
    return QStringLiteral(" \u2192 ");
}

/// Where the window shows a message.
enum class Area {
    Progress, ///< the text under the progress bar
    Input,    ///< under the input row
    Output,   ///< under the output row
    Result,   ///< how a request was refused or a job ended
};

class IMessageAreas
{
public:
    virtual ~IMessageAreas() = default;
    virtual void showMessage(Area area, Message message) = 0;
};

} // namespace thisapp
