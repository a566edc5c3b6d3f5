#pragma once

#include "client/kelvra_saas/CloudSimulation.h"

#include <QCoreApplication>
#include <QMap>
#include <QVector>

class QRandomGenerator;

namespace kelvra_saas {

/** The SMS codes of the simulated cloud: six digits, valid five minutes, good for one login. */
class SmsCodes
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_saas::SmsCodes)

public:
    enum class Verdict { Right, Wrong, NoneValid };

    /** Sends a code, in place of the one that the phone got before. */
    const CloudSms &send(const QString &phone, const QDateTime &now, QRandomGenerator &random);

    /** A right code is used up by this. */
    Verdict check(const QString &phone, const QString &code, const QDateTime &now);

    /** The newest first. */
    const QVector<CloudSms> &messages() const { return sent; }

private:
    QMap<QString, CloudSms> valid; ///< by phone; may have expired since
    QVector<CloudSms> sent;
};

} // namespace kelvra_saas
