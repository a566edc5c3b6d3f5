#pragma once

#include "login/common/Form.h"
#include "login/gesture/GestureRules.h"

#include <QList>
#include <QPainterPath>
#include <QRegion>
#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class GesturePanel;
}

class GesturePoint;

/**
 * The pad of 3x3 dots on which a gesture is drawn with the mouse. A gesture is the digits of its dots, 0 to 8 row by
 * row, in the order drawn, one dot at least. It stays on show for 500 ms, and the pad takes no other meanwhile.
 */
class GesturePanel : public QWidget
{
    Q_OBJECT

public:
    explicit GesturePanel(QWidget *parent = nullptr);
    ~GesturePanel() override;

    /** Marks the gesture on show as wrong until the pad is cleared; without one nothing happens. */
    void setError();
    /** The picture of dots at rest: 0 for the first, any other value for the second. */
    void setPointStyle(int style);

signals:
    /** Once for each gesture, on release. A receiver may raise alerts, and may destroy the panel. */
    void signalGesturePwd(QString pwd);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    GestureCentres centres() const;
    GesturePoint *pointUnder(const QPoint &pointer) const;
    GesturePoint *pointPassed(const QPoint &pointer) const;
    QPoint cursorPoint() const;
    QString gesture() const;
    void select(GesturePoint *point);
    void updateTrail(const QPoint &pointer);
    void paintLines();
    void reset();

    const std::unique_ptr<Form<Ui::GesturePanel>> ui;
    QWidget *const overlay;
    QList<GesturePoint *> points;
    QList<GesturePoint *> selected;
    QPainterPath path;
    bool pressed = false;
    bool finished = false;
    bool error = false;
    bool isHandingOut = false; // the gesture's receivers are at work
    QRegion trailArea;         // where trailing lines have been painted since an update was last asked for
};

} // namespace kelvra_login
