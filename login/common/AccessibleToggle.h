#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

namespace kelvra_login {

/**
 * Announces a button that can be checked to assistive technology, as a check box or as a tab. To toggle it is to click
 * it: what is done on a click happens, unlike with Qt's own.
 */
class AccessibleToggle : public QAccessibleWidget
{
public:
    /** `role` is CheckBox or PageTab. */
    AccessibleToggle(QAbstractButton *toggle, QAccessible::Role role);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    /** The click comes as soon as control returns to the event loop: what follows may take its time. */
    void doAction(const QString &name) override;

protected:
    ~AccessibleToggle() override;

private:
    QAbstractButton *button() const;
};

} // namespace kelvra_login
