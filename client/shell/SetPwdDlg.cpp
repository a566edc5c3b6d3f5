#include "client/shell/SetPwdDlg.h"

#include "client/kelvra_worker/AuditTrail.h"

using kelvra_data::UserAdmin;

namespace kelvra_client {

SetPwdDlg::SetPwdDlg(const QString &name, QWidget *parent)
    : NewPwdDlg(name, parent)
{
    setObjectName(QStringLiteral("setPwdDlg"));
    retranslate();
}

QString SetPwdDlg::titleText() const
{
    return tr("Set password");
}

UserAdmin::Answer SetPwdDlg::apply(const QString &password)
{
    const UserAdmin::Answer answer = UserAdmin::_instance().setPassword(userName(), password);
    if (answer == UserAdmin::Done)
        kelvra_worker::AuditTrail::_instance().write(kelvra_worker::AuditEvent::SetPassword, userName());
    return answer;
}

} // namespace kelvra_client
