#pragma once

#include <QLabel>

/// A label that is one hyperlink, for mouse, keyboard and screen reader: Tab reaches it, Enter or Space
/// follows it.
class CLinkLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit CLinkLabel(QWidget* parent = nullptr);

    /// Shows a plain text as a link with the target "#".
    void setLinkText(const QString& text);
    /// As a click on it does.
    void follow();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
