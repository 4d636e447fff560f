#pragma once

#include "ui/password/PasswordStrength.h"

#include <QWidget>

/// A password's strength as a row of fields, more of them filled the stronger it is.
class CStrengthBar final : public QWidget
{
    Q_OBJECT

public:
    explicit CStrengthBar(QWidget* parent = nullptr);

    void showStrength(const thisapp::SStrengthNotice& notice);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    thisapp::SStrengthNotice m_notice;
};
