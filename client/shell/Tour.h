#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace kelvra_client {

struct TourStage;

/**
 * Shows the program to whoever cannot sit before it: runs it stage by stage on throw-away data folders, has mouse
 * and keys go through its real user interface, and keeps a picture per screen and "tour.txt", a line per step.
 */
class Tour
{
public:
    /** `pictureFolder` is made where it is missing; older pictures and "tour.txt" in it are overwritten. */
    explicit Tour(const QString &folder);

    /** @return exit code: 0 when every step has held, 1 otherwise and when the folder cannot be written */
    int run();

private:
    bool prepare();
    void runStage(int index, const TourStage &stage);
    /** What the program has reported, and how it ended ("" for well). */
    QStringList reportsOf(int index, const TourStage &stage, QString *end) const;
    void record(const QString &did, const QString &seen, bool ok);

    const QString folder;
    const QTemporaryDir data;
    QFile text;
    QString lastSeen;
    int steps = 0;
    int failures = 0;
};

} // namespace kelvra_client
