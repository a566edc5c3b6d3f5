#pragma once

#include <QObject>

namespace kelvra_base {
class PwdStrengthWt;
}

namespace kelvra_login {

class Handlers;
class UserNameWt;
class UserPwdWt;

/**
 * Rates the new password of a page while it is typed, tells the hub, and keeps the looks of the page's fields in
 * step with the keyboard focus. It uses the fields, and so belongs to the
 * handlers of their form.
 */
class NewPwdRating : public QObject
{
    Q_OBJECT

public:
    /** The fields of a page that takes a new password. */
    struct Fields
    {
        UserNameWt *user;
        UserPwdWt *password;
        kelvra_base::PwdStrengthWt *strength;
        UserPwdWt *confirmation;
    };

    NewPwdRating(const Fields &pageFields, Handlers &owner);
    ~NewPwdRating() override;

signals:
    /** The password has been rated, as one of PwdTipClass; the hub hears of it next. */
    void signalRated(int pwdStrength);

private:
    void connectTyping();
    void connectFocus();
    void rate(const QString &pwd, bool tipVisible);

    const Fields fields;
};

} // namespace kelvra_login
