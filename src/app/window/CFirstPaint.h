#pragma once

#include <QObject>

#include <functional>

/// Calls a function once, as soon as a window has shown its content: what can wait does not keep the user
/// waiting. A window that is not painted, since it starts behind others, is not waited for much longer.
class CFirstPaint final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window.
    CFirstPaint(QWidget& window, std::function<void()> action);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void onUiTime();

private:
    std::function<void()> m_action;
};
