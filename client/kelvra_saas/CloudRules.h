#pragma once

#include "client/kelvra_saas/AccountsFile.h"
#include "client/kelvra_saas/QRCodes.h"
#include "client/kelvra_saas/ServiceRecords.h"
#include "client/kelvra_saas/SmsCodes.h"

#include <QRandomGenerator>

namespace kelvra_saas {

/** What the simulated cloud answers to a request and does about it; when and whether the answer arrives is others'. */
class CloudRules : public QObject
{
    Q_OBJECT

public:
    explicit CloudRules(const CloudSimulation::Settings &settings);

    CloudAnswer answer(const CloudRequest &request);

    /** Reads the accounts when their file has changed; false when it holds a mistake. */
    bool readAccounts();
    const AccountsFile &accountsFile() const { return accounts; }

    QVector<CloudSms> messages() const { return sms.messages(); }
    CloudCode codeOnShow() const { return codes.onShow(now()); }
    bool scanCode(const QString &codeId, const QString &phone);
    bool moveCode(const QString &codeId, const QVector<int> &from, int to);
    int lockedSeconds(const QString &phone) const;
    bool unlock(const QString &phone);

    QDateTime now() const;
    /** From 0 to `limit`, both included. */
    int random(int limit);

signals:
    void signalAccountsChanged();
    void signalMessageArrived(const kelvra_saas::CloudSms &message);
    void signalCodeChanged();

private:
    // One for each operation.
    CloudAnswer login(const QVariantMap &fields);
    CloudAnswer autoLogin(const QVariantMap &fields);
    CloudAnswer sendCode(const QVariantMap &fields);
    CloudAnswer qrCode(const QVariantMap &fields);
    CloudAnswer qrStatus(const QVariantMap &fields);
    CloudAnswer qrResult(const QVariantMap &fields);
    CloudAnswer qrAccount(const QVariantMap &fields);

    CloudAnswer loginByPassword(const CloudAccount &account, const QVariantMap &fields);
    CloudAnswer loginByCode(const CloudAccount &account, const QVariantMap &fields);
    /** Lets the account in; the terminal is trusted from now on. */
    CloudAnswer admit(const CloudAccount &account, const QString &terminal);
    /** Refuses with `code`, or with `lockCode` where this error locks the account. */
    CloudAnswer countError(const QString &phone, int code, int lockCode);
    CloudAnswer refuseLocked(const QString &phone, int code) const;

    /** A completed QR login that its terminal has yet to ask the account of. */
    struct Scan
    {
        QString account;
        QDateTime expires;
    };

    const std::function<QDateTime()> clock;
    QRandomGenerator generator;
    AccountsFile accounts;
    ServiceRecords records;
    SmsCodes sms;
    QRCodes codes;
    QMap<QString, Scan> scans; ///< the newest of each terminal
};

} // namespace kelvra_saas
