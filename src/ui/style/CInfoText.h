#pragma once

#include <QTextEdit>

/// A read-only text that looks like a label and takes the text's own size.
class CInfoText final : public QTextEdit
{
    Q_OBJECT

public:
    explicit CInfoText(QWidget* parent = nullptr);

    void showText(const QString& text);
};
