#pragma once

#include <QByteArray>
#include <QString>

namespace kelvra_data {

/**
 * Seals the texts that must be given back, and hashes those that need not be.
 *
 * Every sealed value is bound to a `place`, the column and the record that it belongs to: it opens nowhere else.
 * The keys lie in locked memory and are wiped by lock(). While no key is loaded every operation fails.
 */
class Vault
{
public:
    Vault();
    ~Vault();
    Vault(const Vault &) = delete;
    Vault &operator=(const Vault &) = delete;

    static constexpr int keyFileBytes = 32;

    /** Writes a new key to `path`, complete or not at all; an existing file stays as it is. */
    static bool createKeyFile(const QString &path);

    static QByteArray randomBytes(int size);

    /** A keyed fingerprint of 32 bytes; `salt` has 16 to 64 bytes. */
    static QByteArray fingerprint(const QByteArray &data, const QByteArray &salt);

    /** Reads the key file; false when it cannot be read or has not exactly keyFileBytes. */
    bool unlock(const QString &path);
    void lock();
    bool isUnlocked() const { return keys != nullptr; }

    /** Empty on failure. The size of the result tells the size of `text` only in steps of 64 bytes. */
    QByteArray seal(const QString &text, const QByteArray &place) const;

    /** False when `sealed` was not sealed here for that place; `text` is then left alone. */
    bool open(const QByteArray &sealed, const QByteArray &place, QString &text) const;

    /** Whether `text` is what was sealed. An empty `sealed`, of an unknown user say, costs the same and is false. */
    bool matches(const QByteArray &sealed, const QByteArray &place, const QString &text) const;

    /** An Argon2id hash, sealed: without the key file there is nothing to try guesses on. */
    QByteArray sealHash(const QString &text, const QByteArray &place) const;

    /** Whether `text` was given to sealHash; an empty `sealed` costs the same and is false. */
    bool matchesHash(const QByteArray &sealed, const QByteArray &place, const QString &text) const;

    /** A message authentication code of 32 bytes under the key file, empty on failure. */
    QByteArray authenticate(const QByteArray &message) const;

private:
    struct Keys;

    Keys *keys = nullptr;
    QByteArray decoy;             ///< sealed, opened in place of a value that is not there
    mutable QByteArray decoyHash; ///< the same for sealHash
};

} // namespace kelvra_data
