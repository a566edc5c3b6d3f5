#include "client/kelvra_saas/CloudSimulation.h"

#include "client/kelvra_saas/CloudRules.h"
#include "client/kelvra_saas/ResultCodes.h"
#include "host/kelvra_saas/LoginWorker.h"

#include <QSet>
#include <QTimer>

namespace kelvra_saas {

class CloudSimulation::Private
{
public:
    explicit Private(const Settings &given)
        : settings(given)
        , rules(given)
    {
        codeEnd.setSingleShot(true);
    }

    const Settings settings;
    CloudRules rules;
    QTimer codeEnd; ///< of the code on show
    bool networkOn = true;
    quint64 lastCall = 0;
    QSet<quint64> connected; ///< calls under way that have had a network all the time
};

CloudSimulation::CloudSimulation(const Settings &settings, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(settings))
{
    qRegisterMetaType<CloudSms>();
    connect(&d->rules, &CloudRules::signalAccountsChanged, this, &CloudSimulation::signalAccountsChanged);
    connect(&d->rules, &CloudRules::signalMessageArrived, this, &CloudSimulation::signalMessageArrived);
    connect(&d->rules, &CloudRules::signalCodeChanged, this, [this] {
        const CloudCode code = codeOnShow();
        if (!code.id.isEmpty())
            d->codeEnd.start(int(d->rules.now().msecsTo(code.expires)));
        emit signalCodeChanged();
    });
    connect(&d->codeEnd, &QTimer::timeout, this, &CloudSimulation::signalCodeChanged);
}

CloudSimulation::~CloudSimulation() = default;

void CloudSimulation::send(const CloudRequest &request, const Callback &callback)
{
    const quint64 call = ++d->lastCall;
    if (d->networkOn)
        d->connected.insert(call);
    const int latency = d->settings.minLatencyMs + d->rules.random(d->settings.maxLatencyMs - d->settings.minLatencyMs);
    QTimer::singleShot(latency, this, [=] {
        if (d->connected.remove(call)) {
            callback(d->rules.answer(request));
            return;
        }
        QTimer::singleShot(qMax(0, d->settings.networkTimeoutMs - latency), this, [=] {
            CloudAnswer answer;
            answer.id = request.id;
            answer.code = noAnswerCode;
            answer.message = QStringLiteral("%1: no answer").arg(request.operation);
            callback(answer);
        });
    });
}

bool CloudSimulation::isNetworkOn() const
{
    return d->networkOn;
}

void CloudSimulation::setNetworkOn(bool on)
{
    if (d->networkOn == on)
        return;
    d->networkOn = on;
    d->connected.clear();
    emit signalNetworkChanged(on);
}

QVector<CloudAccount> CloudSimulation::accounts() const
{
    return d->rules.accountsFile().accounts();
}

bool CloudSimulation::reloadAccounts(QString *error)
{
    const bool usable = d->rules.readAccounts();
    if (error)
        *error = d->rules.accountsFile().problem();
    return usable;
}

QString CloudSimulation::accountsFile() const
{
    return d->rules.accountsFile().filePath();
}

QVector<CloudSms> CloudSimulation::messages() const
{
    return d->rules.messages();
}

CloudCode CloudSimulation::codeOnShow() const
{
    return d->rules.codeOnShow();
}

bool CloudSimulation::scanCode(const QString &codeId, const QString &phone)
{
    return d->rules.scanCode(codeId, phone);
}

bool CloudSimulation::confirmScan(const QString &codeId)
{
    return d->rules.moveCode(codeId, {LoginWorker::QRCodeScanned}, LoginWorker::QRCodeConfirmed);
}

bool CloudSimulation::cancelScan(const QString &codeId)
{
    return d->rules.moveCode(codeId, {LoginWorker::QRCodeScanned}, LoginWorker::QRCodeCancelled);
}

bool CloudSimulation::rejectScan(const QString &codeId, int status)
{
    const bool known = status == LoginWorker::QRCodeIllegalOperation || status == LoginWorker::QRCodeIllegalAddress;
    return known && d->rules.moveCode(codeId, {codeWaiting, LoginWorker::QRCodeScanned}, status);
}

int CloudSimulation::lockedSeconds(const QString &phone) const
{
    return d->rules.lockedSeconds(phone);
}

bool CloudSimulation::unlock(const QString &phone)
{
    return d->rules.unlock(phone);
}

} // namespace kelvra_saas
