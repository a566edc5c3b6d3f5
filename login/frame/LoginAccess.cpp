#include "login/frame/LoginAccess.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/Alerts.h"
#include "login/superuser/GetbackPwdDlg.h"

#include <QDataStream>
#include <QFileInfo>
#include <QPointer>
#include <QSaveFile>

using kelvra_data::UserData;
using kelvra_worker::DictDef;
using kelvra_worker::LoginLogs;
using kelvra_worker::SystemWorker;

template <>
kelvra_login::LoginAccess &ZCOMMON::ZSingleton<kelvra_login::LoginAccess>::_instance()
{
    static kelvra_login::LoginAccess instance(nullptr);
    return instance;
}

namespace kelvra_login {

namespace {

bool writeCredentials(const QString &filePath, const QString &content)
{
    const QFileInfo target(filePath);
    // Saving puts a new file in the place of the old one, which must not happen to a device.
    if (target.exists() && !target.isFile())
        return false;
    QSaveFile file(filePath);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // Who has the file gets the password; a medium that knows no owners takes it all the same.
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QDataStream stream(&file);
    stream << content;
    // Flushed first: commit() takes no notice of what does not fit on the disk any more.
    return stream.status() == QDataStream::Ok && file.flush() && file.commit();
}

} // namespace

LoginAccess::LoginAccess(QObject *parent)
    : QObject(parent)
{
}

LoginAccess::~LoginAccess() = default;

void LoginAccess::getbackPassword(QWidget *parent)
{
    // On the heap and guarded: the parent may go, and take the dialog with it, while it is open.
    const QPointer<GetbackPwdDlg> dialog = new GetbackPwdDlg(parent);
    dialog->exec();
    delete dialog;
}

void LoginAccess::exportLoginCredentials(const QString &filePath)
{
    if (filePath.isEmpty())
        return;
    const auto &systemWorker = SystemWorker::_instance();
    const QString content = UserData::_instance().generateSuperUserCredentials(systemWorker.getSuperUserName());
    if (content.isEmpty() || !writeCredentials(filePath, content)) {
        warningAlert(tr("Failed to export login credentials"));
        return;
    }
    LoginLogs::_instance().exportLoginCredentialsLog(systemWorker.getCurUserName());
    messageAlert(DictDef::InformationTitle, tr("Export login credentials success, you can get back or reset password "
                                               "using login credentials"));
}

} // namespace kelvra_login
