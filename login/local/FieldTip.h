#pragma once

#include <QObject>

class QWidget;

namespace kelvra_login {

/**
 * Keeps the tool tip at a field on the screen. The toolkit hides a tip when the pointer leaves any widget, also when
 * that is because the tip has opened under the pointer. It lies over the line edit, so typing takes it away. Owned by
 * the field; a new one takes the place of the last.
 */
class FieldTip : public QObject
{
public:
    /** Shows `text` at the top left corner of `field`. */
    static void show(QWidget *field, const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    FieldTip(QWidget *owner, const QString &tip);
    void hideOnTyping();
    bool isOnScreen() const;
    void showTip();

    QWidget *const field;
    const QString text;
};

} // namespace kelvra_login
