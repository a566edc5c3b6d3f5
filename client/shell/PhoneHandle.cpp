#include "client/shell/PhoneHandle.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace kelvra_client {

namespace {

constexpr QSize handleSize(36, 84); // as the next ones in pixels
constexpr qreal bodyRadius = 8;
constexpr QSize phoneSize(18, 32);
constexpr qreal phoneRadius = 4;
constexpr int speakerWidth = 5;
constexpr int newsRadius = 5;
constexpr qreal stroke = 1.6;

const QColor bodyColor(0x0e, 0x16, 0x23);
const QColor edgeColor(0x32, 0x3e, 0x58);
const QColor accentColor(0x2c, 0x7d, 0xce);
const QColor phoneColor(0xcc, 0xd3, 0xdd);
const QColor phoneHoverColor(Qt::white);

} // namespace

// A tool window, as the phone: alerts do not belong to it.
PhoneHandle::PhoneHandle(QWidget *parent)
    : QAbstractButton(parent)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setObjectName(QStringLiteral("phoneHandle"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(handleSize);
    // Without a compositor the corners would be black.
    QPainterPath shape;
    shape.addRoundedRect(body(), bodyRadius, bodyRadius);
    setMask(QRegion(shape.toFillPolygon().toPolygon()) & rect());
    retranslateUi();
}

void PhoneHandle::setNews(bool arrived)
{
    news = arrived;
    retranslateUi();
    update();
}

void PhoneHandle::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QAbstractButton::changeEvent(event);
}

void PhoneHandle::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void PhoneHandle::paintEvent(QPaintEvent *)
{
    const bool chosen = underMouse() || hasFocus();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), bodyColor);
    painter.setPen(QPen(chosen ? accentColor : edgeColor, 2));
    painter.drawRoundedRect(QRectF(body()).adjusted(1, 1, -1, -1), bodyRadius, bodyRadius);

    QRectF phone(QPointF(), phoneSize);
    phone.moveCenter(QRectF(rect()).center());
    painter.setPen(QPen(chosen ? phoneHoverColor : phoneColor, stroke));
    painter.drawRoundedRect(phone, phoneRadius, phoneRadius);
    const QPointF speaker(phone.center().x(), phone.top() + phoneRadius);
    painter.drawLine(speaker - QPointF(speakerWidth / 2.0, 0), speaker + QPointF(speakerWidth / 2.0, 0));
    if (!news)
        return;
    painter.setPen(QPen(bodyColor, 2));
    painter.setBrush(accentColor);
    painter.drawEllipse(phone.topRight(), newsRadius, newsRadius);
}

void PhoneHandle::retranslateUi()
{
    const QString text = news ? tr("Open the simulated phone: something has arrived") : tr("Open the simulated phone");
    setWindowTitle(text);
    setToolTip(text);
    setAccessibleName(text);
}

QRect PhoneHandle::body() const
{
    return rect().adjusted(-int(2 * bodyRadius), 0, 0, 0);
}

} // namespace kelvra_client
