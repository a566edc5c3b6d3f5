#include "client/kelvra_data/UserAdmin.h"

#include "client/kelvra_data/Schema.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/Transaction.h"
#include "client/kelvra_data/UserRecord.h"
#include "host/kelvra_data/UserData.h"

#include <algorithm>

ZSINGLETON_DEFINE(kelvra_data::UserAdmin)

namespace kelvra_data {

namespace {

constexpr int maxPasswordLength = 16; // UTF-16 characters that the login form's field takes

Store &store()
{
    return ZCOMMON::ZSingleton<Store>::_instance();
}

// The login form drops white space as it is typed.
bool isTypable(const QString &text)
{
    return text.isValidUtf16() && std::none_of(text.cbegin(), text.cend(), [](QChar character) {
               return character.isSpace() || character.category() == QChar::Other_Control;
           });
}

} // namespace

UserAdmin::UserAdmin() = default;

UserAdmin::~UserAdmin() = default;

QVector<OrdinaryUser> UserAdmin::users() const
{
    QVector<OrdinaryUser> users;
    QSqlQuery query = store().run("SELECT name, last_login, auto_login, gesture IS NOT NULL FROM users "
                                  "WHERE kind = ? AND role = ? ORDER BY name",
                                  {Schema::LocalKind, OrdinaryUserRole});
    while (query.next()) {
        const QDateTime lastLogin = QDateTime::fromString(query.value(1).toString(), Qt::ISODateWithMs);
        users.append(
            {query.value(0).toString(), lastLogin.toLocalTime(), query.value(2).toBool(), query.value(3).toBool()});
    }
    return users;
}

UserAdmin::Answer UserAdmin::checkName(const QString &name) const
{
    if (name.trimmed().isEmpty())
        return NameEmpty;
    if (!isTypable(name))
        return NameNotTypable;
    if (name.size() > UserRecord::maxNameLength)
        return NameTooLong;
    return ZCOMMON::ZSingleton<UserData>::_instance().isUserExist(name) ? NameTaken : Done;
}

UserAdmin::Answer UserAdmin::checkPassword(const QString &password) const
{
    if (password.isEmpty())
        return PasswordEmpty;
    if (!isTypable(password))
        return PasswordNotTypable;
    return password.size() > maxPasswordLength ? PasswordTooLong : Done;
}

UserAdmin::Answer UserAdmin::add(const QString &name, const QString &password)
{
    if (const Answer refusal = checkPassword(password))
        return refusal;
    Transaction transaction(store().database());
    if (const Answer refusal = checkName(name))
        return refusal;
    const bool added =
        transaction.isActive() &&
        store().change("INSERT INTO users (name, kind, role, password) VALUES (?, ?, ?, ?)",
                       {name, Schema::LocalKind, OrdinaryUserRole, UserRecord::seal(password, "password", name)}) &&
        transaction.commit();
    return added ? Done : NotStored;
}

// A reference to the last local user goes with the user, by a rule of the schema.
UserAdmin::Answer UserAdmin::remove(const QString &name)
{
    const QSqlQuery query = store().run("DELETE FROM users WHERE name = ? AND kind = ? AND role = ?",
                                        {name, Schema::LocalKind, OrdinaryUserRole});
    if (!query.isActive())
        return NotStored;
    return query.numRowsAffected() == 1 ? Done : NoSuchUser;
}

UserAdmin::Answer UserAdmin::setPassword(const QString &name, const QString &password)
{
    if (const Answer refusal = checkPassword(password))
        return refusal;
    Transaction transaction(store().database());
    if (!transaction.isActive())
        return NotStored;
    if (!store().holds("SELECT 1 FROM users WHERE name = ? AND kind = ? AND role = ?",
                       {name, Schema::LocalKind, OrdinaryUserRole}))
        return NoSuchUser;
    const bool stored = ZCOMMON::ZSingleton<UserData>::_instance().resetUserPwd(name, password) && transaction.commit();
    return stored ? Done : NotStored;
}

QString UserAdmin::sentence(Answer answer)
{
    switch (answer) {
    case Done:
        break;
    case NameEmpty:
        return tr("Please enter a user name.");
    case NameNotTypable:
        return tr("The user name must not contain spaces or control characters.");
    case NameTooLong:
        return tr("The user name must not be longer than %1 characters.").arg(UserRecord::maxNameLength);
    case NameTaken:
        return tr("This user name is already in use.");
    case PasswordEmpty:
        return tr("Please enter a password.");
    case PasswordNotTypable:
        return tr("The password must not contain spaces or control characters.");
    case PasswordTooLong:
        return tr("The password must not be longer than %1 characters.").arg(maxPasswordLength);
    case NoSuchUser:
        return tr("This user no longer exists.");
    case NotStored:
        return tr("The change could not be stored.");
    }
    return {};
}

} // namespace kelvra_data
