#include "ui/style/Announcement.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <deque>

namespace thisapp {
namespace {

/// A notification on the source: an alert event has no text of its own, only that of its object.
class Announcement final : public QAccessibleInterface
{
public:
    Announcement(QWidget* source, const QString& text) : m_source(source), m_text(text) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_source); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text what) const override
    {
        return what == QAccessible::Name ? m_text : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }

private:
    QPointer<QWidget> m_source;
    QString m_text;
};

/// The readers ask for the text later.
void keepForAWhile(QAccessible::Id id)
{
    constexpr std::size_t MostKept = 8;
    static std::deque<QAccessible::Id> kept;
    kept.push_back(id);
    if (kept.size() <= MostKept)
        return;
    QAccessible::deleteAccessibleInterface(kept.front());
    kept.pop_front();
}

} // namespace

void announce(QWidget* source, const QString& text)
{
    if (!QAccessible::isActive() || text.isEmpty())
        return;
    auto* announcement = new Announcement(source, text); // owned by the registry
    keepForAWhile(QAccessible::registerAccessibleInterface(announcement));
    // Some readers speak alerts, others notifications that appear.
    for (const QAccessible::Event type : {QAccessible::Alert, QAccessible::ObjectShow}) {
        QAccessibleEvent event(announcement, type);
        QAccessible::updateAccessibility(&event);
    }
}

void announceWhenSettled(QTimer& timer, QWidget& source, std::function<QString()> text)
{
    constexpr std::chrono::milliseconds Pause{600};
    timer.setSingleShot(true);
    timer.setInterval(Pause);
    QObject::connect(&timer, &QTimer::timeout, &source, [&source, text = std::move(text)] {
        if (source.isVisible())
            announce(&source, text());
    });
}

} // namespace thisapp
