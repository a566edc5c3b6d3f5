#pragma once

#include <QEvent>
#include <QPoint>
#include <QPointer>
#include <QString>

class QPixmap;
class QWidget;
class QWindow;

namespace kelvra_client {

/**
 * The hands and eyes of the tour: mouse and keys as the window system reports them, and what is to be seen then.
 *
 * Widgets are named by object names from the outside in, as in "localUserWt/userName"; a class name stands for an
 * object that has no name. Only what is visible counts; pop-ups come before modal windows, and those before the rest.
 */
class TourInput
{
public:
    /** Takes the pointer off what has been hidden or blocked beneath it: the window system does not know of that. */
    void settle();
    /** Moves the pointer onto the middle of a widget. */
    void moveTo(const QString &path);
    void click(const QString &path);
    /** Draws through widgets in the layout of a pad, the numbers of their places there in a row ("048"). */
    void draw(const QString &pad, const QString &places);
    // As the window manager does, with the window of a widget.
    void shift(const QString &path, const QPoint &way);
    void minimize(const QString &path);
    /** Opens the phone by its handle and puts it beside the login, where the screen is too small for both. */
    void openPhone();
    /** Presses a key in the window that takes the keys. */
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = QString());
    void type(const QString &text);

    /** What a widget shows, in words; in colours, or as a code for its picture, where the path ends in ~ or #. */
    static QString seen(const QString &path);
    /** The largest window with what stands beside it and everything that lies over it; pop-ups do not widen it. */
    static QPixmap picture();

private:
    static QWidget *find(const QString &path);
    void pressButton(QWidget *window, const QPoint &at);
    void drag(QWidget *window, const QPoint &from, const QPoint &to);
    void mouse(QWidget *window, const QPoint &at, QEvent::Type type, bool down = false);

    QPointer<QWindow> pointerWindow;
    int clock = 0; ///< milliseconds, of the window system as the program sees it
};

} // namespace kelvra_client
