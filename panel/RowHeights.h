#pragma once

#include <QObject>

class QTableWidget;

/// Keeps the rows of a one-column table high enough for the widgets in their cells. Tables with stretched
/// rows do not ask those widgets, whose height may depend on their width and change at any time. Where the
/// table has no vertical scroll bar, the table itself is kept as high as its rows.
class RowHeights : public QObject
{
    Q_OBJECT

public:
    /// @param table owns the object.
    explicit RowHeights(QTableWidget* table);

    /// To be called with every widget that is put into a cell.
    void watch(QWidget* cellWidget);
    /// To be called with a widget that leaves its cell.
    void forget(QWidget* cellWidget);
    /// Lays the rows out now. For new rows in a hidden viewport: they then show up in their final size, and
    /// not in several that lead to it.
    void fit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void adapt(Qt::ConnectionType connection);

    QTableWidget* m_table;
};
