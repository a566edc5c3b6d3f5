#pragma once

#include <QAccessibleWidget>

namespace kelvra_login {

class LinkLabel;

/** Announces a LinkLabel to assistive technology as a link that can be pressed. */
class AccessibleLink : public QAccessibleWidget
{
public:
    /** Makes every LinkLabel of the program be announced so. */
    static void install();

    explicit AccessibleLink(LinkLabel *label);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    /** A press clicks the label as soon as control returns to the event loop: what follows may take its time. */
    void doAction(const QString &name) override;

protected:
    ~AccessibleLink() override;

private:
    LinkLabel *link() const;
};

} // namespace kelvra_login
