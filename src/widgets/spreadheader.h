// SPDX-License-Identifier: MIT
// The header rows of a grid: caption, total and titles above the columns.
#pragma once

#include <QHeaderView>

class SpreadModel;

/// Paints all header rows of a SpreadModel, cells spanning columns included.
class SpreadHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit SpreadHeader(QWidget *parent);

    /// Height of a grid's row: 18 points at least, and room for Thai marks above and below.
    static int rowHeight(const QFont &font);

    QSize sizeHint() const override;
    void setModel(QAbstractItemModel *model) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const SpreadModel *spread() const;
    void fitHeight();
    void paintCell(QPainter &painter, int row, int column) const;

    int m_rows = 0; ///< header rows when the view was laid out last
};
