#pragma once

#include <QPixmap>

class QPainter;
class QRect;

namespace kelvra_login {

/**
 * Stretches a picture over a widget. What has been stretched is kept at the screen's own resolution, so that a picture
 * of any size is sharp at every scale factor and costs its scaling only once.
 */
class Backdrop
{
public:
    /** Paints `picture` over all of `rect`; nothing if the picture is null. `rect` is in the painter's own pixels. */
    void paint(QPainter *painter, const QRect &rect, const QPixmap &picture);

private:
    QPixmap stretched;
    qint64 stretchedFrom = 0; // the picture's cache key
};

} // namespace kelvra_login
