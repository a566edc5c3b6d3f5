#include "host/kelvra_data/UserData.h"

#include "client/kelvra_data/Schema.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/Transaction.h"
#include "client/kelvra_data/UserRecord.h"
#include "client/kelvra_data/Vault.h"

#include <QRegularExpression>
#include <QSysInfo>

#include <sodium.h>

ZSINGLETON_DEFINE(kelvra_data::UserData)

namespace {

using namespace kelvra_data;
using namespace kelvra_data::UserRecord;

// The credentials text is the base64 of version, nonce and authentication code. Their sum is a multiple of three,
// so that each character is full: none could be changed without changing what it stands for.
constexpr char credentialsVersion = 1;
constexpr int nonceBytes = 24;
constexpr int codeBytes = crypto_auth_BYTES;
constexpr int credentialsBytes = 1 + nonceBytes + codeBytes;
constexpr int credentialsLength = credentialsBytes / 3 * 4;
static_assert(credentialsBytes % 3 == 0 && credentialsLength >= 62 && credentialsLength <= 126);

Store &store()
{
    return ZCOMMON::ZSingleton<Store>::_instance();
}

bool isGesture(const QString &gesture)
{
    static const QRegularExpression dots(QStringLiteral("\\A[0-8]{1,9}\\z"));
    return dots.match(gesture).hasMatch();
}

// The column of a local user; empty when there is no such user or nothing in it.
QByteArray sealedColumn(const char *select, const QString &name)
{
    QSqlQuery query = store().run(select, {name, Schema::LocalKind});
    return query.next() ? query.value(0).toByteArray() : QByteArray();
}

// Counted where a restart does not forget it.
bool countFailure(bool verified)
{
    if (!verified)
        store().change("UPDATE state SET failed_count = failed_count + 1");
    return verified;
}

bool isLocalSuperUser(const QString &name)
{
    return store().holds("SELECT 1 FROM users WHERE name = ? AND kind = ? AND role = ?",
                         {name, Schema::LocalKind, SuperUserRole});
}

// Whoever replaces the superuser has not shown to be anybody: nothing of the former local users is left to them, nor
// a lock that those have brought about. The audit log keeps who it was.
bool clearForNewSuperUser()
{
    QSqlQuery query =
        store().run("SELECT name FROM users WHERE kind = ? AND role = ?", {Schema::LocalKind, SuperUserRole});
    if (!query.next())
        return true;
    AuditEntry entry;
    entry.at = QDateTime::currentDateTime();
    entry.event = QLatin1String(superUserReplacedEvent);
    entry.user = query.value(0).toString();
    query.finish();
    return store().run("DELETE FROM users WHERE kind = ?", {Schema::LocalKind}).isActive() &&
           store().change("UPDATE state SET locked = 0, lock_seconds = 0, failed_count = 0, last_local_user = NULL") &&
           store().appendAudit(entry);
}

// The machine's own id stays out of the database: it identifies the computer to everybody.
QByteArray environmentFingerprint()
{
    QByteArray machine = QSysInfo::machineUniqueId();
    if (machine.isEmpty())
        machine = QSysInfo::machineHostName().toUtf8();
    const QByteArray salt = store().salt();
    return salt.isEmpty() ? QByteArray() : Vault::fingerprint(machine, salt);
}

// The salt ties the text to this database, the key behind the code to this folder. The sealed answer, new with every
// superuser and never changed, ties it to this one: a later one of the same name is somebody else.
QByteArray credentialsCode(const QByteArray &head, const QString &name)
{
    const QByteArray salt = store().salt();
    const QByteArray answer = sealedColumn("SELECT answer1 FROM users WHERE name = ? AND kind = ?", name);
    return store().vault().authenticate(QByteArray("credentials") + '\0' + salt + Vault::fingerprint(answer, salt) +
                                        head + nameBytes(name));
}

} // namespace

namespace kelvra_data {

// All state is the store's.
class UserData::Private
{
};

UserData::UserData() = default;

UserData::~UserData() = default;

bool UserData::isFirstLogin()
{
    return store().holds("SELECT NOT EXISTS (SELECT 1 FROM users WHERE role = ? OR last_login IS NOT NULL)",
                         {SuperUserRole});
}

bool UserData::isUserExist(const QString &name)
{
    return store().holds("SELECT 1 FROM users WHERE name = ?", {name});
}

bool UserData::isSuperUser(const QString &name)
{
    return store().holds("SELECT 1 FROM users WHERE name = ? AND role = ?", {name, SuperUserRole});
}

// An adopted cloud account does not count: the login form still has to offer the creation of a local superuser,
// and a local superuser can still be created.
bool UserData::isSuperUserExist(UserRole role)
{
    return store().holds("SELECT 1 FROM users WHERE kind = ? AND role = ?", {Schema::LocalKind, role});
}

UserInfo UserData::getUserInfo(const QString &name)
{
    UserInfo info;
    QSqlQuery query = store().run("SELECT password, role, display_name, remark FROM users WHERE name = ?", {name});
    if (!query.next())
        return info;
    info.name = name;
    info.password = unseal(query.value(0), "password", name);
    info.attribute = query.value(1).toInt();
    info.displayName = query.value(2).toString();
    info.remark = query.value(3).toString();
    return info;
}

// There is one local superuser, and it is responsible for every user of this client, cloud accounts included:
// the rest of the client recovers its password and exports its credentials, which a cloud account does not have.
SuperUserInfo UserData::getSuperUserInfo(const QString &)
{
    SuperUserInfo info;
    QSqlQuery query = store().run("SELECT name, password, role, id, display_name, remark, question1, question2, "
                                  "question3, answer1, answer2, answer3 FROM users WHERE kind = ? AND role = ?",
                                  {Schema::LocalKind, SuperUserRole});
    if (!query.next())
        return info;
    info.userName = query.value(0).toString();
    info.password = unseal(query.value(1), "password", info.userName);
    info.role = query.value(2).toInt();
    info.id = query.value(3).toInt();
    info.displayName = query.value(4).toString();
    info.remark = query.value(5).toString();
    info.question1 = query.value(6).toInt();
    info.question2 = query.value(7).toInt();
    info.question3 = query.value(8).toInt();
    info.answer1 = unseal(query.value(9), "answer1", info.userName);
    info.answer2 = unseal(query.value(10), "answer2", info.userName);
    info.answer3 = unseal(query.value(11), "answer3", info.userName);
    return info;
}

QString UserData::getLastLoggedLocalUser()
{
    QSqlQuery query = store().run("SELECT name FROM users JOIN state ON users.id = state.last_local_user");
    return query.next() ? query.value(0).toString() : QString();
}

bool UserData::verifyUserPassword(const QString &name, const QString &password)
{
    const QByteArray sealed = sealedColumn("SELECT password FROM users WHERE name = ? AND kind = ?", name);
    return countFailure(store().vault().matches(sealed, placeOf("password", name), password));
}

bool UserData::verifyUserGesture(const QString &name, const QString &gesture)
{
    const QByteArray sealed = sealedColumn("SELECT gesture FROM users WHERE name = ? AND kind = ?", name);
    return countFailure(store().vault().matchesHash(sealed, placeOf("gesture", name), gesture));
}

bool UserData::getLockInfo(bool &locked, int &seconds)
{
    QSqlQuery query = store().run("SELECT locked, lock_seconds FROM state");
    if (!query.next())
        return false;
    locked = query.value(0).toBool();
    seconds = query.value(1).toInt();
    return true;
}

// Whatever is stored here is what the failures before it have come to, so they are not counted again.
bool UserData::updateLockInfo(bool locked, int seconds)
{
    return store().change("UPDATE state SET locked = ?, lock_seconds = ?, failed_count = 0", {int(locked), seconds});
}

bool UserData::updateUserLoginRecord(const QString &name, bool autoLogin)
{
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    Transaction transaction(store().database());
    return transaction.isActive() &&
           store().change("UPDATE users SET auto_login = ?, last_login = ? WHERE name = ?",
                          {int(autoLogin), now, name}) &&
           store().change("UPDATE state SET last_local_user = "
                          "COALESCE((SELECT id FROM users WHERE name = ? AND kind = ?), last_local_user)",
                          {name, Schema::LocalKind}) &&
           transaction.commit();
}

bool UserData::getUserLoginRecord(const QString &name, bool &autoLogin, QDateTime &lastLogin)
{
    QSqlQuery query = store().run("SELECT auto_login, last_login FROM users "
                                  "WHERE name = ? AND last_login IS NOT NULL",
                                  {name});
    if (!query.next())
        return false;
    autoLogin = query.value(0).toBool();
    lastLogin = QDateTime::fromString(query.value(1).toString(), Qt::ISODateWithMs);
    return true;
}

bool UserData::isUserAutoLogin(const QString &name)
{
    return store().holds("SELECT auto_login FROM users WHERE name = ?", {name});
}

bool UserData::userAutoLoginCtrl(const QString &name, bool on)
{
    return store().change("UPDATE users SET auto_login = ? WHERE name = ?", {int(on), name});
}

bool UserData::updateLoginEnvironment()
{
    return store().change("UPDATE state SET environment = ?", {environmentFingerprint()});
}

bool UserData::isSameLoginEnvironment()
{
    return store().holds("SELECT environment = ? FROM state", {environmentFingerprint()});
}

bool UserData::isUserConfigureGesture(const QString &name)
{
    return store().holds("SELECT gesture IS NOT NULL FROM users WHERE name = ?", {name});
}

bool UserData::updateUserGesture(const QString &name, const QString &gesture)
{
    if (!isGesture(gesture))
        return false;
    const QByteArray sealed = store().vault().sealHash(gesture, placeOf("gesture", name));
    return !sealed.isEmpty() && store().change("UPDATE users SET gesture = ? WHERE name = ? AND kind = ?",
                                               {sealed, name, Schema::LocalKind});
}

bool UserData::deleteUserGesture(const QString &name)
{
    return store().change("UPDATE users SET gesture = NULL WHERE name = ? AND gesture IS NOT NULL", {name});
}

// That there is one local superuser at most is a rule of the schema: where it may not be replaced, the insertion
// fails when there is one.
bool UserData::addSuperUser(const SuperUserInfo &info)
{
    const QString name = info.userName;
    if (!isUsableName(name) || !isUsableSecret(info.password) || !isUsableSecret(info.answer1) ||
        !isUsableSecret(info.answer2) || !isUsableSecret(info.answer3))
        return false;
    Transaction transaction(store().database());
    return transaction.isActive() && (!store().isSuperUserReplaceable() || clearForNewSuperUser()) &&
           store().change("INSERT INTO users (name, kind, role, display_name, remark, password, question1, question2, "
                          "question3, answer1, answer2, answer3) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                          {name, Schema::LocalKind, SuperUserRole, info.displayName, info.remark,
                           seal(info.password, "password", name), info.question1, info.question2, info.question3,
                           seal(info.answer1, "answer1", name), seal(info.answer2, "answer2", name),
                           seal(info.answer3, "answer3", name)}) &&
           transaction.commit();
}

// The account is a superuser of its own: no password, answers or gesture of this client ever belong to it, the
// cloud alone lets it in. Its record is what ends the first-login state.
bool UserData::addSuperUserFromSaasUser(const QString &account)
{
    if (store().holds("SELECT 1 FROM users WHERE name = ? AND kind = ?", {account, Schema::CloudKind}))
        return true;
    return isUsableName(account) && store().change("INSERT INTO users (name, kind, role) VALUES (?, ?, ?)",
                                                   {account, Schema::CloudKind, SuperUserRole});
}

bool UserData::verifySuperUserAnswers(const QString &name, const QString &answer1, const QString &answer2,
                                      const QString &answer3)
{
    QSqlQuery query = store().run("SELECT answer1, answer2, answer3 FROM users "
                                  "WHERE name = ? AND kind = ? AND role = ?",
                                  {name, Schema::LocalKind, SuperUserRole});
    const bool known = query.next();
    const auto matches = [&](int index, const char *column, const QString &answer) {
        const QByteArray sealed = known ? query.value(index).toByteArray() : QByteArray();
        return store().vault().matches(sealed, placeOf(column, name), answer);
    };
    // All three in any case: the time must not tell which of them is wrong.
    const bool first = matches(0, "answer1", answer1);
    const bool second = matches(1, "answer2", answer2);
    const bool third = matches(2, "answer3", answer3);
    return first && second && third;
}

bool UserData::resetUserPwd(const QString &name, const QString &password)
{
    return isUsableSecret(password) && store().change("UPDATE users SET password = ? WHERE name = ? AND kind = ?",
                                                      {seal(password, "password", name), name, Schema::LocalKind});
}

QString UserData::generateSuperUserCredentials(const QString &name)
{
    if (!isLocalSuperUser(name))
        return {};
    const QByteArray head = QByteArray(1, credentialsVersion) + Vault::randomBytes(nonceBytes);
    const QByteArray code = credentialsCode(head, name);
    return QString::fromLatin1((head + code).toBase64(QByteArray::Base64UrlEncoding));
}

bool UserData::checkSuperUserCredentials(const QString &name, const QString &credential)
{
    // Qt's decoder skips what it does not know; what it made must be spelled exactly like the text.
    const QByteArray data = QByteArray::fromBase64(credential.toLatin1(), QByteArray::Base64UrlEncoding);
    if (data.size() != credentialsBytes || data.at(0) != credentialsVersion ||
        QString::fromLatin1(data.toBase64(QByteArray::Base64UrlEncoding)) != credential || !isLocalSuperUser(name))
        return false;
    const QByteArray code = credentialsCode(data.left(1 + nonceBytes), name);
    return sodium_memcmp(code.constData(), data.constData() + 1 + nonceBytes, size_t(codeBytes)) == 0;
}

} // namespace kelvra_data
