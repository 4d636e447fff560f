#include "ui/password/SecretFields.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

namespace thisapp {

using namespace tessaly;

void wipe(QString& text)
{
    // A literal's characters lie in read-only memory.
    if (!text.data_ptr()->ref.isStatic()) {
        const auto size = static_cast<std::size_t>(text.size()) * sizeof(QChar);
        platform::wipe(const_cast<QChar*>(text.constData()), size);
    }
    text = QString();
}

SecretText secretText(const QString& text)
{
    QByteArray bytes = text.toUtf8();
    SecretText secret({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    platform::wipe(bytes.data(), static_cast<std::size_t>(bytes.size()));
    return secret;
}

void prepareSecret(QLineEdit& field)
{
    constexpr int Room = 512;
    const QSignalBlocker blocker(field);
    QString empty;
    empty.reserve(Room);
    field.setText(empty);
}

void clearSecret(QLineEdit& field)
{
    const QSignalBlocker blocker(field);
    // Both share the field's storage.
    QString text = field.text();
    QString shown = field.displayText();
    wipe(text);
    wipe(shown);
    field.setText(QString()); // unlike clear(), drops the undo history
}

void clearSecret(QPlainTextEdit& field)
{
    const QSignalBlocker blocker(field);
    field.clear();
}

SecretText typedText(const QPlainTextEdit& field)
{
    QString text = field.toPlainText();
    for (QChar& c : text)
        if (c.isSpace() && c != QLatin1Char('\n'))
            c = QLatin1Char(' ');
    SecretText typed = secretText(text);
    wipe(text);
    return typed;
}

void setTypedText(QPlainTextEdit& field, const SecretText& text)
{
    QString copy = QString::fromUtf8(text.c_str(), static_cast<int>(text.size()));
    field.setPlainText(copy);
    wipe(copy);
}

} // namespace thisapp
