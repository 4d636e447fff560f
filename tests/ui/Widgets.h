#pragma once

#include "ui/style/MessageStyle.h"

#include <QTest>
#include <QtWidgets>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <utility>

using thisapp::MessageKind;

/// Finds a form's widget by its object name, or by those of its frame and its own, "frame/name"; ends the
/// program when there is none.
template <class Widget = QWidget>
Widget& child(QWidget& form, const QString& path)
{
    QWidget* found = &form;
    for (const QString& name : path.split('/'))
        if ((found = found->findChild<QWidget*>(name)) == nullptr)
            qFatal("no widget %s", qPrintable(path));
    return dynamic_cast<Widget&>(*found);
}

/// What a form's widget shows.
inline QString text(QWidget& form, const QString& path)
{
    QString shown;
    for (const char* property : {"text", "plainText", "currentText", "title"})
        shown += child(form, path).property(property).toString();
    return shown;
}

inline QString kindName(MessageKind kind)
{
    return QStringList{"Plain", "Success", "Warning", "Error"}.at(static_cast<int>(kind));
}

/// The kind of message that the text's colour stands for.
inline MessageKind shownKind(const QWidget& widget)
{
    const bool field = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    const QColor color = widget.palette().color(field ? QPalette::Text : QPalette::WindowText);
    for (const MessageKind kind : {MessageKind::Success, MessageKind::Warning, MessageKind::Error})
        if (color == messageColor(kind, widget.window()->palette()))
            return kind;
    return MessageKind::Plain;
}

/// Whether the condition comes true, on however slow a machine.
inline bool comesTrue(const std::function<bool()>& condition)
{
    constexpr int Patience = 10000;
    return QTest::qWaitFor(condition, Patience);
}

/// Shows a window and waits until keys go to it.
inline void open(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(comesTrue([&window] { return window.isActiveWindow(); }));
}

inline QString focusName()
{
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName() : QString();
}

inline QSet<QWidget*> buttonsThatAreDown()
{
    QSet<QWidget*> down;
    for (QWidget* widget : QApplication::allWidgets())
        if (const auto* button = qobject_cast<QAbstractButton*>(widget); button && button->isDown())
            down += widget;
    return down;
}

/// Sends keys to whatever has the focus, as a keyboard would: "Tab Alt+G Return".
inline void press(const QString& keys)
{
    for (const QString& name : keys.split(' ')) {
        ASSERT_NE(QApplication::focusWidget(), nullptr) << qPrintable(name);
        const QSet<QWidget*> before = buttonsThatAreDown();
        const int key = QKeySequence(name)[0];
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
        // A button's mnemonic shows the press before it acts.
        EXPECT_TRUE(comesTrue([&before] { return before.contains(buttonsThatAreDown()); }));
    }
}

/// Types a text; a tab in it leads to the next field, a line feed is the Return key.
inline void type(const QString& text)
{
    for (const QChar c : text) {
        if (c == '\t' || c == '\n') {
            press(c == '\t' ? "Tab" : "Return");
            continue;
        }
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, c);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
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

inline std::shared_ptr<bool> answerModal(const QString& keys)
{
    return whenModal([keys](QWidget&) { press(keys); });
}

/// A window is minimised, or shown again, by the window manager.
template <class Event>
void sendFromOutside(QWidget& window)
{
    Event event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&window, &event);
}

/// Puts every text into capitals as long as it lives.
class Capitals final : public QTranslator
{
public:
    Capitals()
    {
        QApplication::installTranslator(this);
        QApplication::processEvents();
    }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QString(source).toUpper();
    }
    bool isEmpty() const override { return false; }
};

inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
inline std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    PrintTo(text, &stream);
    return stream;
}
