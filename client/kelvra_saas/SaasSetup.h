#pragma once

#include "client/kelvra_saas/CloudSimulation.h"
#include "host/Export.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace kelvra_saas {

/**
 * What the shell tells the cloud library, in this order, before a call to the cloud is made:
 *
 *     const QString problem = SaasSetup::unfitFile(folder);
 *     SaasSetup::setSealing(seal, open);     // once the store with its key is open
 *     SaasSetup::setDataFolder(folder);
 *     ... the login, the phone window on SaasSetup::simulation() ...
 *     SaasSetup::close();                    // before the store closes and the application object goes
 *
 * For the client itself, not for modules. GUI thread only.
 */
class KELVRA_SAAS_EXPORT SaasSetup
{
public:
    using Seal = std::function<QByteArray(const QString &)>;         ///< empty on failure
    using Open = std::function<bool(const QByteArray &, QString *)>; ///< false when it was not sealed here

    SaasSetup() = delete;

    /**
     * Empty, or a sentence for the user about what stands in `folder` in the place of one of the library's files but
     * cannot be read as a file. Asked before anything is written: the library goes on without such a file.
     */
    static QString unfitFile(const QString &folder);

    /**
     * Sets the folder of "cloud_client.json" (this computer's side: terminal id, the account that logged in last,
     * sealed tokens) and of the simulation's files. Ends the simulation that was in use before, without an answer to
     * the calls that still wait for one. Without a folder, all lives in memory.
     */
    static void setDataFolder(const QString &folder);

    /**
     * How the tokens of the automatic login are sealed before they are written. Without it none is written, so that
     * the automatic login ends with the program.
     */
    static void setSealing(const Seal &seal, const Open &open);

    /**
     * Takes `service`, which stays the caller's and must live until close() or the next call, in place of the
     * simulation that the library makes by default; null: back to that. Calls that still wait get no answer.
     */
    static void setService(CloudService *service);

    /**
     * The simulation in use, made now when no call has needed it yet; null while another service is in use. It lives
     * until setDataFolder(), setService() or close().
     */
    static CloudSimulation *simulation();

    /**
     * Whether LoginWorker::tryAutoLogin can log `account` in. A token is kept at every successful login; the shell
     * calls LoginWorker::cancelAccountAutoLogin after one whose user does not want an automatic login, and lets the
     * module try one only where this answers true.
     */
    static bool isAutoLoginStored(const QString &account);

    /** Ends the service without an answer to the calls that still wait, and forgets what was set here. */
    static void close();
};

} // namespace kelvra_saas
