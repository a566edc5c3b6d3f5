#pragma once

#include "host/Export.h"

#include <QString>

namespace kelvra_worker {

/** Tells the user that something could not be stored, where the operation itself has no answer to give. */
class KELVRA_WORKER_EXPORT FailureNotice
{
public:
    FailureNotice() = delete;

    /**
     * Says `sentence` on standard error at once. An alert follows from the event loop, so that the operation that
     * has failed is over by then. To be called once per kind of failure.
     */
    static void show(const QString &sentence);
};

} // namespace kelvra_worker
