#pragma once

#include <QPlainTextEdit>
#include <cstdint>
#include <optional>

/// A mono-spaced field for secret hexadecimal text: sized for the expected bytes, no undo history,
/// Tab leaves it, Enter confirms it, Shift+Enter breaks the line. Takes no more than a key can be, however it
/// is spaced: laying out a megabyte would keep the window busy for a minute.
class CHexEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CHexEdit(QWidget* parent = nullptr);

    /// In bytes.
    void setExpectedLength(std::uint32_t length);

    /// Colours the background by a check's outcome; nothing for none.
    void showValidity(std::optional<bool> valid);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// In characters.
    static constexpr int MostText = 4096;

signals:
    /// Enter was pressed.
    void notifyEntered();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void recolor();

    std::optional<bool> m_valid;
    std::uint32_t m_expectedLength = 0;
};
