#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

namespace kelvra_login {

/**
 * Announces a choice of the first-run page to assistive technology as a button. The keyboard focus is the page's: the
 * button that the page marks with chosenProperty is announced as having it.
 */
class AccessibleMethod : public QAccessibleWidget
{
public:
    /** Dynamic property of a button: true on the one that its page has chosen. */
    static constexpr const char *chosenProperty = "chosen";

    explicit AccessibleMethod(QAbstractButton *method);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    /** The click comes as soon as control returns to the event loop: what follows may take its time. */
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

protected:
    ~AccessibleMethod() override;

private:
    QAbstractButton *button() const;
};

} // namespace kelvra_login
