#pragma once

#include "host/Export.h"

#include <QPoint>

class QWidget;

namespace kelvra_base {

/** Small tools of the base library. */
class KELVRA_BASE_EXPORT BaseTools
{
public:
    BaseTools() = delete;

    /**
     * Where a dialog's top left corner goes so that the dialog opens centred on the screen in use, in global
     * pixels. `widget` must have its final size.
     */
    static QPoint defaultPos(QWidget *widget);
};

} // namespace kelvra_base
