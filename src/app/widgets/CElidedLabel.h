#pragma once

#include <QLabel>

/// One line of plain text that is cut in the middle rather than keep the window wide; of two names with
/// an arrow between them, each is. The tool tip has the whole.
class CElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CElidedLabel(QWidget* parent = nullptr);

    void setWholeText(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void refresh();

    QString m_whole;
};
