#pragma once

#include <QFrame>
#include <memory>

class QListWidget;
namespace thisapp {
class ICryptoAlgProvider;
}
namespace Ui {
class CAlgListFrame;
}

/// A list of algorithms that can be filtered, with the recommended ones first if the user wants so.
class CAlgListFrame final : public QFrame
{
    Q_OBJECT

public:
    explicit CAlgListFrame(QWidget* parent = nullptr);
    ~CAlgListFrame() override;

    /// Fills the list anew, with an empty filter; nothing is current then. The provider must outlive
    /// the frame.
    void setProvider(const thisapp::ICryptoAlgProvider& provider);
    QListWidget& list() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void onUiFilterChanged(const QString& text);
    void onUiRecommendedFirst(bool first);

private:
    std::unique_ptr<Ui::CAlgListFrame> m_ui;
    const thisapp::ICryptoAlgProvider* m_provider = nullptr;
};
