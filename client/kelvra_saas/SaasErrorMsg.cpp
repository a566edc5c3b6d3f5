#include "host/kelvra_saas/SaasErrorMsg.h"

#include "client/kelvra_saas/ResultCodes.h"

#include <QCoreApplication>

namespace kelvra_saas {

QString saasErrorMsg(int code, int subCode)
{
    if (code == serviceUnavailableCode)
        return QCoreApplication::translate("kelvra_saas", "The cloud service is not available in this installation");
    return QCoreApplication::translate("kelvra_saas", "The cloud service has refused the request (code %1, %2)")
        .arg(code)
        .arg(subCode);
}

} // namespace kelvra_saas
