#pragma once

#include <QObject>

class QWidget;

/// Keeps size and place of a window from one start to the next.
class CWindowPlace final : public QObject
{
    Q_OBJECT

public:
    /// Gives the window, which has not been shown yet, what it had when it was last closed; the first time
    /// that size in the middle of the screen. Either way the screen holds it whole. Belongs to the window.
    CWindowPlace(QWidget& window, const QSize& firstSize);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save() const;
    void place(const QSize& firstSize);

    QWidget& m_window;
};
