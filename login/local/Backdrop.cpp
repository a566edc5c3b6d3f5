#include "login/local/Backdrop.h"

#include <QImage>
#include <QPaintDevice>
#include <QPainter>

namespace kelvra_login {

Backdrop::Backdrop(const QString &pictureFile)
    : file(pictureFile)
{
}

void Backdrop::prepare(const QSize &size)
{
    if (!readable || stretched.size() == size)
        return;
    // Past the pixmap cache, which would hold the picture as a whole, then lose it and have it read again.
    const QImage picture(file);
    readable = !picture.isNull();
    // Averages what it makes smaller, where the painter would look at four of the picture's pixels only.
    if (readable)
        stretched = QPixmap::fromImage(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void Backdrop::paint(QPainter *painter, const QRect &rect)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    prepare((QSizeF(rect.size()) * ratio).toSize());
    if (!readable)
        return;
    stretched.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, stretched);
}

} // namespace kelvra_login
