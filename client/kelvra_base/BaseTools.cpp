#include "host/kelvra_base/BaseTools.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace kelvra_base {

QPoint BaseTools::defaultPos(QWidget *widget)
{
    // The pointer is where the user looks.
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect available = screen ? screen->availableGeometry() : QRect();
    QRect place(QPoint(), widget->size());
    place.moveCenter(available.center());
    return {qMax(place.left(), available.left()), qMax(place.top(), available.top())};
}

} // namespace kelvra_base
