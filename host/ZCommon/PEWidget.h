#pragma once

#include "host/Export.h"

#include <QWidget>

namespace ZCOMMON {

/**
 * Base of panels that are styled by a style sheet: its paint handler draws the sheet's background and border,
 * which a plain QWidget subclass leaves out. Mouse events are left unaccepted, as in ZWidget.
 */
class ZCOMMON_EXPORT PEWidget : public QWidget
{
    Q_OBJECT

public:
    /** @param parent owner, may be null */
    explicit PEWidget(QWidget *parent = nullptr);
    ~PEWidget() override;

protected:
    /** Draws background and border of the style sheet that applies. */
    void paintEvent(QPaintEvent *event) override;
    /** Leaves the event unaccepted: it goes on to the window below. */
    ///@{
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    ///@}
};

} // namespace ZCOMMON
