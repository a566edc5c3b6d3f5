#include "host/ZCommon/PEWidget.h"

#include <QMouseEvent>
#include <QStyleOption>
#include <QStylePainter>

namespace ZCOMMON {

PEWidget::PEWidget(QWidget *parent)
    : QWidget(parent)
{
}

PEWidget::~PEWidget() = default;

void PEWidget::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QStylePainter(this).drawPrimitive(QStyle::PE_Widget, option);
}

void PEWidget::mousePressEvent(QMouseEvent *event)
{
    event->ignore();
}

void PEWidget::mouseMoveEvent(QMouseEvent *event)
{
    event->ignore();
}

void PEWidget::mouseReleaseEvent(QMouseEvent *event)
{
    event->ignore();
}

} // namespace ZCOMMON
