#pragma once

#include <QListWidget>

class QHeaderView;

/// A list of algorithms with a header over its columns.
class CAlgList final : public QListWidget
{
    Q_OBJECT

public:
    explicit CAlgList(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOutHeader();

    QHeaderView* m_header;
};
