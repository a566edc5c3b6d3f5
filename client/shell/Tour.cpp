#include "client/shell/Tour.h"

#include "client/files/OrdinaryFile.h"
#include "client/shell/Console.h"
#include "client/shell/TourDriver.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>

#include <cstdio>

using kelvra_files::OrdinaryFile;

namespace kelvra_client {

namespace {

constexpr int exitFailed = 1;
constexpr int silentTimeoutMs = 90000; // more than a step may take: a program that is slow goes on reporting
constexpr int endTimeoutMs = 10000;    // of a program that has closed its output
const QString endedWell = QStringLiteral("ended with exit status 0");

QString failureOf(QProcess &program)
{
    if (!program.waitForStarted())
        return QStringLiteral("cannot be started");
    while (program.waitForReadyRead(silentTimeoutMs)) {
    }
    if (program.state() != QProcess::NotRunning && !program.waitForFinished(endTimeoutMs)) {
        program.kill();
        program.waitForFinished();
        return QStringLiteral("hung and was stopped");
    }
    if (program.exitStatus() == QProcess::CrashExit)
        return QStringLiteral("crashed");
    return program.exitCode() == 0 ? QString() : QStringLiteral("ended with exit status %1").arg(program.exitCode());
}

} // namespace

Tour::Tour(const QString &pictureFolder)
    : folder(QDir().absoluteFilePath(pictureFolder))
    , text(QDir(folder).filePath(QStringLiteral("tour.txt")))
{
}

bool Tour::prepare()
{
    QString error;
    if (!data.isValid())
        error = QStringLiteral("No folder for throw-away data can be made: %1.").arg(data.errorString());
    else if (!QDir().mkpath(folder))
        error = QStringLiteral("The folder %1 cannot be made.").arg(QDir::toNativeSeparators(folder));
    else if (const QString unfit = OrdinaryFile::problem(text.fileName(), OrdinaryFile::anySize); !unfit.isEmpty())
        error = unfit;
    else if (!text.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        error = QStringLiteral("The folder %1 cannot be written: %2.")
                    .arg(QDir::toNativeSeparators(folder), text.errorString());
    if (!error.isEmpty())
        Console::complain(error);
    return error.isEmpty();
}

int Tour::run()
{
    if (!prepare())
        return exitFailed;
    const QVector<TourStage> stages = TourScript::stages();
    for (int index = 0; index < stages.size(); ++index)
        runStage(index, stages.at(index));
    std::printf("%d of %d steps held; pictures and tour.txt are in %s\n", steps - failures, steps,
                qUtf8Printable(QDir::toNativeSeparators(folder)));
    return failures == 0 ? 0 : exitFailed;
}

QStringList Tour::reportsOf(int index, const TourStage &stage, QString *end) const
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(TourDriver::stageVariable, QString::number(index));
    environment.insert(TourDriver::folderVariable, folder);
    environment.insert(TourDriver::seenVariable, lastSeen);
    // File dialogs would keep in the user's own settings where they have been.
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), data.filePath(QStringLiteral("config")));
    // The stages see what this process sees, and start in English.
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QGuiApplication::platformName());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QStringList options{QStringLiteral("--data-dir"), data.filePath(stage.folder)};
    if (!stage.withPhone)
        options << QStringLiteral("--no-phone");
    program.start(QCoreApplication::applicationFilePath(), options);
    *end = failureOf(program);

    QStringList reports;
    QString output = QString::fromUtf8(program.readAllStandardOutput());
    output.remove(QLatin1Char('\r')); // which end each line on Windows
    for (const QString &line : output.split(QLatin1Char('\n'))) {
        if (line.startsWith(TourDriver::reportMark))
            reports.append(line.mid(TourDriver::reportMark.size() + 1));
    }
    return reports;
}

void Tour::runStage(int index, const TourStage &stage)
{
    QString end;
    const QStringList reports = reportsOf(index, stage, &end);
    const QString programEnd = QStringLiteral("the program %1").arg(end.isEmpty() ? endedWell : end);
    for (int step = 0; step < stage.steps.size(); ++step) {
        const QString &did = stage.steps.at(step).did;
        const QString report = reports.value(step);
        if (!report.isEmpty())
            record(did, lastSeen = report.mid(3), report.startsWith(QLatin1String("ok ")));
        else
            record(did, programEnd, end.isEmpty() && stage.steps.at(step).look.isEmpty() && step == reports.size());
    }
}

void Tour::record(const QString &did, const QString &seen, bool ok)
{
    ++steps;
    failures += ok ? 0 : 1;
    const QString line = QStringLiteral("%1 | %2 | %3 | %4\n")
                             .arg(steps, 2, 10, QLatin1Char('0'))
                             .arg(did, seen, ok ? QStringLiteral("ok") : QStringLiteral("not ok"));
    text.write(line.toUtf8());
    text.flush();
    std::fputs(qUtf8Printable(line), stdout);
    std::fflush(stdout);
}

} // namespace kelvra_client
