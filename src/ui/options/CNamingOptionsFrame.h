#pragma once

#include <QFrame>

#include <memory>

class QCheckBox;
class QLineEdit;

namespace thisapp {
struct NameParts;
}
namespace Ui {
class CNamingOptionsFrame;
}

/// What is added to the names of encrypted files, or to those of decrypted ones, with a sample.
class CNamingOptionsFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CNamingOptionsFrame(QWidget* parent = nullptr);
    ~CNamingOptionsFrame() override;

    /// What stands at the controls, translated. The frame is there twice, and each has mnemonics of
    /// its own.
    struct STexts
    {
        QString title;
        QString addExt;
        QString addSuffix;
        QString addPrefix;
        QString addDate;
        QString sample;
    };

    void setTexts(const STexts& texts);
    void setParts(const thisapp::NameParts& parts);
    /// A dot typed before the extension is dropped: names are compared with the bare extension.
    thisapp::NameParts parts() const;
    void setSample(const QString& fileName);

signals:
    void addExtChanged(int state);
    void addSuffixChanged(int state);
    void addPrefixChanged(int state);
    void addDateChanged(int state);
    void extChanged(const QString& text);
    void suffixChanged(const QString& text);
    void prefixChanged(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    using StateSignal = void (CNamingOptionsFrame::*)(int);
    using TextSignal = void (CNamingOptionsFrame::*)(const QString&);
    void pair(QCheckBox* box, QLineEdit* edit, StateSignal stateChanged, TextSignal textChanged);

    std::unique_ptr<Ui::CNamingOptionsFrame> m_ui;
};
