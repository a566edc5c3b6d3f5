#include "PictureDialog.h"

#include <QPainter>

PictureDialog::PictureDialog(QWidget *parent)
    : QDialog(parent, Qt::FramelessWindowHint)
    , picture(QStringLiteral(":/yardstick/picture.png"))
{
    setFixedSize(860, 500);
}

void PictureDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), picture);
}
