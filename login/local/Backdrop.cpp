#include "login/local/Backdrop.h"

#include <QImage>
#include <QPaintDevice>
#include <QPainter>

namespace kelvra_login {

Backdrop::Backdrop(const QString &builtInPicture, const QByteArray &otherBytes)
    : builtIn(builtInPicture)
    , otherPicture(otherBytes)
{
}

void Backdrop::prepare(const QSize &size)
{
    if (stretched.size() == size)
        return;
    QImage picture = QImage::fromData(otherPicture);
    // Past the pixmap cache, which would hold the picture as a whole, then lose it and have it read again.
    if (picture.isNull())
        picture.load(builtIn);
    // Averages what it makes smaller, where the painter would look at four of the picture's pixels only.
    stretched = QPixmap::fromImage(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void Backdrop::paint(QPainter *painter, const QRect &rect)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    prepare((QSizeF(rect.size()) * ratio).toSize());
    stretched.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, stretched);
}

} // namespace kelvra_login
