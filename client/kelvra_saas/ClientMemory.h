#pragma once

#include "client/kelvra_saas/JsonFile.h"
#include "client/kelvra_saas/SaasSetup.h"

#include <QMap>

namespace kelvra_saas {

/** What this computer remembers of the cloud: which terminal it is, who logged in last, and sealed tokens. */
class ClientMemory
{
public:
    static const QString fileName;

    /** An empty path: in memory only. */
    explicit ClientMemory(const QString &filePath);

    void setSealing(const SaasSetup::Seal &sealer, const SaasSetup::Open &opener);

    const QString &terminal() const { return terminalId; }
    const QString &recentAccount() const { return recent; }

    /** The token of the account's automatic login; empty when there is none that can be opened. */
    QString token(const QString &account) const;

    /** An empty token leaves the one that there is. */
    void noteLogin(const QString &account, const QString &token);
    bool forgetToken(const QString &account);

private:
    void save() const;

    JsonFile file;
    SaasSetup::Seal seal;
    SaasSetup::Open open;
    QString terminalId;
    QString recent;
    QMap<QString, QByteArray> sealedTokens; ///< by account
    QMap<QString, QString> unsealedTokens;  ///< those that cannot be written
};

} // namespace kelvra_saas
