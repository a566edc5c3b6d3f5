#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QVector>

namespace kelvra_data {
class UserAdmin;
}

ZSINGLETON_DECLARE(KELVRA_DATA_EXPORT, kelvra_data::UserAdmin)

namespace kelvra_data {

/** A local user who is not the superuser. */
struct OrdinaryUser
{
    QString name;
    QDateTime lastLogin;    ///< local time, null before the first login
    bool autoLogin = false; ///< the next login may be automatic
    bool gesture = false;   ///< has a gesture password

    bool operator==(const OrdinaryUser &other) const
    {
        return name == other.name && lastLogin == other.lastLogin && autoLogin == other.autoLogin &&
               gesture == other.gesture;
    }
};

/**
 * The ordinary local users, for whoever may manage them; who that is, the caller decides.
 *
 * Names and passwords are held to what the fields of the login form can type, or their user could never log in. The
 * superuser and cloud accounts are out of reach. Every operation is one transaction: what does not answer Done has
 * changed nothing. GUI thread only.
 */
class KELVRA_DATA_EXPORT UserAdmin : public ZCOMMON::ZSingleton<UserAdmin>
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_data::UserAdmin)

public:
    enum Answer {
        Done,
        NameEmpty,
        NameNotTypable, ///< white space or control characters
        NameTooLong,
        NameTaken, ///< by any user, superuser or cloud account
        PasswordEmpty,
        PasswordNotTypable,
        PasswordTooLong,
        NoSuchUser, ///< no ordinary local user of that name
        NotStored
    };

    /** All of them, by name. */
    QVector<OrdinaryUser> users() const;

    /** Whether add() would take the name (Done), or why not. */
    Answer checkName(const QString &name) const;

    /** Whether add() and setPassword() would take the password (Done), or why not. */
    Answer checkPassword(const QString &password) const;

    Answer add(const QString &name, const QString &password);
    Answer remove(const QString &name);
    Answer setPassword(const QString &name, const QString &password);

    /** The answer as a sentence for the user, in the language in force; empty for Done. */
    static QString sentence(Answer answer);

private:
    friend class ZCOMMON::ZSingleton<UserAdmin>;
    UserAdmin();
    ~UserAdmin();
};

} // namespace kelvra_data
