#pragma once

#include <QPixmap>
#include <QWidget>

namespace kelvra_login {

/** One dot of the gesture pad. */
class GesturePoint : public QWidget
{
    Q_OBJECT

public:
    enum State : int { NormalState = 0, SelectedState = 1, ErrorState = 2 };

    /** @param placeOnPad 0 to 8, row by row. */
    explicit GesturePoint(int placeOnPad, QWidget *parent = nullptr);

    int getIndex() const { return index; }
    int getState() const { return state; }
    /** The dot's centre in its parent, in pixels. */
    QPoint getCentre() const;

    void setState(int newState);
    /** 0 for the first picture of a dot at rest, any other value for the second. */
    void setPictureStyle(int newStyle);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString pictureName() const;
    void forgetPicture();

    int state = NormalState;
    const int index;
    int style = 0;
    QPixmap picture; // null until it is painted
};

} // namespace kelvra_login
