#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace kelvra_client {

class TourDriver;

/** One thing the tour does, and what must be seen of it within a minute. */
struct TourStep
{
    using Act = std::function<void(TourDriver &driver)>;
    /** Whether `seen` is right, given what the step before has seen (in the stage before, too). */
    using Check = std::function<bool(const QString &seen, const QString &before)>;

    QString did;
    QVector<Act> acts; ///< one after the other, with a turn of the event loop between two
    QString look;      ///< a sentence with names of widgets in braces; empty: the program is to end by itself
    Check check;
    QString picture; ///< name of the picture taken when the check holds, empty for none
    int holdsMs = 0; ///< for how long the check must hold before
};

/** One run of the program on one of the throw-away data folders. */
struct TourStage
{
    QString folder;
    QVector<TourStep> steps;
    bool withPhone = false; ///< the phone of the simulated cloud stands beside the login
};

/** What the tour does, in the order of the pictures: the stages of each subject, which a class of its own holds. */
class TourScript
{
public:
    TourScript() = delete;

    static QVector<TourStage> stages();
};

} // namespace kelvra_client
