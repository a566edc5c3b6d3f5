#include "host/ZCommon/ZPushButton.h"

#include <QCursor>

namespace ZCOMMON {

ZPushButton::ZPushButton(QWidget *parent)
    : QPushButton(parent)
{
}

ZPushButton::~ZPushButton() = default;

void ZPushButton::setEnabled(bool enabled)
{
    QPushButton::setEnabled(enabled);
    // A disabled widget gets neither enter nor leave events: without this the hover look outlives the pointer.
    const bool hovered = enabled && isVisible() && rect().contains(mapFromGlobal(QCursor::pos()));
    setAttribute(Qt::WA_UnderMouse, hovered);
    update();
}

} // namespace ZCOMMON
