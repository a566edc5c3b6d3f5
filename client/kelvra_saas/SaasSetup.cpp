#include "client/kelvra_saas/SaasSetup.h"

#include "client/kelvra_saas/CloudLink.h"

namespace kelvra_saas {

void SaasSetup::setDataFolder(const QString &folder)
{
    CloudLink::current().setFolder(folder);
}

void SaasSetup::setSealing(const Seal &seal, const Open &open)
{
    CloudLink::current().setSealing(seal, open);
}

void SaasSetup::setService(CloudService *service)
{
    CloudLink::current().setService(service);
}

CloudSimulation *SaasSetup::simulation()
{
    return CloudLink::current().simulation();
}

bool SaasSetup::isAutoLoginStored(const QString &account)
{
    return !CloudLink::current().memory().token(account).isEmpty();
}

void SaasSetup::close()
{
    CloudLink &link = CloudLink::current();
    link.setService(nullptr);
    link.setFolder({});
    link.setSealing({}, {});
}

} // namespace kelvra_saas
