#pragma once

#include <QComboBox>

/// The program's rounded combo box, in the palette's colours, with a scrolling list. The wheel
/// changes its choice only while it has the focus.
class CRoundedComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit CRoundedComboBox(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
