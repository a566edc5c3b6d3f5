#include "client/kelvra_data/Vault.h"

#include "client/files/OrdinaryFile.h"

#include <QFile>
#include <QSaveFile>

#include <sodium.h>

namespace {

constexpr char subkeyContext[] = "kelvradb"; // libsodium takes eight characters
constexpr int sealSubkey = 1;
constexpr int authenticationSubkey = 2;
constexpr int paddingBytes = 64; // hides how long a password is
constexpr int nonceBytes = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr int tagBytes = crypto_aead_xchacha20poly1305_ietf_ABYTES;
constexpr int fingerprintBytes = 32;

// Gestures are short, so each guess shall cost something, yet a login must not be felt: about 20 ms on one core.
constexpr unsigned long long hashPasses = 2;
constexpr size_t hashMemoryBytes = size_t(19) * 1024 * 1024;

const QByteArray &decoyPlace()
{
    static const QByteArray place("decoy");
    return place;
}

bool sodiumReady()
{
    static const bool ready = sodium_init() >= 0;
    return ready;
}

unsigned char *bytes(QByteArray &array)
{
    return reinterpret_cast<unsigned char *>(array.data());
}

const unsigned char *bytes(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

// UTF-16 as it is: UTF-8 would make one text of all those that hold half a surrogate pair.
QByteArray toBytes(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * int(sizeof(QChar)));
}

QString toText(const QByteArray &data)
{
    return QString(reinterpret_cast<const QChar *>(data.constData()), data.size() / int(sizeof(QChar)));
}

void wipe(QByteArray &data)
{
    sodium_memzero(data.data(), size_t(data.size()));
}

// Hashed first, so that neither the time nor the work tells the length of what is compared.
bool sameText(const QByteArray &left, const QByteArray &right)
{
    const QByteArray salt = kelvra_data::Vault::randomBytes(fingerprintBytes);
    const QByteArray leftPrint = kelvra_data::Vault::fingerprint(left, salt);
    const QByteArray rightPrint = kelvra_data::Vault::fingerprint(right, salt);
    return sodium_memcmp(leftPrint.constData(), rightPrint.constData(), fingerprintBytes) == 0;
}

} // namespace

namespace kelvra_data {

// One key per purpose, so that a value made for one can never serve the other.
struct Vault::Keys
{
    unsigned char seal[crypto_aead_xchacha20poly1305_ietf_KEYBYTES];
    unsigned char authentication[crypto_auth_KEYBYTES];
};

Vault::Vault() = default;

Vault::~Vault()
{
    lock();
}

bool Vault::createKeyFile(const QString &path)
{
    // Made under another name and then renamed, which never replaces: no start ever sees half a key.
    const QString unfinished = path + QStringLiteral(".new");
    QFile::remove(unfinished); // what a killed start has left, or a link: it would be written to where it leads
    QByteArray key = randomBytes(keyFileBytes);
    QSaveFile file(unfinished);
    // Flushed first: commit() takes no notice of what does not fit on the disk any more.
    bool written = !key.isEmpty() && file.open(QIODevice::WriteOnly) &&
                   file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                   file.write(key) == key.size() && file.flush() && file.commit();
    wipe(key);
    if (written && !QFile::rename(unfinished, path)) {
        QFile::remove(unfinished);
        written = false;
    }
    return written;
}

QByteArray Vault::randomBytes(int size)
{
    if (!sodiumReady())
        return {};
    QByteArray result(size, Qt::Uninitialized);
    randombytes_buf(result.data(), size_t(size));
    return result;
}

QByteArray Vault::fingerprint(const QByteArray &data, const QByteArray &salt)
{
    QByteArray result(fingerprintBytes, '\0');
    crypto_generichash(bytes(result), fingerprintBytes, bytes(data), size_t(data.size()), bytes(salt),
                       size_t(salt.size()));
    return result;
}

bool Vault::unlock(const QString &path)
{
    lock();
    QFile file(path);
    // Unbuffered: no copy of the key stays in a buffer of the file's.
    constexpr QIODevice::OpenMode mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (!sodiumReady() || !kelvra_files::OrdinaryFile::open(&file, keyFileBytes, mode).isEmpty() ||
        file.size() != keyFileBytes)
        return false;
    auto *master = static_cast<unsigned char *>(sodium_malloc(crypto_kdf_KEYBYTES));
    keys = static_cast<Keys *>(sodium_malloc(sizeof(Keys)));
    const bool loaded = master && keys && file.read(reinterpret_cast<char *>(master), keyFileBytes) == keyFileBytes;
    if (loaded) {
        crypto_kdf_derive_from_key(keys->seal, sizeof keys->seal, sealSubkey, subkeyContext, master);
        crypto_kdf_derive_from_key(keys->authentication, sizeof keys->authentication, authenticationSubkey,
                                   subkeyContext, master);
        sodium_mprotect_readonly(keys);
        decoy = seal(toText(randomBytes(fingerprintBytes)), decoyPlace());
    }
    sodium_free(master);
    if (decoy.isEmpty())
        lock();
    return isUnlocked();
}

void Vault::lock()
{
    sodium_free(keys); // wipes, and takes a null pointer
    keys = nullptr;
    decoy.clear();
    decoyHash.clear();
}

QByteArray Vault::seal(const QString &text, const QByteArray &place) const
{
    if (!keys)
        return {};
    QByteArray plain = toBytes(text);
    const int textBytes = plain.size();
    plain.resize(textBytes + paddingBytes);
    size_t paddedBytes = 0;
    sodium_pad(&paddedBytes, bytes(plain), size_t(textBytes), paddingBytes, size_t(plain.size()));

    QByteArray sealed = randomBytes(nonceBytes);
    sealed.resize(nonceBytes + int(paddedBytes) + tagBytes);
    crypto_aead_xchacha20poly1305_ietf_encrypt(bytes(sealed) + nonceBytes, nullptr, bytes(plain), paddedBytes,
                                               bytes(place), size_t(place.size()), nullptr, bytes(sealed), keys->seal);
    wipe(plain);
    return sealed;
}

bool Vault::open(const QByteArray &sealed, const QByteArray &place, QString &text) const
{
    const int paddedBytes = sealed.size() - nonceBytes - tagBytes;
    if (!keys || paddedBytes < paddingBytes)
        return false;
    QByteArray plain(paddedBytes, Qt::Uninitialized);
    size_t textBytes = 0;
    const bool opened =
        crypto_aead_xchacha20poly1305_ietf_decrypt(bytes(plain), nullptr, nullptr, bytes(sealed) + nonceBytes,
                                                   size_t(sealed.size() - nonceBytes), bytes(place),
                                                   size_t(place.size()), bytes(sealed), keys->seal) == 0 &&
        sodium_unpad(&textBytes, bytes(plain), size_t(paddedBytes), paddingBytes) == 0;
    if (opened)
        text = QString(reinterpret_cast<const QChar *>(plain.constData()), int(textBytes / sizeof(QChar)));
    wipe(plain);
    return opened;
}

bool Vault::matches(const QByteArray &sealed, const QByteArray &place, const QString &text) const
{
    const bool known = !sealed.isEmpty();
    QString stored;
    const bool opened = open(known ? sealed : decoy, known ? place : decoyPlace(), stored);
    QByteArray storedBytes = toBytes(stored);
    QByteArray givenBytes = toBytes(text);
    const bool same = sameText(storedBytes, givenBytes);
    wipe(storedBytes);
    wipe(givenBytes);
    return known && opened && same;
}

QByteArray Vault::sealHash(const QString &text, const QByteArray &place) const
{
    char hash[crypto_pwhash_STRBYTES];
    QByteArray plain = toBytes(text);
    const bool hashed = keys && crypto_pwhash_str_alg(hash, plain.constData(), size_t(plain.size()), hashPasses,
                                                      hashMemoryBytes, crypto_pwhash_ALG_ARGON2ID13) == 0;
    wipe(plain);
    return hashed ? seal(QString::fromLatin1(hash), place) : QByteArray();
}

bool Vault::matchesHash(const QByteArray &sealed, const QByteArray &place, const QString &text) const
{
    // Made by the first comparison, whoever it is for: a start has no time for it.
    if (decoyHash.isEmpty())
        decoyHash = sealHash(toText(randomBytes(fingerprintBytes)), decoyPlace());
    const bool known = !sealed.isEmpty();
    QString stored;
    const bool opened = open(known ? sealed : decoyHash, known ? place : decoyPlace(), stored);
    const QByteArray hash = stored.toLatin1();
    QByteArray plain = toBytes(text);
    const bool same = crypto_pwhash_str_verify(hash.constData(), plain.constData(), size_t(plain.size())) == 0;
    wipe(plain);
    return known && opened && same;
}

QByteArray Vault::authenticate(const QByteArray &message) const
{
    if (!keys)
        return {};
    QByteArray code(crypto_auth_BYTES, '\0');
    crypto_auth(bytes(code), bytes(message), size_t(message.size()), keys->authentication);
    return code;
}

} // namespace kelvra_data
