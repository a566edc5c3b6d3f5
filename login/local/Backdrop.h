#pragma once

#include <QPixmap>
#include <QString>

class QPainter;
class QRect;

namespace kelvra_login {

/**
 * Stretches a picture over a widget. Only what has been stretched is kept, at the screen's own resolution, so that a
 * picture of any size is sharp at every scale factor and costs its reading and scaling once.
 */
class Backdrop
{
public:
    /** `file` is read when it is first prepared or painted; one that holds no picture paints nothing. */
    explicit Backdrop(const QString &pictureFile);

    /** Reads and stretches the picture ahead of painting. `size` is in pixels of the screen. */
    void prepare(const QSize &size);
    /** Paints the picture over all of `rect`, which is in the painter's own pixels. */
    void paint(QPainter *painter, const QRect &rect);

private:
    const QString file;
    bool readable = true;
    QPixmap stretched;
};

} // namespace kelvra_login
