#include "client/shell/TourDriver.h"

#include "client/files/OrdinaryFile.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>

using kelvra_files::OrdinaryFile;

namespace kelvra_client {

const QString TourDriver::stageVariable = QStringLiteral("KELVRA_TOUR_STAGE");
const QString TourDriver::folderVariable = QStringLiteral("KELVRA_TOUR_FOLDER");
const QString TourDriver::seenVariable = QStringLiteral("KELVRA_TOUR_SEEN");
const QString TourDriver::reportMark = QStringLiteral("tour:");

namespace {

constexpr int decimal = 10;
constexpr int tickMs = 10;
constexpr int settledMs = 30;     // before an act: a window that has just come is not active in its first moments
constexpr int deadlineMs = 60000; // passed by what is wrong, and not by what is slow
constexpr int deadlineAfterFailureMs = 1000; // what follows a failure may be out of reach
const QString secondStartName = QStringLiteral("second start");

QtMessageHandler handlerBefore = nullptr;

/** What the platform without a display cannot do is no news. */
void dropPlatformLimits(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        handlerBefore(type, context, message);
}

int picturesBefore(int stage)
{
    int count = 0;
    for (const TourStage &earlier : TourScript::stages().mid(0, stage))
        count += int(std::count_if(earlier.steps.begin(), earlier.steps.end(),
                                   [](const TourStep &step) { return !step.picture.isEmpty(); }));
    return count;
}

} // namespace

std::unique_ptr<TourDriver> TourDriver::fromEnvironment()
{
    const auto variable = [](const QString &name) { return qEnvironmentVariable(qUtf8Printable(name)); };
    bool isStage = false;
    const int stage = variable(stageVariable).toInt(&isStage);
    if (!isStage || stage < 0 || stage >= TourScript::stages().size())
        return nullptr;
    return std::unique_ptr<TourDriver>(new TourDriver(variable(folderVariable), stage, variable(seenVariable)));
}

TourDriver::TourDriver(const QString &pictureFolder, int stage, const QString &seenBefore)
    : steps(TourScript::stages().at(stage).steps)
    , folder(pictureFolder)
    , before(seenBefore)
    , pictures(picturesBefore(stage))
{
    // A caret that blinks would be in one picture and not in the next.
    QApplication::setCursorFlashTime(0);
    // The platform's own file dialogs are out of the tour's reach.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    handlerBefore = qInstallMessageHandler(dropPlatformLimits);
    sinceAct.start();
    QTimer::singleShot(0, this, &TourDriver::tick);
}

TourDriver::~TourDriver()
{
    qInstallMessageHandler(handlerBefore);
}

void TourDriver::startAgain()
{
    secondStart = new QProcess(this);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(stageVariable);
    secondStart->setProcessEnvironment(environment);
    secondStart->start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
}

void TourDriver::tick()
{
    if (current == steps.size())
        return;
    // Asked for first: an act may open an alert, and return when that has been closed by a later step.
    QTimer::singleShot(tickMs, this, &TourDriver::tick);

    hands.settle();
    const TourStep &step = steps.at(current);
    if (nextAct < step.acts.size()) {
        sinceAct.start();
        sinceRight.invalidate();
        step.acts.at(nextAct++)(*this);
        return;
    }
    hands.openPhone();
    if (step.look.isEmpty())
        return;
    const QString seen = describe(step.look);
    const bool right = step.check(seen, before);
    if (!right)
        sinceRight.invalidate();
    else if (!sinceRight.isValid())
        sinceRight.start();
    if (right && sinceRight.elapsed() >= holdTime())
        finish(step, seen, true);
    else if (sinceAct.hasExpired(failed ? deadlineAfterFailureMs : deadlineMs))
        finish(step, seen, false);
}

// What is only looked at may be gone after the next turn.
int TourDriver::holdTime() const
{
    const bool actsNext = current + 1 < steps.size() && !steps.at(current + 1).acts.isEmpty();
    return qMax(steps.at(current).holdsMs, actsNext ? settledMs : 0);
}

void TourDriver::finish(const TourStep &step, const QString &seen, bool ok)
{
    bool kept = true;
    if (!step.picture.isEmpty()) {
        const QString name =
            QStringLiteral("%1-%2.png").arg(++pictures, 2, decimal, QLatin1Char('0')).arg(step.picture);
        const QString path = QDir(folder).filePath(name);
        kept = OrdinaryFile::problem(path, OrdinaryFile::anySize).isEmpty() && TourInput::picture().save(path, "PNG");
    }
    failed |= !ok || !kept;
    before = seen;
    ++current;
    nextAct = 0;
    sinceAct.start();
    sinceRight.invalidate();
    std::printf("%s %s %s\n", qUtf8Printable(reportMark), ok && kept ? "ok" : "no",
                qUtf8Printable(kept ? seen : seen + QStringLiteral(" (the picture cannot be written)")));
    std::fflush(stdout);
}

QString TourDriver::describe(const QString &look) const
{
    static const QRegularExpression name(QStringLiteral("\\{([^}]*)\\}"));
    QString result;
    int end = 0;
    for (auto match = name.globalMatch(look); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        result += look.mid(end, found.capturedStart() - end);
        end = found.capturedEnd();
        if (found.captured(1) != secondStartName)
            result += TourInput::seen(found.captured(1));
        else if (secondStart && secondStart->state() == QProcess::NotRunning)
            result += QStringLiteral("exit status %1").arg(secondStart->exitCode());
        else
            result += QStringLiteral("running");
    }
    return result + look.mid(end);
}

} // namespace kelvra_client
