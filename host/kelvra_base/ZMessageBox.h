#pragma once

#include "host/Export.h"

#include <QString>

class QWidget;

namespace kelvra_base {

/** What a message box was left with. The module ignores it. */
enum MessageBoxButton : int {
    NoButton = 0,    ///< none to offer; ZMessageBox::warning() does not return it
    OkButton = 1,    ///< all that the module offers
    CancelButton = 2 ///< left to the rest of the client
};

/** The client's message box for fatal messages. */
class KELVRA_BASE_EXPORT ZMessageBox
{
public:
    ZMessageBox() = delete;

    /**
     * Shows `text` as a warning before `parent` and blocks in an event loop of its own until it is answered.
     *
     * @param parent  window to stand before, may be null; may be destroyed while the box is open
     * @param text    the message
     * @param buttons sum of the MessageBoxButton values to offer; the module passes 1
     * @param flag    true lets the box close itself when nobody answers; the module passes false
     * @return the button chosen; closing the box counts as CancelButton where that is offered, else OkButton
     */
    static MessageBoxButton warning(QWidget *parent, const QString &text, int buttons, bool flag);
};

} // namespace kelvra_base
