#pragma once

#include <QMap>
#include <QObject>

/** Counts the timer events that a program which nobody touches is woken by. */
class WakeUps : public QObject
{
    Q_OBJECT

public:
    explicit WakeUps(QObject *parent = nullptr);

    /** Runs the program for that long; says how many timers went off, by the class of who has set them. */
    QMap<QByteArray, int> count(int milliseconds);
    /** How often the event loop has gone on meanwhile, for whatever reason; the first and the last are the count's. */
    int turns() const { return loopTurns; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QMap<QByteArray, int> timers;
    int loopTurns = 0;
    bool ended = false;
};
