#include "client/kelvra_saas/SaasSetup.h"

#include "client/files/OrdinaryFile.h"
#include "client/kelvra_saas/AccountsFile.h"
#include "client/kelvra_saas/CloudLink.h"
#include "client/kelvra_saas/ServiceRecords.h"

#include <QDir>

namespace kelvra_saas {

QString SaasSetup::unfitFile(const QString &folder)
{
    const auto in = [dir = QDir(folder)](const QString &name) { return dir.filePath(name); };
    for (const QString &problem :
         {kelvra_files::OrdinaryFile::problem(in(AccountsFile::fileName)),
          JsonFile(in(ServiceRecords::fileName)).problem(), JsonFile(in(ClientMemory::fileName)).problem()}) {
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

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
