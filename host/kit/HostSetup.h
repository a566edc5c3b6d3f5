#pragma once

#include <QString>

/** What the host's team writes for the contract kit. Called on the GUI thread, with an application object there. */
namespace HostSetup {

/**
 * Makes the services ready as the host's program does before it starts the module. All that they keep belongs into
 * `folder`, which is empty unless open() has been called with it before: then this stands for the next start.
 */
bool open(const QString &folder);

/** Ends the services, with all that they hold in memory. */
void close();

} // namespace HostSetup
