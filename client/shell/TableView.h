#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

namespace kelvra_client {

/**
 * The client's table: whole rows, sorted by a click on a header. Rows that come or go do not move the ones that the
 * user is reading, unless the table stands at its top; an empty table says why.
 */
class TableView : public QTableView
{
    Q_OBJECT

public:
    explicit TableView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;

    /** What is shown in place of rows while there are none. */
    void setEmptyText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void holdRows();
    void releaseRows();

    QString emptyText;
    QPersistentModelIndex heldRow; ///< the first one in sight, while rows come or go
    int heldOffset = 0;            ///< how much of it is out of sight, in pixels
};

} // namespace kelvra_client
