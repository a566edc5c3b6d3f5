#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

class QPainter;
class QRect;

namespace kelvra_login {

/**
 * Stretches a picture over a widget. Only what has been stretched is kept, at the screen's own resolution, so that a
 * picture of any size is sharp at every scale factor and costs its decoding and scaling once.
 */
class Backdrop
{
public:
    /**
     * `otherPicture` holds the bytes of a picture file, to be shown in place of `builtIn`, a resource; bytes that are
     * no picture are not. Nothing is decoded yet.
     */
    explicit Backdrop(const QString &builtIn, const QByteArray &otherPicture = QByteArray());

    /** Decodes and stretches the picture ahead of painting. `size` is in pixels of the screen. */
    void prepare(const QSize &size);
    /** Paints the picture over all of `rect`, which is in the painter's own pixels. */
    void paint(QPainter *painter, const QRect &rect);

private:
    const QString builtIn;
    const QByteArray otherPicture;
    QPixmap stretched;
};

} // namespace kelvra_login
