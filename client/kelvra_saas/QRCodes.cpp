#include "client/kelvra_saas/QRCodes.h"

#include "host/kelvra_saas/LoginWorker.h"

#include <QRandomGenerator>

#include <algorithm>

namespace kelvra_saas {

namespace {

constexpr int idDigits = 16; // hexadecimal, of each half

QString newId(QRandomGenerator &random)
{
    QString id;
    for (int half = 0; half < 2; ++half)
        id += QStringLiteral("%1").arg(random.generate64(), idDigits, 16, QLatin1Char('0'));
    return id;
}

} // namespace

CloudCode QRCodes::create(const QString &terminal, const QDateTime &now, QRandomGenerator &random)
{
    entries.erase(
        std::remove_if(entries.begin(), entries.end(), [&](const Entry &entry) { return now >= entry.code.expires; }),
        entries.end());
    CloudCode code;
    code.id = newId(random);
    code.expires = now.addSecs(validitySeconds);
    entries.append({code, terminal});
    return code;
}

int QRCodes::status(const QString &id, const QString &terminal, const QDateTime &now) const
{
    const int index = find(id, now);
    return index < 0 || entries[index].terminal != terminal ? LoginWorker::QRCodeInvalid : entries[index].code.status;
}

QString QRCodes::redeem(const QString &id, const QString &terminal, const QDateTime &now)
{
    if (status(id, terminal, now) != LoginWorker::QRCodeConfirmed)
        return {};
    CloudCode &code = entries[find(id, now)].code;
    code.status = LoginWorker::QRCodeInvalid;
    return code.account;
}

CloudCode QRCodes::onShow(const QDateTime &now) const
{
    if (entries.isEmpty())
        return {};
    const CloudCode &newest = entries.last().code;
    return now < newest.expires && newest.status != LoginWorker::QRCodeInvalid ? newest : CloudCode();
}

bool QRCodes::move(const QString &id, const QVector<int> &from, int to, const QDateTime &now)
{
    const int index = find(id, now);
    if (index < 0 || !from.contains(entries[index].code.status))
        return false;
    entries[index].code.status = to;
    return true;
}

bool QRCodes::scan(const QString &id, const QString &phone, const QDateTime &now)
{
    if (!move(id, {codeWaiting}, LoginWorker::QRCodeScanned, now))
        return false;
    entries[find(id, now)].code.account = phone;
    return true;
}

int QRCodes::find(const QString &id, const QDateTime &now) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry &entry) { return entry.code.id == id; });
    return found == entries.end() || now >= found->code.expires ? -1 : int(found - entries.begin());
}

} // namespace kelvra_saas
