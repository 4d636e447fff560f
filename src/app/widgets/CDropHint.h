#pragma once

#include <QPushButton>

class CElidedLabel;
class QLabel;

/// Shows where to drop a file, and afterwards which file is at hand. Pressing it asks for one.
class CDropHint : public QPushButton
{
    Q_OBJECT

public:
    explicit CDropHint(QWidget* parent = nullptr);

    /// The name of a glyph, a headline and a line of explanation.
    void setContent(const QString& glyph, const QString& headline, const QString& detail);
    /// Files hover over it.
    void setHighlighted(bool highlighted);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int iconSize() const;
    QColor accent() const;
    void refresh();

    QLabel* m_icon;
    CElidedLabel* m_headline;
    QLabel* m_detail;
    QString m_glyph;
    bool m_highlighted = false;
};
