#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QString>

#include <optional>

namespace kelvra_worker {

/** An INI file that a person may have edited. It is only read, and keeps in mind what is wrong in it. */
class IniFile
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_worker::IniFile)

public:
    /** A file that does not exist holds nothing, which is not wrong. */
    explicit IniFile(const QString &filePath);

    // The value of `key`; `byDefault` where it is missing or not of that kind. A damaged file holds
    // nothing.
    bool flag(const QString &key, bool byDefault);
    int number(const QString &key, int byDefault);
    /** A path that does not begin at a root is meant from the folder of the file. */
    QString path(const QString &key, const QString &byDefault);

    /** Empty, or a sentence for the user about the first thing that was wrong. */
    const QString &problem() const { return firstProblem; }

private:
    bool holds(const QString &key) const;
    void noteProblem(const QString &sentence);
    void noteBadValue(const QString &key);

    QString iniPath;
    std::optional<QSettings> file; ///< while it can be used
    QString firstProblem;
};

} // namespace kelvra_worker
