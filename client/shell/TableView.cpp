#include "client/shell/TableView.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace kelvra_client {

namespace {

constexpr int rowPixels = 30;
constexpr int textMargin = 16; // pixels
const QColor emptyTextColor(0x85, 0x8f, 0xa2);

} // namespace

TableView::TableView(QWidget *parent)
    : QTableView(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setSortingEnabled(true);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(rowPixels);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
}

// The connections follow those of the base, so that its own view of the rows is up to date when a slot runs.
void TableView::setModel(QAbstractItemModel *newModel)
{
    if (QAbstractItemModel *former = model())
        disconnect(former, nullptr, this, nullptr);
    QTableView::setModel(newModel);
    connect(newModel, &QAbstractItemModel::rowsAboutToBeInserted, this, &TableView::holdRows);
    connect(newModel, &QAbstractItemModel::rowsAboutToBeRemoved, this, &TableView::holdRows);
    connect(newModel, &QAbstractItemModel::rowsInserted, this, &TableView::releaseRows);
    connect(newModel, &QAbstractItemModel::rowsRemoved, this, &TableView::releaseRows);
}

void TableView::setEmptyText(const QString &text)
{
    emptyText = text;
    viewport()->update();
}

void TableView::holdRows()
{
    const int position = verticalScrollBar()->value();
    const int row = position > 0 ? rowAt(0) : -1;
    heldRow = row < 0 ? QModelIndex() : model()->index(row, 0);
    heldOffset = row < 0 ? 0 : position - verticalHeader()->sectionPosition(row);
}

void TableView::releaseRows()
{
    if (heldRow.isValid()) {
        updateGeometries(); // or the scroll bar would not yet reach that far
        verticalScrollBar()->setValue(verticalHeader()->sectionPosition(heldRow.row()) + heldOffset);
    }
    heldRow = QModelIndex();
}

void TableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(emptyTextColor);
    painter.drawText(viewport()->rect().adjusted(textMargin, 0, -textMargin, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     emptyText);
}

} // namespace kelvra_client
