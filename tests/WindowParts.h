#pragma once

#include "Platform.h"

#include <QtTest>
#include <QtWidgets>

/** Access to the parts of a window by their names. */
class WindowParts
{
protected:
    virtual ~WindowParts() = default;

    /** What is searched for children. */
    virtual QWidget *root() const = 0;

    template <typename T = QWidget>
    T *child(const QString &name) const
    {
        return root()->findChild<T *>(name);
    }

    /** The line edit of that name, or the one in the field of that name. */
    QLineEdit *edit(const QString &name) const
    {
        auto *named = child<QLineEdit>(name);
        return named ? named : child(name)->findChild<QLineEdit *>();
    }

    /** What a label or a button says. */
    QString text(const QString &name) const { return child(name)->property("text").toString(); }

    bool isShown(const QString &name) const { return child(name)->isVisible(); }

    void click(const QString &name, const QPoint &at = {}) const
    {
        QTest::mouseClick(child(name), Qt::LeftButton, {}, at);
    }
};

/** Draws on the gesture pad in `window` as a hand does: a little past each dot. */
inline void drawGesture(const QWidget *window, const QString &gesture)
{
    QVector<QPoint> dots;
    for (const auto *part : window->findChildren<QWidget *>()) {
        if (part->inherits("kelvra_login::GesturePoint"))
            dots << part->mapTo(window, part->rect().center());
    }
    QWindow *screen = window->windowHandle();
    QPoint last = dots.value(gesture[0].digitValue());
    QTest::mousePress(screen, Qt::LeftButton, {}, last);
    QTest::mouseMove(screen, last + QPoint(1, 1));
    for (const QChar digit : gesture.mid(1)) {
        const QPoint next = dots.value(digit.digitValue());
        QTest::mouseMove(screen, next + (next - last) / 10);
        last = next;
    }
    QTest::mouseRelease(screen, Qt::LeftButton, {}, last);
}
