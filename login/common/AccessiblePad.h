#pragma once

#include <QAccessibleWidget>

namespace kelvra_login {

/** Announces a gesture pad to assistive technology as one drawing surface: its dots would give the gesture away. */
class AccessiblePad : public QAccessibleWidget
{
public:
    explicit AccessiblePad(QWidget *pad);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

protected:
    ~AccessiblePad() override;
};

} // namespace kelvra_login
