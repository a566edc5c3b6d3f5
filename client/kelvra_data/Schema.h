#pragma once

#include <QVector>

namespace kelvra_data {

/** The layout of the database, as the steps that lead to it from an empty one. */
namespace Schema {

/** Marks a database file as this program's (PRAGMA application_id). */
constexpr int applicationId = 0x4B4C5652;

/** Column `kind` of the table `users`. */
enum Kind : int { LocalKind = 1, CloudKind = 2 };

/** Statements of each step; a database of version n (PRAGMA user_version) has the first n behind it. */
const QVector<QVector<const char *>> &migrations();

} // namespace Schema

} // namespace kelvra_data
