#include "login/gesture/GesturePoint.h"

#include <QPainter>

namespace kelvra_login {

namespace {

constexpr int dotSize = 40; // pixels

} // namespace

GesturePoint::GesturePoint(int placeOnPad, QWidget *parent)
    : QWidget(parent)
    , index(placeOnPad)
{
    setFixedSize(dotSize, dotSize);
}

QPoint GesturePoint::getCentre() const
{
    return pos() + QPoint(dotSize / 2, dotSize / 2);
}

void GesturePoint::setState(int newState)
{
    state = newState;
    forgetPicture();
}

void GesturePoint::setPictureStyle(int newStyle)
{
    style = newStyle;
    forgetPicture();
}

void GesturePoint::paintEvent(QPaintEvent *event)
{
    {
        // Kept at the screen's own resolution: a stroke paints the dots that it crosses again and again.
        const qreal ratio = devicePixelRatioF();
        if (picture.isNull() || !qFuzzyCompare(picture.devicePixelRatio(), ratio)) {
            const QSize size = (QSizeF(rect().size()) * ratio).toSize();
            picture = QPixmap(pictureName()).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            picture.setDevicePixelRatio(ratio);
        }
        QPainter painter(this);
        painter.drawPixmap(rect(), picture);
    }
    QWidget::paintEvent(event);
}

QString GesturePoint::pictureName() const
{
    if (state == SelectedState)
        return QStringLiteral(":/login_images/images/gesture_active.png");
    if (state == ErrorState)
        return QStringLiteral(":/login_images/images/gesture_error.png");
    if (style != 0)
        return QStringLiteral(":/login_images/images/gesture_normal_2.png");
    return QStringLiteral(":/login_images/images/gesture_normal_1.png");
}

void GesturePoint::forgetPicture()
{
    picture = QPixmap();
    update();
}

} // namespace kelvra_login
