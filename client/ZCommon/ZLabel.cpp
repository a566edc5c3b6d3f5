#include "host/ZCommon/ZLabel.h"

#include <QEvent>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

namespace ZCOMMON {

class ZLabel::Private
{
public:
    explicit Private(ZLabel *owner)
        : label(owner)
    {
    }

    QRect textRect() const
    {
        const int margin = label->margin();
        const int indent = qMax(0, label->indent());
        QRect area = label->contentsRect().adjusted(margin, margin, -margin, -margin);
        const Qt::Alignment alignment = QStyle::visualAlignment(label->layoutDirection(), label->alignment());
        if (alignment & Qt::AlignLeft)
            area.setLeft(area.left() + indent);
        else if (alignment & Qt::AlignRight)
            area.setRight(area.right() - indent);
        return area;
    }

    QString shownText() const
    {
        return label->fontMetrics().elidedText(label->text(), Qt::ElideRight, textRect().width());
    }

    void refresh()
    {
        label->setToolTip(shownText() == label->text() ? QString() : label->text());
        label->update();
    }

private:
    ZLabel *const label;
};

ZLabel::ZLabel(QWidget *parent)
    : QLabel(parent)
    , d(std::make_unique<Private>(this))
{
    setTextFormat(Qt::PlainText);
}

ZLabel::~ZLabel() = default;

void ZLabel::setText(const QString &text)
{
    QLabel::setText(text);
    d->refresh();
}

QSize ZLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return {qMin(whole.width(), fontMetrics().horizontalAdvance(QChar(0x2026))), whole.height()};
}

void ZLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    d->refresh();
}

void ZLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        d->refresh();
}

void ZLabel::paintEvent(QPaintEvent *event)
{
    if (toolTip().isEmpty()) {
        QLabel::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    const auto alignment = QStyle::visualAlignment(layoutDirection(), this->alignment());
    painter.drawItemText(d->textRect(), int(alignment) | Qt::TextSingleLine, option.palette, isEnabled(),
                         d->shownText(), foregroundRole());
}

} // namespace ZCOMMON
