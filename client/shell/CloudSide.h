#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace kelvra_client {

class PhonePlace;
class PhoneWindow;

/** What the shell does for users of the cloud: the library's set-up, their automatic login, the simulated phone. */
class CloudSide : public QObject
{
    Q_OBJECT

public:
    explicit CloudSide(QObject *parent = nullptr);
    /** Takes the phone down and ends the library's work: calls that still wait get no answer. */
    ~CloudSide() override;

    /** The store is open in `folder`; it closes after this object has gone. */
    void open(const QString &folder);

    /** `kept`: without it the phone only comes when it is asked for. */
    void keepPhone(bool kept) { phoneKept = kept; }
    /** Whether there is a phone to show: the cloud is on and simulated. */
    bool hasPhone() const;
    /** Shows the phone on its own. */
    void showPhone();
    /** The login is open: the phone stands beside it, and comes again whenever something arrives on it. */
    void accompanyLogin();
    /** The login is over, or the client quits. */
    void leaveLogin();

    /** Whether a user of the cloud can be offered a login at all. */
    static bool isEnabled();
    /** Whether this is a cloud account that has logged in here before. */
    static bool isAccount(const QString &name);
    /** Whether the account that logged in last wants to be logged in automatically, and can be. */
    static bool isAutoLoginStored();
    /** Forgets what an automatic login needs, where the account that has just logged in does not want one. */
    static void settleAutoLogin(const QString &account);

private:
    /** Null without a phone. */
    PhonePlace *preparedPhone();
    void comeBack();
    /** Something has come on the phone. */
    void arrive();

    std::unique_ptr<PhoneWindow> phone;
    std::unique_ptr<PhonePlace> place; ///< goes before the phone
    QString lastCode;                  ///< that has been on show, so that the phone comes once for each
    bool phoneKept = true;
    bool loginOpen = false;
};

} // namespace kelvra_client
