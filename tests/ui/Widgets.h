#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <gtest/gtest.h>
#include <ostream>

/// Finds a form's widget by its object name; ends the program when there is none.
template <class Widget = QWidget>
Widget& child(QWidget& form, const char* name)
{
    auto* found = form.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no widget named %s", name);
    return *found;
}

/// Shows a window and waits until keys go to it.
inline void open(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Sends a key to whatever has the focus, as a keyboard would.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    if (modifiers == Qt::AltModifier)
        QTest::qWait(150); // a button's mnemonic shows the press before it acts
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

/// Runs the steps once another modal window has come up.
template <class Steps>
void whenModal(Steps steps, QWidget* present = QApplication::activeModalWidget())
{
    QTimer::singleShot(20, qApp, [steps, present] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal == present)
            return whenModal(steps, present);
        QApplication::setActiveWindow(modal);
        steps(*modal);
    });
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
