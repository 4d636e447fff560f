#include "app/window/CWindowPlace.h"

#include "common/settings/CAppSettings.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace {

/// No option, so it isn't in their table.
constexpr char Key[] = "MainWindowGeometry";

/// What the frame and the title take, roughly: it isn't known before the window is there.
constexpr QSize FrameAllowance(16, 48);

} // namespace

CWindowPlace::CWindowPlace(QWidget& window, const QSize& firstSize) : QObject(&window), m_window(window)
{
    const QByteArray stored = QByteArray::fromBase64(CAppSettings().value(Key).toByteArray());
    if (!window.restoreGeometry(stored))
        place(firstSize);
    window.installEventFilter(this);
}

/// Told by us, not left to the window manager, so that what opens over the window finds it in its place.
void CWindowPlace::place(const QSize& firstSize)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect room = screen->availableGeometry();
    const QSize size = firstSize.boundedTo(room.size() - FrameAllowance);
    QRect rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, room);
    m_window.setGeometry(rect);
}

bool CWindowPlace::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close)
        save();
    return QObject::eventFilter(watched, event);
}

void CWindowPlace::save() const
{
    CAppSettings().setValue(Key, QString::fromLatin1(m_window.saveGeometry().toBase64()));
}
