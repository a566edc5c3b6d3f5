#include "client/kelvra_saas/CloudRules.h"

#include "client/kelvra_saas/ResultCodes.h"
#include "host/kelvra_saas/LoginWorker.h"

#include <QCryptographicHash>
#include <QDir>

namespace kelvra_saas {

namespace {

const QString passwordLogin = QStringLiteral("PASSWORD");
const QString codeLogin = QStringLiteral("VERIFY_CODE");

constexpr int errorsToLock = 5;
constexpr int errorWindowSeconds = 600;
constexpr int lockMinutes = 30;
constexpr qint64 secondsPerMinute = 60;
constexpr int tokenWords = 8; // of 32 bits

QString inFolder(const QString &folder, const QString &file)
{
    return folder.isEmpty() ? QString() : QDir(folder).filePath(file);
}

CloudAnswer answerWith(int code, int subCode = 0, const QVariantMap &fields = {})
{
    return {{}, code, subCode, {}, fields};
}

// The one secret of the service that does not come from its seed.
QString newToken()
{
    quint32 words[tokenWords];
    QRandomGenerator::system()->fillRange(words);
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(words), sizeof(words)).toHex());
}

// The password is part of it, so that a new one ends the token. The token is too long to be guessed from the hash.
QByteArray hashOf(const QString &token, const CloudAccount &account)
{
    return QCryptographicHash::hash((token + QLatin1Char('\n') + account.password).toUtf8(),
                                    QCryptographicHash::Sha256);
}

QVariantMap errorFields(int errors, int remaining, int minutes)
{
    return {{errorCountField, errors},
            {remainingAttemptsField, remaining},
            {periodSecondsField, errorWindowSeconds},
            {lockMinutesField, minutes}};
}

} // namespace

CloudRules::CloudRules(const CloudSimulation::Settings &settings)
    : clock(settings.clock)
    , generator(settings.seed)
    , accounts(inFolder(settings.folder, AccountsFile::fileName))
    , records(inFolder(settings.folder, ServiceRecords::fileName))
{
    readAccounts();
}

CloudAnswer CloudRules::answer(const CloudRequest &request)
{
    static const QMap<QString, CloudAnswer (CloudRules::*)(const QVariantMap &)> operations = {
        {loginOperation, &CloudRules::login},        {autoLoginOperation, &CloudRules::autoLogin},
        {sendCodeOperation, &CloudRules::sendCode},  {qrCodeOperation, &CloudRules::qrCode},
        {qrStatusOperation, &CloudRules::qrStatus},  {qrResultOperation, &CloudRules::qrResult},
        {qrAccountOperation, &CloudRules::qrAccount}};

    readAccounts();
    const auto operation = operations.value(request.operation);
    CloudAnswer answer = answerWith(malformedRequestCode);
    if (accounts.accounts().isEmpty())
        answer = answerWith(accountsUnusableCode);
    else if (operation && !request.fields.value(terminalField).toString().isEmpty())
        answer = (this->*operation)(request.fields);
    answer.id = request.id;
    if (request.fields.contains(accountField))
        answer.fields.insert(accountField, request.fields.value(accountField));
    answer.message = QStringLiteral("%1: %2").arg(request.operation).arg(answer.code);
    return answer;
}

CloudAnswer CloudRules::login(const QVariantMap &fields)
{
    const QString type = fields.value(loginTypeField).toString();
    if (type != passwordLogin && type != codeLogin)
        return answerWith(malformedRequestCode);
    const bool byCode = type == codeLogin;
    const CloudAccount *account = accounts.find(fields.value(accountField).toString());
    if (!account)
        return answerWith(byCode ? lockedOrInvalidCode : unknownAccountCode);
    if (lockedSeconds(account->phone) > 0)
        return refuseLocked(account->phone, byCode ? lockedCode : lockedOrInvalidCode);
    return byCode ? loginByCode(*account, fields) : loginByPassword(*account, fields);
}

CloudAnswer CloudRules::loginByPassword(const CloudAccount &account, const QVariantMap &fields)
{
    if (fields.value(passwordField).toString() != account.password)
        return countError(account.phone, wrongPasswordCode, lockedOrInvalidCode);
    const QString terminal = fields.value(terminalField).toString();
    if (!records.of(account.phone).terminals.contains(terminal))
        return answerWith(insecureTerminalCode);
    return admit(account, terminal);
}

CloudAnswer CloudRules::loginByCode(const CloudAccount &account, const QVariantMap &fields)
{
    switch (sms.check(account.phone, fields.value(verificationCodeField).toString(), now())) {
    case SmsCodes::Verdict::Right:
        return admit(account, fields.value(terminalField).toString());
    case SmsCodes::Verdict::Wrong:
        return countError(account.phone, wrongSmsCode, lockedCode);
    case SmsCodes::Verdict::NoneValid:
        break;
    }
    return answerWith(noSmsCode);
}

CloudAnswer CloudRules::admit(const CloudAccount &account, const QString &terminal)
{
    const QString token = newToken();
    ServiceRecord record = records.of(account.phone);
    record.errors = 0;
    record.terminals.insert(terminal, hashOf(token, account));
    records.set(account.phone, record);
    emit signalAccountsChanged();
    return answerWith(successCode, 0, {{accountField, account.phone}, {tokenField, token}});
}

CloudAnswer CloudRules::countError(const QString &phone, int code, int lockCode)
{
    ServiceRecord record = records.of(phone);
    const bool again = record.lastError.isValid() && record.lastError.secsTo(now()) <= errorWindowSeconds;
    record.errors = again ? record.errors + 1 : 1;
    record.lastError = now();
    const int remaining = errorsToLock - record.errors;
    if (remaining <= 0)
        record.lockedUntil = now().addSecs(lockMinutes * secondsPerMinute);
    records.set(phone, record);
    emit signalAccountsChanged();
    if (remaining <= 0)
        return refuseLocked(phone, lockCode);
    return answerWith(code, remaining, errorFields(record.errors, remaining, lockMinutes));
}

CloudAnswer CloudRules::refuseLocked(const QString &phone, int code) const
{
    const int minutes = int((lockedSeconds(phone) + secondsPerMinute - 1) / secondsPerMinute);
    return answerWith(code, minutes, errorFields(records.of(phone).errors, 0, minutes));
}

CloudAnswer CloudRules::autoLogin(const QVariantMap &fields)
{
    const CloudAccount *account = accounts.find(fields.value(accountField).toString());
    if (!account)
        return answerWith(unknownAccountCode);
    if (lockedSeconds(account->phone) > 0)
        return refuseLocked(account->phone, lockedCode);
    const QByteArray expected = records.of(account->phone).terminals.value(fields.value(terminalField).toString());
    const bool right = hashOf(fields.value(tokenField).toString(), *account) == expected;
    return answerWith(right ? successCode : tokenInvalidCode);
}

CloudAnswer CloudRules::sendCode(const QVariantMap &fields)
{
    const QString phone = fields.value(accountField).toString();
    if (!accounts.find(phone))
        return answerWith(invalidNumberCode);
    if (lockedSeconds(phone) > 0)
        return refuseLocked(phone, lockedCode);
    emit signalMessageArrived(sms.send(phone, now(), generator));
    return answerWith(successCode);
}

CloudAnswer CloudRules::qrCode(const QVariantMap &fields)
{
    const CloudCode code = codes.create(fields.value(terminalField).toString(), now(), generator);
    emit signalCodeChanged();
    return answerWith(successCode, 0, {{codeIdField, code.id}, {validitySecondsField, QRCodes::validitySeconds}});
}

CloudAnswer CloudRules::qrStatus(const QVariantMap &fields)
{
    const int status =
        codes.status(fields.value(codeIdField).toString(), fields.value(terminalField).toString(), now());
    return answerWith(successCode, 0, {{statusField, status}});
}

CloudAnswer CloudRules::qrResult(const QVariantMap &fields)
{
    const QString codeId = fields.value(codeIdField).toString();
    const QString terminal = fields.value(terminalField).toString();
    const int status = codes.status(codeId, terminal, now());
    if (status != LoginWorker::QRCodeConfirmed)
        return answerWith(status == LoginWorker::QRCodeInvalid ? codeInvalidCode : codeNotConfirmedCode);
    scans.insert(terminal, {codes.redeem(codeId, terminal, now()), now().addSecs(QRCodes::validitySeconds)});
    emit signalCodeChanged();
    return answerWith(successCode);
}

CloudAnswer CloudRules::qrAccount(const QVariantMap &fields)
{
    const QString terminal = fields.value(terminalField).toString();
    // Taken with the first question, whatever comes of it: a scan lets an account in once.
    const Scan scan = scans.take(terminal);
    if (scan.account.isEmpty() || now() >= scan.expires)
        return answerWith(noScanCode);
    const CloudAccount *account = accounts.find(scan.account);
    if (!account)
        return answerWith(unknownAccountCode);
    return lockedSeconds(account->phone) > 0 ? refuseLocked(account->phone, lockedCode) : admit(*account, terminal);
}

bool CloudRules::readAccounts()
{
    bool changed = false;
    const bool usable = accounts.read(&changed);
    if (changed)
        emit signalAccountsChanged();
    return usable;
}

bool CloudRules::scanCode(const QString &codeId, const QString &phone)
{
    const bool scanned = accounts.find(phone) && codes.scan(codeId, phone, now());
    if (scanned)
        emit signalCodeChanged();
    return scanned;
}

bool CloudRules::moveCode(const QString &codeId, const QVector<int> &from, int to)
{
    const bool moved = codes.move(codeId, from, to, now());
    if (moved)
        emit signalCodeChanged();
    return moved;
}

int CloudRules::lockedSeconds(const QString &phone) const
{
    const QDateTime until = records.of(phone).lockedUntil;
    // Never longer than a lock lasts, whatever a clock that was set back makes of it.
    return until.isValid() ? int(qBound<qint64>(0, now().secsTo(until), lockMinutes * secondsPerMinute)) : 0;
}

bool CloudRules::unlock(const QString &phone)
{
    if (!accounts.find(phone))
        return false;
    ServiceRecord record = records.of(phone);
    record.errors = 0;
    record.lastError = record.lockedUntil = QDateTime();
    records.set(phone, record);
    emit signalAccountsChanged();
    return true;
}

QDateTime CloudRules::now() const
{
    return clock ? clock() : QDateTime::currentDateTimeUtc();
}

int CloudRules::random(int limit)
{
    return int(generator.bounded(quint32(qMax(0, limit)) + 1));
}

} // namespace kelvra_saas
