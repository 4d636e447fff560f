#include "app/window/CWindowPlace.h"

#include "app/desktop/Desktop.h"
#include "common/settings/CAppSettings.h"

#include <QDir>
#include <QEvent>
#include <QGuiApplication>
#include <QLockFile>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

/// No option, so it isn't in their table.
constexpr char Key[] = "MainWindowGeometry";

/// What the frame and the title take, roughly: it isn't known before the window is there.
constexpr QSize FrameAllowance(16, 48);

constexpr int MostNumbers = 8;

} // namespace

CWindowPlace::CWindowPlace(QWidget& window, const QSize& firstSize) : QObject(&window), m_window(window)
{
    const QByteArray stored = QByteArray::fromBase64(CAppSettings().value(Key).toByteArray());
    takeNumber();
    if (!window.restoreGeometry(stored))
        placeFirst(firstSize);
    moveBelowOthers();
    window.installEventFilter(this);
}

CWindowPlace::~CWindowPlace() = default;

void CWindowPlace::takeNumber()
{
    const QDir folder(thisapp::desktop::sessionFolder());
    for (m_number = 0; m_number < MostNumbers; ++m_number) {
        m_turn = std::make_unique<QLockFile>(
            folder.filePath(QStringLiteral("quillet-window-%1.lock").arg(m_number)));
        if (m_turn->tryLock(0) || m_turn->error() != QLockFile::LockFailedError)
            return;
    }
}

void CWindowPlace::moveBelowOthers()
{
    const QScreen* screen = QGuiApplication::screenAt(m_window.geometry().center());
    if (m_number == 0 || screen == nullptr || m_window.isMaximized())
        return;
    const QRect room = screen->availableGeometry();
    const int step = m_number * FrameAllowance.height() * 2 / 3;
    const QPoint left = room.bottomRight() - m_window.geometry().bottomRight();
    m_window.move(m_window.pos() + QPoint(std::clamp(step, 0, std::max(0, left.x())),
                                          std::clamp(step, 0, std::max(0, left.y()))));
}

/// Told by us, not left to the window manager, so that what opens over the window finds it in its place.
void CWindowPlace::placeFirst(const QSize& firstSize)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect room = screen->availableGeometry();
    const QSize size = firstSize.boundedTo(room.size() - FrameAllowance);
    m_window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, room));
}

bool CWindowPlace::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close)
        save();
    return QObject::eventFilter(watched, event);
}

void CWindowPlace::save() const
{
    if (m_number == 0)
        CAppSettings().setValue(Key, QString::fromLatin1(m_window.saveGeometry().toBase64()));
}
