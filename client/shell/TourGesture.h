#pragma once

#include "client/shell/TourScript.h"

namespace kelvra_client {

/** A gesture password: set, asked for, deleted; logins with it, by hand and automatic; the failures up to the lock. */
class TourGesture
{
public:
    TourGesture() = delete;

    static QVector<TourStage> stages();
};

} // namespace kelvra_client
