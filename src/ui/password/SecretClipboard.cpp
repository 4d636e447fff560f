#include "ui/password/SecretClipboard.h"

#include "ui/password/SecretFields.h"

#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QMimeData>
#include <QPointer>
#include <QTimer>

#include <array>
#include <string_view>

namespace thisapp {

using tessaly::SecretText;

namespace {

struct Hint
{
    const char* format;
    std::string_view value;
};

/// What asks those who keep a history of the clipboard, on this computer or another, to leave the text out:
/// KDE's Klipper, and Windows ("Cloud Clipboard and Clipboard History Formats"; numbers of four bytes).
constexpr std::string_view No("\0\0\0\0", 4);
constexpr std::array<Hint, 4> Hints{{
    {"x-kde-passwordManagerHint", "secret"},
    {"ExcludeClipboardContentFromMonitorProcessing", No},
    {"CanIncludeInClipboardHistory", No},
    {"CanUploadToCloudClipboard", No},
}};

/// Keeps the text where it is wiped, and hands out copies when asked.
class SecretMimeData final : public QMimeData
{
public:
    explicit SecretMimeData(SecretText text) : m_text(std::move(text)) {}

    QStringList formats() const override
    {
        QStringList formats{QStringLiteral("text/plain")};
        for (const Hint& hint : Hints)
            formats += QLatin1String(hint.format);
        return formats;
    }

protected:
    QVariant retrieveData(const QString& format, QVariant::Type type) const override
    {
        for (const Hint& hint : Hints)
            if (format == QLatin1String(hint.format))
                return QByteArray(hint.value.data(), static_cast<int>(hint.value.size()));
        if (!format.startsWith(QLatin1String("text/plain")))
            return {};
        const QByteArray bytes(m_text.c_str(), static_cast<int>(m_text.size()));
        return type == QVariant::ByteArray ? QVariant(bytes) : QVariant(QString::fromUtf8(bytes));
    }

private:
    SecretText m_text;
};

QByteArray fingerprint(const SecretText& text)
{
    QCryptographicHash hash(QCryptographicHash::Sha3_256);
    hash.addData(text.c_str(), static_cast<int>(text.size()));
    return hash.result();
}

/// Lives as long as the program, so that closing the dialog leaves nothing behind.
class SecretClipboard final : public QObject
{
public:
    SecretClipboard() : QObject(qApp)
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, &SecretClipboard::remove);
        connect(qApp, &QCoreApplication::aboutToQuit, this, &SecretClipboard::remove);
    }

    void put(SecretText text, std::chrono::milliseconds time)
    {
        m_fingerprint = fingerprint(text);
        m_data = new SecretMimeData(std::move(text));
        QGuiApplication::clipboard()->setMimeData(m_data);
        m_timer.start(time);
    }

private:
    void remove()
    {
        if (!m_fingerprint.isEmpty() && isThere())
            QGuiApplication::clipboard()->clear();
        m_fingerprint.clear();
        m_timer.stop();
    }

    /// A clipboard manager may have taken the text over.
    bool isThere() const
    {
        const QClipboard& clipboard = *QGuiApplication::clipboard();
        if (m_data && clipboard.mimeData() == m_data)
            return true;
        return fingerprint(secretText(clipboard.text())) == m_fingerprint;
    }

    QTimer m_timer;
    QPointer<QMimeData> m_data;
    QByteArray m_fingerprint;
};

} // namespace

void copySecret(SecretText text, std::chrono::milliseconds time)
{
    static const QPointer<SecretClipboard> clipboard(new SecretClipboard);
    if (clipboard)
        clipboard->put(std::move(text), time);
}

} // namespace thisapp
