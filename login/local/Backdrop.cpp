#include "login/local/Backdrop.h"

#include <QPaintDevice>
#include <QPainter>

namespace kelvra_login {

void Backdrop::paint(QPainter *painter, const QRect &rect, const QPixmap &picture)
{
    if (picture.isNull())
        return;
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QSize size = (QSizeF(rect.size()) * ratio).toSize();
    if (stretched.size() != size || stretchedFrom != picture.cacheKey()) {
        // Averages what it makes smaller, where the painter would look at four of the picture's pixels only.
        stretched = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        stretchedFrom = picture.cacheKey();
    }
    stretched.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, stretched);
}

} // namespace kelvra_login
