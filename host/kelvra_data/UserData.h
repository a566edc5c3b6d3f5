#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_data/SuperUserInfo.h"
#include "host/kelvra_data/UserInfo.h"
#include "host/kelvra_data/UserRole.h"

#include <QDateTime>
#include <QString>

#include <memory>

namespace kelvra_data {
class UserData;
}

ZSINGLETON_DECLARE(KELVRA_DATA_EXPORT, kelvra_data::UserData)

namespace kelvra_data {

/**
 * The store of local users, their credentials, their login records and the lock of local login.
 *
 * Every `bool` answer is true on success, or when the asked fact holds. An operation that answers false has
 * changed nothing. Names are compared exactly. No operation blocks for longer than a user would notice.
 */
class KELVRA_DATA_EXPORT UserData : public ZCOMMON::ZSingleton<UserData>
{
public:
    /**
     * No login has ever happened: the module offers the choice of how to begin. With a superuser who has been created
     * but has not logged in yet, either answer will do: a host may count the creation as the choice.
     */
    bool isFirstLogin();

    /** Whether there is a user of that name, a cloud account that has been adopted included. */
    bool isUserExist(const QString &name);
    /** Whether that user is a superuser: only for those "Forgot?" leads to the recovery of the password. */
    bool isSuperUser(const QString &name);
    /**
     * Whether a local user of this role exists; the module asks for SuperUserRole only. An adopted cloud account does
     * not count: a local superuser can still be created.
     */
    bool isSuperUserExist(UserRole role);

    /** The user of that name; UserInfo::name is empty when there is none. */
    UserInfo getUserInfo(const QString &name);

    /**
     * The superuser responsible for `name`: the record itself when `name` is the superuser. The module passes
     * the user who is logging in. A fresh record (empty userName) when there is none.
     */
    SuperUserInfo getSuperUserInfo(const QString &name);

    /** The local user who logged in last, empty before the first login. */
    QString getLastLoggedLocalUser();

    /** False for a wrong password and for an unknown user alike. */
    bool verifyUserPassword(const QString &name, const QString &password);

    /** `gesture` holds the digits 0 to 8 of the dots in drawing order. False as for the password. */
    bool verifyUserGesture(const QString &name, const QString &gesture);

    /**
     * Reads the stored lock of local login. On true both arguments are set: `seconds` is what is left of a lock
     * as it was stored, whatever time has passed since. On false they are left alone.
     */
    bool getLockInfo(bool &locked, int &seconds);

    /** Stores the lock of local login; also called with (false, 0) and (false, 300) for "not locked". */
    bool updateLockInfo(bool locked, int seconds);

    /** Records a login of `name` now, with whether the next one may be automatic; makes it the last local user. */
    bool updateUserLoginRecord(const QString &name, bool autoLogin);

    /** Reads that record. False when there is none; the arguments are then left alone. */
    bool getUserLoginRecord(const QString &name, bool &autoLogin, QDateTime &lastLogin);

    /** Whether the next login of `name` may be automatic, as updateUserLoginRecord or userAutoLoginCtrl said last. */
    bool isUserAutoLogin(const QString &name);
    /** Switches automatic login of `name` on or off; false when the user does not exist. */
    bool userAutoLoginCtrl(const QString &name, bool on);

    /** Remembers this computer as the one of the last login. */
    bool updateLoginEnvironment();
    /** Whether this computer is that of the last login; automatic login requires it. */
    bool isSameLoginEnvironment();

    /** Whether `name` has a gesture to log in with. */
    bool isUserConfigureGesture(const QString &name);
    /** Stores a gesture, 4 to 9 digits, in the place of the one before; false for an unknown user. */
    bool updateUserGesture(const QString &name, const QString &gesture);
    /** Takes the gesture of `name` away; false when there was none. */
    bool deleteUserGesture(const QString &name);

    /**
     * Creates the local superuser; false when one exists already or the record is not usable. For the choice "Use
     * Default Superuser" the module passes "admin" with the password "468024", which no password rule may refuse.
     */
    bool addSuperUser(const SuperUserInfo &info);

    /** Adopts a cloud account as superuser at its first login on this client. */
    bool addSuperUserFromSaasUser(const QString &account);

    /** Whether the three answers are those stored for `name`. */
    bool verifySuperUserAnswers(const QString &name, const QString &answer1, const QString &answer2,
                                const QString &answer3);

    /** Replaces the password of `name`. */
    bool resetUserPwd(const QString &name, const QString &password);

    /**
     * A text of 62 to 126 UTF-16 characters by which checkSuperUserCredentials knows the superuser again; empty
     * on failure.
     */
    QString generateSuperUserCredentials(const QString &name);

    /** Whether `credential` was generated for `name`. The text may be anything, an empty one included. */
    bool checkSuperUserCredentials(const QString &name, const QString &credential);

private:
    friend class ZCOMMON::ZSingleton<UserData>;
    UserData();
    ~UserData();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_data
