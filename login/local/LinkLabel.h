#pragma once

#include <QLabel>

namespace kelvra_login {

/**
 * A label that is a link. What a click does is up to the page, which watches the label's mouse events; Tab comes to
 * the label, and Space there is a click. Return and Enter stay with the page.
 */
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(QWidget *parent = nullptr);
    ~LinkLabel() override;

public slots:
    /** Clicks the middle with the left mouse button. The label may be gone when this returns. */
    void click();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace kelvra_login
