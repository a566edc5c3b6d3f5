#include "client/kelvra_saas/AccountsFile.h"

#include "client/files/OrdinaryFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextCodec>

#include <algorithm>
#include <utility>

using kelvra_files::OrdinaryFile;

namespace kelvra_saas {

namespace {

constexpr qint64 quietMs = 2500;     // the coarsest file systems count time in steps of two seconds
constexpr int minPasswordLength = 8; // what the login form lets through

const QByteArray demoFile =
    R"(; The accounts of the simulated cloud. None of them is real: whoever sits at this computer may read and change
; them. A change counts from the next request to the cloud on. Delete this file to get it back as it was.
; A line that begins with a semicolon is a comment.
;
; [phone number]   eleven digits, the first of them 1
; name=            shown on the simulated phone; may be left out
; password=        at least 8 characters without spaces; a new one ends the automatic logins of the account

[13800000001]
name=Ada Lovelace
password=Analytical1

[13900000002]
name=Grace Hopper
password=Compiler52

[15000000003]
name=Alan Kay
password=Dynabook72
)";

QString toText(const QByteArray &data, bool *valid)
{
    QTextCodec::ConverterState state;
    QString text = QTextCodec::codecForName("UTF-8")->toUnicode(data.constData(), data.size(), &state);
    *valid = state.invalidChars == 0 && state.remainingChars == 0 && !text.contains(QChar::Null);
    return text;
}

bool isPassword(const QString &text)
{
    return text.size() >= minPasswordLength &&
           std::none_of(text.begin(), text.end(), [](QChar c) { return c.isSpace() || !c.isPrint(); });
}

} // namespace

const QString AccountsFile::fileName = QStringLiteral("cloud_accounts.ini");

bool isPhoneNumber(const QString &text)
{
    static const QRegularExpression shape(QStringLiteral("\\A1[0-9]{10}\\z"));
    return shape.match(text).hasMatch();
}

AccountsFile::AccountsFile(const QString &filePath)
    : path(filePath)
{
}

const CloudAccount *AccountsFile::find(const QString &phone) const
{
    const auto found =
        std::find_if(known.begin(), known.end(), [&](const CloudAccount &account) { return account.phone == phone; });
    return found == known.end() ? nullptr : &*found;
}

bool AccountsFile::read(bool *changed)
{
    QVector<CloudAccount> found;
    const Loaded loaded = load();
    if (loaded == Loaded::Yes)
        sentence = parse(&found);
    const bool fresh = loaded == Loaded::Yes && sentence.isEmpty();
    if (fresh)
        known = found;
    if (changed)
        *changed = fresh;
    return sentence.isEmpty();
}

AccountsFile::Loaded AccountsFile::load()
{
    // Before the reading: a change in between then shows the next time.
    const std::optional<Stamp> now = stampNow();
    if (now && now == stamp)
        return Loaded::Unchanged;
    const std::optional<QByteArray> before = std::exchange(data, std::nullopt);
    stamp.reset();
    if (path.isEmpty() || (!QFileInfo::exists(path) && !create()))
        data = demoFile;
    else
        data = OrdinaryFile::read(path, &sentence);
    if (!data)
        return Loaded::Unreadable;
    stamp = now;
    return data == before ? Loaded::Unchanged : Loaded::Yes;
}

std::optional<AccountsFile::Stamp> AccountsFile::stampNow() const
{
    const QFileInfo file(path);
    const QDateTime modified = file.lastModified();
    const QDateTime changed = file.metadataChangeTime();
    const bool quiet = file.exists() && qMax(modified, changed).msecsTo(QDateTime::currentDateTimeUtc()) > quietMs;
    return quiet ? std::make_optional(Stamp(file.size(), modified, changed)) : std::nullopt;
}

bool AccountsFile::create() const
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Text) &&
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
           file.write(demoFile) == demoFile.size() && file.flush() && file.commit();
}

QString AccountsFile::parse(QVector<CloudAccount> *found) const
{
    const QString native = QDir::toNativeSeparators(path);
    bool valid = false;
    const QStringList lines = toText(*data, &valid).split(QLatin1Char('\n'));
    if (!valid)
        return tr("The file %1 holds something else than text; correct it or delete it.").arg(native);
    for (int line = 0; line < lines.size(); ++line) {
        const QString mistake = parseLine(lines[line].trimmed(), found);
        if (!mistake.isEmpty())
            return tr("Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.")
                .arg(QString::number(line + 1), native, mistake);
    }
    for (const CloudAccount &account : qAsConst(*found)) {
        if (account.password.isEmpty())
            return tr("The account %1 in the file %2 has no password. Correct it or delete the file.")
                .arg(account.phone, native);
    }
    return found->isEmpty() ? tr("The file %1 holds no account; correct it or delete it.").arg(native) : QString();
}

QString AccountsFile::parseLine(const QString &line, QVector<CloudAccount> *found)
{
    if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#')))
        return {};
    if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']')))
        return parseSection(line.mid(1, line.size() - 2).trimmed(), found);
    return parseValue(line, found);
}

QString AccountsFile::parseSection(const QString &phone, QVector<CloudAccount> *found)
{
    if (!isPhoneNumber(phone))
        return tr("a phone number has eleven digits, the first of them 1");
    if (std::any_of(found->begin(), found->end(), [&](const CloudAccount &account) { return account.phone == phone; }))
        return tr("this phone number is there twice");
    found->append({phone, {}, {}});
    return {};
}

QString AccountsFile::parseValue(const QString &line, QVector<CloudAccount> *found)
{
    const QString key = line.section(QLatin1Char('='), 0, 0).trimmed();
    const QString value = line.section(QLatin1Char('='), 1).trimmed();
    const bool isPasswordLine = key == QLatin1String("password");
    if (!line.contains(QLatin1Char('=')) || (!isPasswordLine && key != QLatin1String("name")))
        return tr("only [phone number], name=, password= and comments are known");
    if (found->isEmpty())
        return tr("a phone number in brackets must come first");
    if (isPasswordLine && !isPassword(value))
        return tr("a password has at least %1 characters and no spaces").arg(minPasswordLength);
    QString &place = isPasswordLine ? found->last().password : found->last().name;
    if (!place.isEmpty())
        return tr("%1 is there twice").arg(key);
    place = value;
    return {};
}

} // namespace kelvra_saas
