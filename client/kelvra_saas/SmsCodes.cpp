#include "client/kelvra_saas/SmsCodes.h"

#include <QRandomGenerator>

namespace kelvra_saas {

namespace {

constexpr int codeDigits = 6;
constexpr int codesThereAre = 1000000;
constexpr int validityMinutes = 5;
constexpr qint64 secondsPerMinute = 60;
constexpr int messagesKept = 50;

} // namespace

const CloudSms &SmsCodes::send(const QString &phone, const QDateTime &now, QRandomGenerator &random)
{
    CloudSms sms;
    sms.phone = phone;
    sms.code = QStringLiteral("%1").arg(random.bounded(codesThereAre), codeDigits, 10, QLatin1Char('0'));
    sms.text = tr("[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.")
                   .arg(sms.code)
                   .arg(validityMinutes);
    sms.sent = now;
    sms.expires = now.addSecs(validityMinutes * secondsPerMinute);
    valid.insert(phone, sms);
    sent.prepend(sms);
    if (sent.size() > messagesKept)
        sent.removeLast();
    return sent.first();
}

SmsCodes::Verdict SmsCodes::check(const QString &phone, const QString &code, const QDateTime &now)
{
    const auto sms = valid.find(phone);
    if (sms == valid.end() || now >= sms->expires)
        return Verdict::NoneValid;
    if (sms->code != code)
        return Verdict::Wrong;
    valid.erase(sms);
    return Verdict::Right;
}

} // namespace kelvra_saas
