#include "client/kelvra_worker/IniFile.h"

#include "client/files/OrdinaryFile.h"

#include <QDir>
#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>

using kelvra_files::OrdinaryFile;

namespace kelvra_worker {

namespace {

bool isText(const QByteArray &data)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(data.constData(), data.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 && std::none_of(text.begin(), text.end(), [](QChar c) {
               return c.category() == QChar::Other_Control && c != QLatin1Char('\t') && c != QLatin1Char('\r') &&
                      c != QLatin1Char('\n');
           });
}

// A quote that is not closed takes the lines that follow into its value.
bool isQuoteLeftOpen(const QByteArray &line)
{
    bool open = false;
    for (int i = 0; i < line.size() && (open || line.at(i) != ';'); ++i) {
        if (line.at(i) == '\\')
            ++i;
        else if (line.at(i) == '"')
            open = !open;
    }
    return open;
}

// QSettings skips much of what it does not understand, and tells of the rest only to the first who opens a file.
bool isIni(const QByteArray &data)
{
    bool continued = false;
    // A carriage return on its own ends a line too.
    for (const QByteArray &line : QByteArray(data).replace("\r\n", "\n").replace('\r', '\n').split('\n')) {
        const QByteArray text = line.trimmed();
        const bool section = text.startsWith('[') && text.endsWith(']');
        const bool comment = text.startsWith(';') || text.startsWith('#');
        if (!continued && !text.isEmpty() && !section && !comment && text.indexOf('=') < 1)
            return false;
        if (!comment && isQuoteLeftOpen(text))
            return false;
        continued = text.endsWith('\\') && !comment;
    }
    return isText(data);
}

} // namespace

// QSettings opens the file once more, by its name: only when it has been found to be one.
IniFile::IniFile(const QString &filePath)
    : iniPath(filePath)
{
    if (!QFileInfo::exists(filePath))
        return;
    QString unreadable;
    const std::optional<QByteArray> data = OrdinaryFile::read(filePath, &unreadable);
    if (!data) {
        noteProblem(unreadable);
        return;
    }
    file.emplace(filePath, QSettings::IniFormat);
    file->setIniCodec("UTF-8");
    if (!isIni(*data) || file->status() != QSettings::NoError) {
        file.reset();
        noteProblem(tr("The file %1 is damaged; correct it or delete it.").arg(QDir::toNativeSeparators(filePath)));
    }
}

bool IniFile::holds(const QString &key) const
{
    return file && file->contains(key);
}

bool IniFile::flag(const QString &key, bool byDefault)
{
    if (!holds(key))
        return byDefault;
    const QString text = file->value(key).toString().trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    noteBadValue(key);
    return byDefault;
}

int IniFile::number(const QString &key, int byDefault)
{
    if (!holds(key))
        return byDefault;
    bool isNumber = false;
    const int value = file->value(key).toString().toInt(&isNumber);
    if (!isNumber)
        noteBadValue(key);
    return isNumber ? value : byDefault;
}

QString IniFile::path(const QString &key, const QString &byDefault)
{
    if (!holds(key))
        return byDefault;
    const QVariant value = file->value(key);
    // An unquoted comma makes a list of it.
    if (value.type() != QVariant::String) {
        noteBadValue(key);
        return byDefault;
    }
    const QString text = value.toString();
    return text.isEmpty() ? text : QFileInfo(iniPath).dir().absoluteFilePath(text);
}

void IniFile::noteProblem(const QString &sentence)
{
    if (firstProblem.isEmpty())
        firstProblem = sentence;
}

void IniFile::noteBadValue(const QString &key)
{
    noteProblem(tr("The value of %1 in the file %2 makes no sense; correct it or delete it.")
                    .arg(key, QDir::toNativeSeparators(iniPath)));
}

} // namespace kelvra_worker
