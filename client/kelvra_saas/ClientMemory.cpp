#include "client/kelvra_saas/ClientMemory.h"

#include <QUuid>

namespace kelvra_saas {

namespace {

const QString terminalKey = QStringLiteral("terminal");
const QString recentKey = QStringLiteral("recentAccount");
const QString tokensKey = QStringLiteral("tokens");

// Sealed with its account, so that one account's token does not open as another's.
QString placed(const QString &account, const QString &token = {})
{
    return account + QLatin1Char('\n') + token;
}

} // namespace

const QString ClientMemory::fileName = QStringLiteral("cloud_client.json");

ClientMemory::ClientMemory(const QString &filePath)
    : file(filePath)
{
    const QJsonObject all = file.read();
    terminalId = all.value(terminalKey).toString();
    recent = all.value(recentKey).toString();
    const QJsonObject tokens = all.value(tokensKey).toObject();
    for (auto it = tokens.begin(); it != tokens.end(); ++it)
        sealedTokens.insert(it.key(), QByteArray::fromBase64(it.value().toString().toLatin1()));
    if (terminalId.isEmpty()) {
        terminalId = QUuid::createUuid().toString(QUuid::WithoutBraces);
        save();
    }
}

void ClientMemory::setSealing(const SaasSetup::Seal &sealer, const SaasSetup::Open &opener)
{
    seal = sealer;
    open = opener;
}

QString ClientMemory::token(const QString &account) const
{
    QString text;
    if (!open || !sealedTokens.contains(account) || !open(sealedTokens.value(account), &text) ||
        !text.startsWith(placed(account)))
        return unsealedTokens.value(account);
    return text.mid(placed(account).size());
}

void ClientMemory::noteLogin(const QString &account, const QString &token)
{
    recent = account;
    if (!token.isEmpty()) {
        const QByteArray sealed = seal ? seal(placed(account, token)) : QByteArray();
        sealedTokens.remove(account);
        unsealedTokens.remove(account);
        if (sealed.isEmpty())
            unsealedTokens.insert(account, token);
        else
            sealedTokens.insert(account, sealed);
    }
    save();
}

bool ClientMemory::forgetToken(const QString &account)
{
    const int forgotten = sealedTokens.remove(account) + unsealedTokens.remove(account);
    if (forgotten > 0)
        save();
    return forgotten > 0;
}

void ClientMemory::save() const
{
    QJsonObject tokens;
    for (auto it = sealedTokens.begin(); it != sealedTokens.end(); ++it)
        tokens.insert(it.key(), QString::fromLatin1(it.value().toBase64()));
    file.write({{terminalKey, terminalId}, {recentKey, recent}, {tokensKey, tokens}});
}

} // namespace kelvra_saas
