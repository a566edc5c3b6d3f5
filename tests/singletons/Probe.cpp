#include "Probe.h"

/** What the test resolves in each of the libraries built from this source. */
extern "C" Q_DECL_EXPORT void probeSingletons(QVector<const void *> *addresses)
{
    *addresses = singletonAddresses();
}
