#pragma once

#include <QPushButton>

/// A button with an icon before its text, in either direction of writing. From right to left the styles
/// of the toolkit put the text at the far end of the button.
class CIconButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};
