#pragma once

#include <QPoint>

#include <array>
#include <bitset>

namespace kelvra_login {

constexpr int gestureDots = 9;
constexpr int noGestureDot = -1;

/** The centres of the pad's dots in index order, in pixels. */
using GestureCentres = std::array<QPoint, gestureDots>;
using GestureDotSet = std::bitset<gestureDots>;

/** The index of the first dot under the pointer, or noGestureDot. */
int dotUnder(const GestureCentres &centres, const QPoint &pointer);

/**
 * The index of the first dot not yet taken that the pointer has passed on a straight way from the centre of the last
 * dot taken, or noGestureDot.
 */
int dotPassed(const GestureCentres &centres, const GestureDotSet &taken, const QPoint &last, const QPoint &pointer);

} // namespace kelvra_login
