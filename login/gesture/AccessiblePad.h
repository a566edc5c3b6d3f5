#pragma once

#include <QAccessibleWidget>

namespace kelvra_login {

class GesturePanel;

/** Announces a GesturePanel to assistive technology as one drawing surface: its dots would give the gesture away. */
class AccessiblePad : public QAccessibleWidget
{
public:
    /** Makes every GesturePanel of the program be announced so. */
    static void install();

    explicit AccessiblePad(GesturePanel *panel);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

protected:
    ~AccessiblePad() override;
};

} // namespace kelvra_login
