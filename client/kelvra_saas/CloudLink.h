#pragma once

#include "client/kelvra_saas/ClientMemory.h"

#include <QObject>

#include <memory>

namespace kelvra_saas {

/** What the library works with: a service, and this computer's memory. Made at first use, renewed by SaasSetup. */
class CloudLink
{
public:
    static CloudLink &current();

    /** The answer is dropped when the link has been renewed meanwhile. */
    void send(CloudRequest request, const CloudService::Callback &callback);
    /** The same for an answer that needs no service: from the event loop. */
    void answerLater(const CloudAnswer &answer, const CloudService::Callback &callback);

    ClientMemory &memory();
    CloudSimulation *simulation();

    void setFolder(const QString &path);
    void setSealing(const SaasSetup::Seal &sealer, const SaasSetup::Open &opener);
    /** Null: the simulation. */
    void setService(CloudService *service);

private:
    CloudLink();

    CloudService &service();
    void dropCalls();

    QString folder;
    SaasSetup::Seal seal;
    SaasSetup::Open open;
    CloudService *otherService = nullptr;
    std::unique_ptr<ClientMemory> clientMemory;
    std::unique_ptr<CloudSimulation> ownSimulation;
    std::unique_ptr<QObject> context; ///< lives as long as the calls made may be answered
};

} // namespace kelvra_saas
