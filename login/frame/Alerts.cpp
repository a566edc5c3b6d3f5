#include "login/frame/Alerts.h"

#include "host/kelvra_worker/SystemAssistant.h"

using kelvra_worker::DictDef;
using kelvra_worker::SystemAssistant;

namespace kelvra_login {

void messageAlert(DictDef::AlertTitle title, const QString &text)
{
    SystemAssistant::_instance().messageAlert(DictDef::_instance().alertTitle(title), text);
}

void warningAlert(const QString &text)
{
    messageAlert(DictDef::WarningTitle, text);
}

} // namespace kelvra_login
