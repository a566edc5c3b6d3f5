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
    explicit PEWidget(QWidget *parent = nullptr);
    ~PEWidget() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

} // namespace ZCOMMON
