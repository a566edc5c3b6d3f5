#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace kelvra_data {

/** What all who write users share: which texts are usable, and where a user's secrets lie sealed. */
namespace UserRecord {

constexpr int maxNameLength = 64; ///< as every length here in UTF-16 characters

/** Whether any user may bear that name: not blank, not too long, no broken characters. */
bool isUsableName(const QString &name);

/** Whether a password or an answer can be kept. */
bool isUsableSecret(const QString &secret);

QByteArray nameBytes(const QString &name);

/** The place, for the vault, of what stands in `column` for the user `name`. */
QByteArray placeOf(const char *column, const QString &name);

/** `text` sealed for that place, empty while the store is closed. */
QByteArray seal(const QString &text, const char *column, const QString &name);

/** What was sealed for that place; empty when `sealed` is something else. */
QString unseal(const QVariant &sealed, const char *column, const QString &name);

} // namespace UserRecord

} // namespace kelvra_data
