#include "host/kelvra_base/PwdStrengthWt.h"

#include <QPainter>

namespace kelvra_base {

namespace {

constexpr int minimumLength = 8;
constexpr int maximumLength = 16;
constexpr int minimumKinds = 2;
constexpr int segmentCount = 3;
constexpr int segmentSpacing = 4;
constexpr int barHeight = 4;
constexpr int barRadius = 2;

const QColor trackColor(0x20, 0x2a, 0x3f);
const QColor weakColor(0xdc, 0x4d, 0x4d);
const QColor mediumColor(0xe8, 0xa3, 0x3d);
const QColor strongColor(0x00, 0xcf, 0x8b);

/** How many of digits, lower case, upper case and other printable characters occur in `pwd`. */
int countKinds(const QString &pwd)
{
    bool digit = false;
    bool lower = false;
    bool upper = false;
    bool special = false;
    for (const QChar character : pwd) {
        if (character >= QLatin1Char('0') && character <= QLatin1Char('9'))
            digit = true;
        else if (character.isLower())
            lower = true;
        else if (character.isUpper())
            upper = true;
        else if (character.isSurrogate() || (character.isPrint() && !character.isSpace()))
            special = true;
    }
    return int(digit) + int(lower) + int(upper) + int(special);
}

ZCOMMON::PwdStrength grade(const QString &pwd)
{
    if (pwd.size() < minimumLength || pwd.size() > maximumLength)
        return ZCOMMON::PwdLengthIllegal;
    switch (const int kinds = countKinds(pwd)) {
    case minimumKinds:
        return ZCOMMON::PwdWeak;
    case minimumKinds + 1:
        return ZCOMMON::PwdMedium;
    default:
        return kinds < minimumKinds ? ZCOMMON::PwdTooSimple : ZCOMMON::PwdStrong;
    }
}

QColor barColor(ZCOMMON::PwdStrength strength)
{
    switch (strength) {
    case ZCOMMON::PwdMedium:
        return mediumColor;
    case ZCOMMON::PwdStrong:
        return strongColor;
    default:
        return weakColor;
    }
}

} // namespace

class PwdStrengthWt::Private
{
public:
    ZCOMMON::PwdStrength strength = ZCOMMON::PwdLengthIllegal;
    bool empty = true;

    /** Segments filled: none for an empty password, half of the first for one that is refused. */
    qreal filled() const
    {
        if (empty)
            return 0.0;
        return strength < ZCOMMON::PwdWeak ? 0.5 : qreal(strength);
    }
};

PwdStrengthWt::PwdStrengthWt(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    setMinimumHeight(barHeight);
}

PwdStrengthWt::~PwdStrengthWt() = default;

ZCOMMON::PwdStrength PwdStrengthWt::setPwd(const QString &pwd)
{
    d->strength = grade(pwd);
    d->empty = pwd.isEmpty();
    update();
    return d->strength;
}

void PwdStrengthWt::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal segment = (width() - (segmentCount - 1) * segmentSpacing) / qreal(segmentCount);
    const int top = (height() - barHeight) / 2;
    QRectF place(0, top, segment, barHeight);
    for (int i = 0; i < segmentCount; ++i) {
        painter.setBrush(trackColor);
        painter.drawRoundedRect(place, barRadius, barRadius);
        const qreal part = qBound(0.0, d->filled() - i, 1.0);
        if (part > 0.0) {
            painter.setBrush(barColor(d->strength));
            painter.drawRoundedRect(QRectF(place.topLeft(), QSizeF(segment * part, barHeight)), barRadius, barRadius);
        }
        place.translate(segment + segmentSpacing, 0);
    }
}

} // namespace kelvra_base
