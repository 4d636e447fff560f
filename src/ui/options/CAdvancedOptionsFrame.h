#pragma once

#include <QFrame>

#include <memory>

namespace thisapp {
struct SAppOptions;
}
namespace Ui {
class CAdvancedOptionsFrame;
}

/// The "Advanced" tab of the options dialog.
class CAdvancedOptionsFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CAdvancedOptionsFrame(QWidget* parent = nullptr);
    ~CAdvancedOptionsFrame() override;

    void setLogFilePath(const QString& path);
    void setOptions(const thisapp::SAppOptions& options);
    /// Sets the values of this tab, and nothing else.
    void store(thisapp::SAppOptions& options) const;

signals:
    void changed();
    void viewLogFileClicked(const QString& path);

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui::CAdvancedOptionsFrame> m_ui;
};
