#include "client/kelvra_saas/CloudLink.h"

#include <QDir>
#include <QPointer>
#include <QRandomGenerator>
#include <QTimer>

namespace kelvra_saas {

CloudLink &CloudLink::current()
{
    static CloudLink link;
    return link;
}

CloudLink::CloudLink()
    : context(std::make_unique<QObject>())
{
}

void CloudLink::send(CloudRequest request, const CloudService::Callback &callback)
{
    request.fields.insert(terminalField, memory().terminal());
    service().send(request, [guard = QPointer<QObject>(context.get()), callback](const CloudAnswer &answer) {
        if (guard)
            callback(answer);
    });
}

void CloudLink::answerLater(const CloudAnswer &answer, const CloudService::Callback &callback)
{
    QTimer::singleShot(0, context.get(), [=] { callback(answer); });
}

ClientMemory &CloudLink::memory()
{
    if (!clientMemory) {
        clientMemory = std::make_unique<ClientMemory>(folder.isEmpty() ? QString()
                                                                       : QDir(folder).filePath(ClientMemory::fileName));
        clientMemory->setSealing(seal, open);
    }
    return *clientMemory;
}

CloudService &CloudLink::service()
{
    if (otherService)
        return *otherService;
    if (!ownSimulation) {
        CloudSimulation::Settings settings;
        settings.folder = folder;
        settings.seed = QRandomGenerator::system()->generate();
        ownSimulation = std::make_unique<CloudSimulation>(settings);
    }
    return *ownSimulation;
}

CloudSimulation *CloudLink::simulation()
{
    return dynamic_cast<CloudSimulation *>(&service());
}

void CloudLink::setFolder(const QString &path)
{
    dropCalls();
    folder = path;
    clientMemory.reset();
    ownSimulation.reset();
}

void CloudLink::setSealing(const SaasSetup::Seal &sealer, const SaasSetup::Open &opener)
{
    seal = sealer;
    open = opener;
    if (clientMemory)
        clientMemory->setSealing(seal, open);
}

void CloudLink::setService(CloudService *service)
{
    dropCalls();
    ownSimulation.reset();
    otherService = service;
}

void CloudLink::dropCalls()
{
    context = std::make_unique<QObject>();
}

} // namespace kelvra_saas
