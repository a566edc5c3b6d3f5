#pragma once

#include <QObject>

/** Tells when a window of a login's size stands on the screen for the first time, from the next look for one on. */
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    explicit FirstPaint(QObject *parent = nullptr);

    /** From now on the next window to be painted counts. */
    void expectNext();
    bool isPainted() const { return paintedNs != 0; }
    /** Lets the program run until it is painted. */
    void wait() const;
    /** When all of the window was painted and handed to the window system: real time in nanoseconds, 0 before. */
    qint64 paintedAt() const { return paintedNs; }
    static qint64 now();

signals:
    void signalPainted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool delivering = false;
    int paints = 0;
    qint64 paintedNs = 0;
};
