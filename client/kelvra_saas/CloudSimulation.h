#pragma once

#include "client/kelvra_saas/CloudService.h"

#include <QDateTime>
#include <QObject>
#include <QVector>

#include <functional>
#include <memory>

namespace kelvra_saas {

/** An account of the simulated cloud, as its file lists it. */
struct CloudAccount
{
    QString phone; ///< eleven digits, the first of them 1
    QString name;
    QString password;
};

/** A text message that the cloud has sent. */
struct CloudSms
{
    QString phone;
    QString text;
    QString code; ///< the six digits in the text
    QDateTime sent;
    QDateTime expires;
};

/** A login QR code as the cloud knows it. */
struct CloudCode
{
    QString id; ///< empty: no code
    QDateTime expires;
    int status = codeWaiting; ///< that or a LoginWorker::QRCodeStatus
    QString account;          ///< the phone that has scanned it, empty before
};

/**
 * A cloud in the process that behaves as a service does: it takes its time, counts errors, locks and lets expire.
 *
 * Its accounts stand in "cloud_accounts.ini" of the folder, for a person to read and edit: the file is written with
 * demonstration accounts when there is none, and read anew as soon as it has changed. What the service remembers
 * (errors, locks, trusted terminals, hashes of tokens) stands in "cloud_service.json" beside it. Codes and messages
 * live in memory. GUI thread only.
 */
class KELVRA_SAAS_EXPORT CloudSimulation : public QObject, public CloudService
{
    Q_OBJECT

public:
    struct Settings
    {
        QString folder;                   ///< of the two files; empty: all lives in memory
        quint32 seed = 0;                 ///< of latencies, SMS codes and the ids of QR codes
        std::function<QDateTime()> clock; ///< the service's time; empty: the system's
        int minLatencyMs = 100;
        int maxLatencyMs = 600;
        int networkTimeoutMs = 3000; ///< how long a call waits for an answer that does not come
    };

    explicit CloudSimulation(const Settings &settings, QObject *parent = nullptr);
    ~CloudSimulation() override;

    void send(const CloudRequest &request, const Callback &callback) override;

    /**
     * The client's network; the phone has one of its own. Off, every call fails after its time-out, those under way
     * too, and it stays with that when the network comes back in the meantime. On at first.
     */
    bool isNetworkOn() const;
    void setNetworkOn(bool on);

    /** In the order of the file, as it stood at the last request or reloadAccounts() that found it in order. */
    QVector<CloudAccount> accounts() const;

    /**
     * Reads the file of accounts. When it cannot be used answers false with a sentence for the user in `error`
     * (may be null); the file is left as it is and the accounts read before stay in force. While there are none,
     * every call is refused.
     */
    bool reloadAccounts(QString *error);

    /** The file's path, empty when all lives in memory. */
    QString accountsFile() const;

    /** Messages to all phones, the newest first. */
    QVector<CloudSms> messages() const;

    /** The newest code handed out; its id is empty when there is none, or it has expired or been used for a login. */
    CloudCode codeOnShow() const;

    /** `phone` scans a waiting code: QRCodeScanned. False when the code does not wait or the phone has no account. */
    bool scanCode(const QString &codeId, const QString &phone);
    /** The phone confirms a code that it has scanned: QRCodeConfirmed. */
    bool confirmScan(const QString &codeId);
    /** The phone cancels a code that it has scanned: QRCodeCancelled. */
    bool cancelScan(const QString &codeId);
    /** The cloud refuses a waiting or scanned code: QRCodeIllegalOperation or QRCodeIllegalAddress. */
    bool rejectScan(const QString &codeId, int status);

    /** How long the account is still locked, 0 when it is not. */
    int lockedSeconds(const QString &phone) const;

    /** Lifts the lock of an account and forgets its errors, as the App's "forgot password" does; false: no account. */
    bool unlock(const QString &phone);

signals:
    void signalNetworkChanged(bool on);
    /** The accounts, their errors or their locks; not when a lock runs out. */
    void signalAccountsChanged();
    void signalMessageArrived(const kelvra_saas::CloudSms &message);
    /** The code on show: a new one, its status, its end. */
    void signalCodeChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_saas

Q_DECLARE_METATYPE(kelvra_saas::CloudSms)
