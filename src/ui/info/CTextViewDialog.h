#pragma once

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class CTextViewDialog;
}

/// Shows a plain text, such as the log file, that can be read and copied but not changed.
class CTextViewDialog : public QDialog
{
    Q_OBJECT

public:
    using TextSource = std::function<QString()>;

    explicit CTextViewDialog(QWidget* parent = nullptr);
    ~CTextViewDialog() override;

    void setText(const QString& text);
    /// Takes the text from the source at once and on every refresh, and shows its end.
    void setSource(TextSource source);

public slots:
    void onUiRefresh();

private:
    std::unique_ptr<Ui::CTextViewDialog> m_ui;
    TextSource m_source;
};
