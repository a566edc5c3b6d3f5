#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/kelvra_worker/WorkerSetup.h"
#include "host/kit/HostSetup.h"

bool HostSetup::open(const QString &folder)
{
    kelvra_worker::WorkerSetup::setDataFolder(folder);
    kelvra_saas::SaasSetup::setDataFolder(folder);
    return kelvra_data::Store::_instance().open(folder);
}

void HostSetup::close()
{
    kelvra_saas::SaasSetup::close();
    kelvra_data::Store::_instance().close();
}
