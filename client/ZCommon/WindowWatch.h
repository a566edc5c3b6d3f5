#pragma once

#include "host/Export.h"

#include <QObject>
#include <QPointer>
#include <QRect>

class QWidget;

namespace ZCOMMON {

/**
 * Tells when the window system has put up a window, and each time that the window moves from then on. Before, a window
 * has only the place that it has asked for: a window manager may put it elsewhere.
 */
class ZCOMMON_EXPORT WindowWatch : public QObject
{
    Q_OBJECT

public:
    explicit WindowWatch(QObject *parent);

    /** From now on this window is watched; null: none is. */
    void setWindow(QWidget *window);
    QWidget *window() const { return watched; }

    /** Whether the window system shows the window, so that its place is final for now. */
    static bool isThere(const QWidget *window);

    /**
     * Where a window stands with its frame, in global pixels. QWidget::frameGeometry() may be wrong for good: it is
     * read while the window manager is still building its frame, of a window without borders too.
     */
    static QRect frameOf(const QWidget *window);

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /** The window is there, or has been moved or resized since. */
    void signalPlaced();

private:
    void watchHandle();

    QPointer<QWidget> watched;
};

} // namespace ZCOMMON
