#pragma once

#include "client/kelvra_saas/CloudSimulation.h"

#include <QVector>

class QRandomGenerator;

namespace kelvra_saas {

/** The login QR codes of the simulated cloud: valid 120 s, each for the terminal that asked for it and one login. */
class QRCodes
{
public:
    static constexpr int validitySeconds = 120;

    /** A waiting code for `terminal`. */
    CloudCode create(const QString &terminal, const QDateTime &now, QRandomGenerator &random);

    /** A LoginWorker::QRCodeStatus or codeWaiting; QRCodeInvalid for an id that the terminal does not have. */
    int status(const QString &id, const QString &terminal, const QDateTime &now) const;

    /** Uses up a confirmed code; the account that has confirmed it. */
    QString redeem(const QString &id, const QString &terminal, const QDateTime &now);

    /** The newest; its id is empty when there is none or it has expired or been used up. */
    CloudCode onShow(const QDateTime &now) const;

    /** Moves a code from one of the statuses `from` to another; false when it is at none of them or has expired. */
    bool move(const QString &id, const QVector<int> &from, int to, const QDateTime &now);

    /** The same from waiting to scanned, by `phone`. */
    bool scan(const QString &id, const QString &phone, const QDateTime &now);

private:
    struct Entry
    {
        CloudCode code;
        QString terminal;
    };

    /** Index of a code that has not expired, -1 when there is none. */
    int find(const QString &id, const QDateTime &now) const;

    QVector<Entry> entries; ///< the newest last; those that have expired go with the next one made
};

} // namespace kelvra_saas
