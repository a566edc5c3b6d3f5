#pragma once

#include "client/shell/TourInput.h"
#include "client/shell/TourScript.h"

#include <QElapsedTimer>
#include <QObject>

#include <memory>

class QProcess;

namespace kelvra_client {

/**
 * Carries out one stage of the tour inside the program that it shows, and reports each step on standard output.
 *
 * It lives on timers alone, so that it goes on in the event loop of every alert.
 */
class TourDriver : public QObject
{
    Q_OBJECT

public:
    /** The driver of the stage that the environment names; null where the program is not on a tour. */
    static std::unique_ptr<TourDriver> fromEnvironment();
    ~TourDriver() override;

    TourInput &input() { return hands; }
    /** Starts the program once more on the same folder. "{second start}" tells how that ends. */
    void startAgain();

    // Between the tour and its stages.
    static const QString stageVariable;
    static const QString folderVariable;
    static const QString seenVariable; ///< what the stage before has seen last
    static const QString reportMark;   ///< opens a report: "MARK ok SEEN" or "MARK no SEEN"

private:
    TourDriver(const QString &pictureFolder, int stage, const QString &seenBefore);

    void tick();
    /** For how long the check of the current step must hold, in ms. */
    int holdTime() const;
    void finish(const TourStep &step, const QString &seen, bool ok);
    QString describe(const QString &look) const;

    const QVector<TourStep> steps;
    const QString folder;
    TourInput hands;
    QProcess *secondStart = nullptr;
    QString before;
    QElapsedTimer sinceAct;   ///< of this step, or its beginning
    QElapsedTimer sinceRight; ///< invalid while the check does not hold
    int current = 0;
    int nextAct = 0;
    int pictures = 0; ///< taken so far, in the stages before too
    bool failed = false;
};

} // namespace kelvra_client
