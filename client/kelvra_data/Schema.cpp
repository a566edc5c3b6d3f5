#include "client/kelvra_data/Schema.h"

namespace {

// kind: 1 local, 2 cloud account. password, answers, gesture: sealed. last_login: ISO 8601, UTC.
// A cloud account has no password and no gesture: the local login never lets it in.
constexpr char createUsers[] = R"(
    CREATE TABLE users (
        id INTEGER PRIMARY KEY,
        name TEXT NOT NULL UNIQUE,
        kind INTEGER NOT NULL CHECK (kind IN (1, 2)),
        role INTEGER NOT NULL,
        display_name TEXT NOT NULL DEFAULT '',
        remark TEXT NOT NULL DEFAULT '',
        password BLOB,
        gesture BLOB,
        question1 INTEGER NOT NULL DEFAULT 0,
        question2 INTEGER NOT NULL DEFAULT 0,
        question3 INTEGER NOT NULL DEFAULT 0,
        answer1 BLOB,
        answer2 BLOB,
        answer3 BLOB,
        auto_login INTEGER NOT NULL DEFAULT 0,
        last_login TEXT,
        CHECK ((kind = 1) = (password IS NOT NULL)),
        CHECK (kind = 1 OR gesture IS NULL)
    ))";

constexpr char createOneSuperUser[] = R"(
    CREATE UNIQUE INDEX one_local_superuser ON users (role) WHERE kind = 1 AND role = 0)";

// One row. salt and key_check belong to the key file, environment is the fingerprint of a computer.
constexpr char createState[] = R"(
    CREATE TABLE state (
        id INTEGER PRIMARY KEY CHECK (id = 1),
        salt BLOB NOT NULL,
        key_check BLOB NOT NULL,
        locked INTEGER NOT NULL DEFAULT 0,
        lock_seconds INTEGER NOT NULL DEFAULT 0,
        failed_count INTEGER NOT NULL DEFAULT 0,
        last_local_user INTEGER REFERENCES users (id) ON DELETE SET NULL,
        environment BLOB
    ))";

constexpr char createAuditLog[] = R"(
    CREATE TABLE audit_log (
        id INTEGER PRIMARY KEY,
        at TEXT NOT NULL,
        event TEXT NOT NULL,
        user TEXT NOT NULL,
        method INTEGER,
        auto_login INTEGER,
        seconds INTEGER
    ))";

} // namespace

namespace kelvra_data {

const QVector<QVector<const char *>> &Schema::migrations()
{
    static const QVector<QVector<const char *>> steps = {
        {createUsers, createOneSuperUser, createState, createAuditLog},
    };
    return steps;
}

} // namespace kelvra_data
