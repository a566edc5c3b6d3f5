#pragma once

#include "host/Export.h"

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace ZCOMMON {

/**
 * What the client's frameless dialogs have in common: they are dragged by their own surface, and the Enter key
 * presses none of their buttons by itself.
 */
class ZCOMMON_EXPORT FramelessBehaviour
{
public:
    explicit FramelessBehaviour(QWidget *window);

    /** Each tells whether the event belongs to a drag; one that does not is left to others. */
    bool press(const QMouseEvent *event);
    bool move(const QMouseEvent *event);
    bool release(const QMouseEvent *event);

    /** Ends a drag whose release will not be seen, as when the window is hidden or blocked. */
    void cancelDrag();

    /**
     * Takes the role of default button from every push button. QDialog promotes one whenever it is shown or the
     * focus moves, and clicks it on an Enter that nobody took; to be called before QDialog sees such a key.
     */
    void demoteDefaultButtons() const;

private:
    QWidget *const window;
    QPoint grip; ///< of the pointer from the window's top left corner
    bool dragging = false;
};

} // namespace ZCOMMON
