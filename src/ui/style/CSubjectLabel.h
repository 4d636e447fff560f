#pragma once

#include <QLabel>

/// Tells in bold what a dialog is about: a file's name, shortened in the middle where it doesn't fit,
/// and how many files there are beside it. Hidden while there is none.
class CSubjectLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit CSubjectLabel(QWidget* parent = nullptr);

    void setSubject(const QString& fileName, int others);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_fileName;
    QString m_others;
};
