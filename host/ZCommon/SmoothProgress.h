#pragma once

#include "host/Export.h"

#include <QObject>

#include <memory>

namespace ZCOMMON {

/**
 * Turns jumps of a progress value into a glide: `signalProgress` carries whole steps that move toward the last
 * target and end exactly on it.
 */
class ZCOMMON_EXPORT SmoothProgress : public QObject
{
    Q_OBJECT

public:
    /** Stands at 0 percent. @param parent owner, may be null */
    explicit SmoothProgress(QObject *parent = nullptr);
    ~SmoothProgress() override;

    /**
     * Makes `value` the target. The glide starts in the next turn of the event loop or later; a new target
     * replaces the old one. Values are percent and are passed on as given, also outside 0 to 100.
     */
    void setCurrentProgress(int value);

    /** Stops the glide where it is; nothing more is emitted until the next target. */
    void stopProgressSmoothChange();

    /** Stops the glide and goes back to 0 without emitting anything. */
    void resetProgress();

signals:
    /** The value now reached, in percent; the last one of a glide is its target. */
    void signalProgress(int value);

private:
    class Private;
    const std::unique_ptr<Private> d;
    Q_DISABLE_COPY(SmoothProgress)
};

} // namespace ZCOMMON
