#pragma once

#include "Platform.h"
#include "host/kelvra_data/SuperUserInfo.h"
#include "host/kelvra_data/UserRole.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/** What the programs share that keep a data folder. init() of each makes `dir` anew. */
class DataFolderTest : public QObject
{
protected:
    /** Within the data folder, which is there when somebody has made it. */
    QString at(const QString &file = {}) const { return dir->filePath("data/" + file); }

    /** Every file and folder in `folder` and below with its permissions and, behind them, its content. */
    static QMap<QString, QByteArray> contents(const QString &folder)
    {
        QMap<QString, QByteArray> all;
        const auto filter = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        for (QDirIterator it(folder, filter, QDirIterator::Subdirectories); it.hasNext();) {
            const QString path = it.next();
            const QByteArray kind = it.fileInfo().isDir() ? " folder " : " file ";
            all[QDir(folder).relativeFilePath(path)] =
                QByteArray::number(int(it.fileInfo().permissions())) + kind + readFile(path);
        }
        return all;
    }

    /** Whether nobody but the owner gets at it; on Windows that is in access lists, which Qt does not show. */
    static bool isPrivate(const QString &path)
    {
        constexpr QFile::Permissions others{isWindows ? 0 : 0x77};
        return QFile::exists(path) && !(QFile::permissions(path) & others);
    }

    static QByteArray readFile(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void writeFile(const QString &path, const QByteArray &data)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(data) == data.size());
    }

    static kelvra_data::SuperUserInfo superUser(const QString &name, const QString &password)
    {
        kelvra_data::SuperUserInfo info;
        info.userName = info.remark = name;
        info.password = password;
        info.role = kelvra_data::SuperUserRole;
        info.question1 = 3;
        info.question3 = 9;
        info.answer1 = "Vassar College";
        info.answer2 = "a moth in a relay";
        info.answer3 = "Arlington, Virginia";
        return info;
    }

    std::unique_ptr<QTemporaryDir> dir;
};
