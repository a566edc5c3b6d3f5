#include "login/cloud/QRCodeMaskWt.h"

#include <QGraphicsOpacityEffect>
#include <QPainter>

namespace kelvra_login {

namespace {

constexpr qreal maskOpacity = 0.75;

} // namespace

QRCodeMaskWt::QRCodeMaskWt(QWidget *parent)
    : QWidget(parent)
{
    auto *effect = new QGraphicsOpacityEffect(this);
    effect->setOpacity(maskOpacity);
    setGraphicsEffect(effect);
}

void QRCodeMaskWt::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRect(rect());
    QWidget::paintEvent(event);
}

} // namespace kelvra_login
