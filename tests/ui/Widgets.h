#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <utility>

/// Finds a form's widget by its object name; ends the program when there is none.
template <class Widget = QWidget>
Widget& child(QWidget& form, const char* name)
{
    auto* found = form.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no widget named %s", name);
    return *found;
}

/// Whether the condition comes true, on however slow a machine.
inline bool comesTrue(const std::function<bool()>& condition)
{
    constexpr int Patience = 20000;
    return QTest::qWaitFor(condition, Patience);
}

/// Shows a window and waits until keys go to it.
inline void open(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(comesTrue([&window] { return window.isActiveWindow(); }));
}

inline QWidgetList buttonsThatAreDown()
{
    QWidgetList down;
    for (QWidget* widget : QApplication::allWidgets())
        if (const auto* button = qobject_cast<QAbstractButton*>(widget);
            button != nullptr && button->isDown())
            down += widget;
    return down;
}

/// Sends a key to whatever has the focus, as a keyboard would.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    const QWidgetList before = buttonsThatAreDown();
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    // A button's mnemonic shows the press before it acts.
    EXPECT_TRUE(comesTrue([&before] {
        const QWidgetList now = buttonsThatAreDown();
        return std::ranges::all_of(now, [&before](QWidget* widget) { return before.contains(widget); });
    }));
}

inline void type(const char* text)
{
    QWidget* field = QApplication::focusWidget();
    ASSERT_NE(field, nullptr);
    for (const QChar c : QString::fromUtf8(text)) {
        if (c.unicode() < 0x80) {
            QTest::keyClick(field, c.toLatin1());
            continue;
        }
        QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, c);
        QApplication::sendEvent(field, &event);
    }
}

/// Runs the steps once another modal window has come up. The result is true until then; false given to it
/// lets the steps go.
template <class Steps>
std::shared_ptr<bool> whenModal(Steps steps, QWidget* present = QApplication::activeModalWidget(),
                                const std::shared_ptr<bool>& waiting = std::make_shared<bool>(true))
{
    QTimer::singleShot(20, qApp, [steps, present, waiting] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!*waiting)
            return;
        if (!modal || modal == present) {
            whenModal(steps, present, waiting);
            return;
        }
        *waiting = false;
        QApplication::setActiveWindow(modal);
        steps(*modal);
    });
    return waiting;
}

/// Answers the question that the steps lead to; false when none was asked.
template <class Steps>
bool answered(Qt::Key answer, Steps steps)
{
    const auto waiting = whenModal(
        [answer](QWidget&) { press(answer, answer == Qt::Key_Return ? Qt::NoModifier : Qt::AltModifier); });
    steps();
    return !std::exchange(*waiting, false);
}

/// A window is minimised, or shown again, by the window manager.
template <class Event>
void sendFromOutside(QWidget& window)
{
    Event event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&window, &event);
}

/// Puts every text into capitals.
class Capitals final : public QTranslator
{
public:
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QString(source).toUpper();
    }
    bool isEmpty() const override { return false; }
};

inline std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    return stream << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << text;
}
