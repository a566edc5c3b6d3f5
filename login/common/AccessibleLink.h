#pragma once

#include <QAccessibleWidget>

class QLabel;

namespace kelvra_login {

/** Announces a label with a slot click() to assistive technology as a link that can be pressed. */
class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(QLabel *label);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    /** A press clicks the label as soon as control returns to the event loop: what follows may take its time. */
    void doAction(const QString &name) override;

protected:
    ~AccessibleLink() override;
};

} // namespace kelvra_login
