#include "login/gesture/GestureRules.h"

namespace kelvra_login {

namespace {

constexpr qint64 dotReach = 20; // pixels

// In 64 bits: on a pad of 300 pixels the squares below pass 32.
struct Offset
{
    Offset(const QPoint &from, const QPoint &to)
        : x(qint64(to.x()) - from.x())
        , y(qint64(to.y()) - from.y())
    {
    }

    qint64 along(const Offset &other) const { return x * other.x + y * other.y; }
    qint64 across(const Offset &other) const { return x * other.y - y * other.x; }

    const qint64 x;
    const qint64 y;
};

bool isPassed(const QPoint &dot, const QPoint &last, const QPoint &pointer)
{
    const Offset stroke(last, pointer);
    const Offset toDot(last, dot);
    const qint64 across = stroke.across(toDot);
    // The distance from the line, with both sides multiplied by the stroke's length and squared.
    const bool nearLine = across * across <= stroke.along(stroke) * dotReach * dotReach;
    return nearLine && stroke.along(toDot) > 0 && Offset(pointer, last).along(Offset(pointer, dot)) > 0;
}

} // namespace

int dotUnder(const GestureCentres &centres, const QPoint &pointer)
{
    for (int index = 0; index < gestureDots; ++index) {
        const Offset offset(centres[index], pointer);
        if (offset.along(offset) < dotReach * dotReach)
            return index;
    }
    return noGestureDot;
}

int dotPassed(const GestureCentres &centres, const GestureDotSet &taken, const QPoint &last, const QPoint &pointer)
{
    for (int index = 0; index < gestureDots; ++index) {
        if (!taken[index] && isPassed(centres[index], last, pointer))
            return index;
    }
    return noGestureDot;
}

} // namespace kelvra_login
