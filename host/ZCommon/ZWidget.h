#pragma once

#include "host/Export.h"

#include <QWidget>

namespace ZCOMMON {

/**
 * Base of the client's panels. Its mouse handlers leave every event unaccepted, so that a press on the panel's
 * background reaches the window below it (see MoveableDialog).
 */
class ZCOMMON_EXPORT ZWidget : public QWidget
{
    Q_OBJECT

public:
    /** Lets a style sheet draw its background and border: the module's fields carry their frame in one. */
    explicit ZWidget(QWidget *parent = nullptr);
    ~ZWidget() override;

protected:
    /** Leaves the event unaccepted: it goes on to the window below. */
    ///@{
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    ///@}
};

} // namespace ZCOMMON
