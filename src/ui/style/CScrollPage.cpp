#include "ui/style/CScrollPage.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

CScrollPage::CScrollPage(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int most) {
        setViewportMargins(0, 0, most > 0 ? fontMetrics().averageCharWidth() : 0, 0);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && widget() != nullptr && widget()->isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}

QSize CScrollPage::sizeHint() const
{
    return widget() != nullptr ? widget()->sizeHint().expandedTo(widget()->minimumSize())
                               : QScrollArea::sizeHint();
}

/// As wide as it takes to scroll up and down only, unless that is wider than a small screen.
QSize CScrollPage::minimumSizeHint() const
{
    constexpr int Lines = 5;
    constexpr int MostCharacters = 70;
    const QFontMetrics metrics = fontMetrics();
    const int wanted =
        widget() != nullptr ? std::max(widget()->minimumSizeHint().width(), widget()->minimumWidth()) : 0;
    return {std::min(wanted + verticalScrollBar()->sizeHint().width() + metrics.averageCharWidth(),
                     metrics.averageCharWidth() * MostCharacters),
            std::min(metrics.lineSpacing() * Lines, sizeHint().height())};
}

bool CScrollPage::event(QEvent* event)
{
    if (event->type() == QEvent::Polish && widget() != nullptr) {
        widget()->setAutoFillBackground(false); // setWidget has switched it on
        widget()->installEventFilter(this);
    }
    return QScrollArea::event(event);
}

bool CScrollPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}
