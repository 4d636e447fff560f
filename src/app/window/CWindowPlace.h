#pragma once

#include <QObject>

#include <memory>

class QLockFile;
class QWidget;

/// Keeps size and place of a window from one start to the next. The window of another instance is not
/// covered: each further one stands a little lower, and doesn't count the next time.
class CWindowPlace final : public QObject
{
    Q_OBJECT

public:
    /// Gives the window, which has not been shown yet, what it had when it was last closed; the first time
    /// that size in the middle of the screen. Either way the screen holds it whole. Belongs to the window.
    CWindowPlace(QWidget& window, const QSize& firstSize);
    ~CWindowPlace() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeNumber();
    void save() const;
    void placeFirst(const QSize& firstSize);
    void moveBelowOthers();

    QWidget& m_window;
    std::unique_ptr<QLockFile> m_turn;
    int m_number = 0; ///< of the instance, from 0
};
