// SPDX-License-Identifier: MIT
// The grid on the screen: shows a SpreadModel with its header rows above the rows.
#pragma once

#include "platform/spreadmodel.h"

#include <QItemSelectionModel>
#include <QTableView>

/// One row is active at a time and shown whole; column 0 is hidden. Rows and columns count from
/// 1, header rows from FirstHeaderRow, for automation as for code.
class Spread : public QTableView
{
    Q_OBJECT

public:
    explicit Spread(QWidget *parent = nullptr);

    /// Shows @p model, which must outlive this.
    void setSpreadModel(SpreadModel *model);
    SpreadModel *spreadModel() const { return m_model; }

    Q_INVOKABLE QString text(int row, int column) const;
    Q_INVOKABLE int rows() const;
    Q_INVOKABLE QColor color(int row, int column) const;

    /// The active row, or 0 while there is none.
    Q_INVOKABLE int activeRow() const;
    Q_INVOKABLE void setActiveRow(int row);

protected:
    void focusInEvent(QFocusEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void changeEvent(QEvent *event) override;

private:
    void fitRowHeights();

    SpreadModel *m_model = nullptr;
};
