#pragma once

#include <QAbstractButton>

namespace kelvra_client {

/**
 * A small window at the screen's left edge that stands for the simulated phone where there is no room for it. A click,
 * or Space or Return, opens the phone. It does not take the focus when it is shown. Owned by PhonePlace.
 */
class PhoneHandle : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PhoneHandle(QWidget *parent = nullptr);

    /** Whether something has arrived on the phone that nobody has seen. */
    void setNews(bool arrived);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void retranslateUi();
    /** Its left corners lie beyond the screen, so that only the others are round. */
    QRect body() const;

    bool news = false;
};

} // namespace kelvra_client
