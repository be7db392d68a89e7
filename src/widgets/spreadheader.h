// SPDX-License-Identifier: MIT
// Header of a grid, with several rows: caption, total and column titles.
#pragma once

#include <QHeaderView>

class SpreadModel;

/// Paints the header rows of a SpreadModel, including cells that span columns.
class SpreadHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit SpreadHeader(QWidget *parent);

    /// Returns the height of a header row in pixels, which is also the minimum for other rows: 18
    /// points at 96 dpi, or more if Thai vowels and tone marks need it.
    static int rowHeight(const QFont &font);

    QSize sizeHint() const override;
    void setModel(QAbstractItemModel *model) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const SpreadModel *spread() const;
    void fitHeight();
    void paintCell(QPainter &painter, int row, int column) const;

    int m_rows = 0; ///< number of header rows at the last layout
};
