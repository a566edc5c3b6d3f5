#include "client/kelvra_data/UserRecord.h"

#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/Vault.h"

namespace kelvra_data {

namespace {

constexpr int maxSecretLength = 256;

const Vault &vault()
{
    return ZCOMMON::ZSingleton<Store>::_instance().vault();
}

} // namespace

bool UserRecord::isUsableName(const QString &name)
{
    return !name.trimmed().isEmpty() && name.size() <= maxNameLength && name.isValidUtf16();
}

bool UserRecord::isUsableSecret(const QString &secret)
{
    return !secret.isEmpty() && secret.size() <= maxSecretLength;
}

QByteArray UserRecord::nameBytes(const QString &name)
{
    return QByteArray(reinterpret_cast<const char *>(name.utf16()), name.size() * int(sizeof(QChar)));
}

// The name comes last, so that no two places are spelled the same.
QByteArray UserRecord::placeOf(const char *column, const QString &name)
{
    return QByteArray("users.") + column + '\0' + nameBytes(name);
}

QByteArray UserRecord::seal(const QString &text, const char *column, const QString &name)
{
    return vault().seal(text, placeOf(column, name));
}

QString UserRecord::unseal(const QVariant &sealed, const char *column, const QString &name)
{
    QString text;
    vault().open(sealed.toByteArray(), placeOf(column, name), text);
    return text;
}

} // namespace kelvra_data
