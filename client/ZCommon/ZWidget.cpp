#include "host/ZCommon/ZWidget.h"

#include <QMouseEvent>

namespace ZCOMMON {

ZWidget::ZWidget(QWidget *parent)
    : QWidget(parent)
{
    // Fields derived from it carry their frame in a style sheet, which subclasses of QWidget do not draw unasked.
    setAttribute(Qt::WA_StyledBackground);
}

ZWidget::~ZWidget() = default;

void ZWidget::mousePressEvent(QMouseEvent *event)
{
    event->ignore();
}

void ZWidget::mouseMoveEvent(QMouseEvent *event)
{
    event->ignore();
}

void ZWidget::mouseReleaseEvent(QMouseEvent *event)
{
    event->ignore();
}

} // namespace ZCOMMON
