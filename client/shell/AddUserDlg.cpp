#include "client/shell/AddUserDlg.h"

#include "client/kelvra_worker/AuditTrail.h"

using kelvra_data::UserAdmin;

namespace kelvra_client {

AddUserDlg::AddUserDlg(QWidget *parent)
    : NewPwdDlg(QString(), parent)
{
    setObjectName(QStringLiteral("addUserDlg"));
    retranslate();
}

QString AddUserDlg::titleText() const
{
    return tr("Add user");
}

UserAdmin::Answer AddUserDlg::checkUser() const
{
    return UserAdmin::_instance().checkName(userName());
}

UserAdmin::Answer AddUserDlg::apply(const QString &password)
{
    const UserAdmin::Answer answer = UserAdmin::_instance().add(userName(), password);
    if (answer == UserAdmin::Done)
        kelvra_worker::AuditTrail::_instance().write(kelvra_worker::AuditEvent::AddUser, userName());
    return answer;
}

} // namespace kelvra_client
