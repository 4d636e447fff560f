#pragma once

#include <QObject>
#include <functional>
#include <optional>

/// Tells whether Caps Lock is on while the user types in the watched fields. It asks the platform
/// when a field gets the focus and learns from the keys: an upper-case letter without Shift tells
/// that the lock is on. Until either has spoken the state is unknown and counts as off.
class CapsLockWatcher final : public QObject
{
    Q_OBJECT

public:
    using Query = std::function<std::optional<bool>()>;

    explicit CapsLockWatcher(Query query, QObject* parent = nullptr);

    void watch(QObject& field);

signals:
    void notifyCapsLockChanged(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void learn(std::optional<bool> on);

    Query m_query;
    std::optional<bool> m_on;
};
