#pragma once

#include <QAccessibleWidget>

class QLineEdit;

namespace kelvra_login {

/**
 * Announces a password field to assistive technology without what is in it, an open eye or not. It has no text
 * interface: a field with one has every typed character broadcast, hidden or not.
 */
class AccessiblePassword : public QAccessibleWidget
{
public:
    explicit AccessiblePassword(QLineEdit *lineEdit);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

protected:
    ~AccessiblePassword() override;
};

} // namespace kelvra_login
