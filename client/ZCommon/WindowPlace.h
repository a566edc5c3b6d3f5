#pragma once

#include "client/ZCommon/WindowWatch.h"

#include <QPoint>

#include <functional>

namespace ZCOMMON {

/**
 * Keeps a window where it belongs: before it is shown, when the window system has put it up, and whenever the window
 * of its parent moves. Lets go of the window when the user drags it, and of one that was moved before its first
 * showing. The window must outlive the object, which is its child.
 */
class ZCOMMON_EXPORT WindowPlace : public QObject
{
    Q_OBJECT

public:
    /** Where the top left corner of the window's frame belongs now, in global pixels. */
    using Rule = std::function<QPoint()>;

    WindowPlace(QWidget *window, Rule belongsAt);

    /** Centres the window on the one that its parent belongs to; where that is not shown, on its screen. */
    static void centre(QWidget *window);

    /** Moves a window so that its frame's top left corner comes to `place`, without regard to QWidget's own margins. */
    static void move(QWidget *window, const QPoint &place);

    /** Puts the window where it belongs by now, unless it has been let go. */
    void update();
    bool isLetGo() const { return letGo; }
    /** Takes a window back that has been let go. */
    void takeBack() { letGo = false; }

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void begin();
    void put();
    void correct();
    bool stands() const;
    bool isFree() const;

    QWidget *const window;
    const Rule rule;
    WindowWatch owner;
    int correctionsLeft = 0; ///< of the present place, against the window manager
    bool begun = false;
    bool letGo = false;
};

} // namespace ZCOMMON
