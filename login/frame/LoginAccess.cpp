#include "login/frame/LoginAccess.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/Alerts.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/gesture/GestureVerifyDlg.h"
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

/** Runs a dialog of its own and deletes it. The parent may go, and take the dialog with it, while it is open. */
int run(QDialog *newDialog)
{
    const QPointer<QDialog> dialog = newDialog;
    const int result = dialog->exec();
    delete dialog;
    return result;
}

// A copy: what an operation leads to may change the host's own.
QString currentUser()
{
    return SystemWorker::_instance().getCurUserName();
}

bool writeCredentials(const QString &filePath, const QString &content)
{
    const QFileInfo target(filePath);
    // Saving puts a new file in the place of the old one, which must not happen to a device.
    if (target.exists() && !target.isFile())
        return false;
    QSaveFile file(filePath);
    // A folder may take no new files while the file that is there may be written.
    file.setDirectWriteFallback(true);
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

void LoginAccess::addCurUserGesture(QWidget *parent)
{
    addUserGesture(parent, currentUser());
}

void LoginAccess::addUserGesture(QWidget *parent, const QString &userName)
{
    auto *dialog = new AddGesturePwdDlg(parent);
    dialog->setUserName(userName);
    run(dialog);
}

bool LoginAccess::deleteCurUserGesture()
{
    return deleteUserGesture(currentUser());
}

bool LoginAccess::deleteUserGesture(const QString &userName)
{
    const bool ok = UserData::_instance().deleteUserGesture(userName);
    if (ok)
        LoginLogs::_instance().deleteGestureLog(userName);
    return ok;
}

bool LoginAccess::gestureVerify(QWidget *parent)
{
    return run(new GestureVerifyDlg(parent)) == QDialog::Accepted;
}

bool LoginAccess::isCurUserConfigureGesture()
{
    return UserData::_instance().isUserConfigureGesture(currentUser());
}

bool LoginAccess::isCurUserAutoLogin()
{
    return UserData::_instance().isUserAutoLogin(currentUser());
}

bool LoginAccess::openCurUserAutoLogin()
{
    const QString user = currentUser();
    const bool ok = UserData::_instance().userAutoLoginCtrl(user, true);
    if (ok)
        LoginLogs::_instance().openAutoLoginLog(user);
    return ok;
}

bool LoginAccess::cancelCurUserAutoLogin()
{
    const QString user = currentUser();
    const bool ok = UserData::_instance().userAutoLoginCtrl(user, false);
    if (ok)
        LoginLogs::_instance().cancelAutoLoginLog(user);
    return ok;
}

void LoginAccess::getbackPassword(QWidget *parent)
{
    run(new GetbackPwdDlg(parent));
}

void LoginAccess::exportLoginCredentials(const QString &filePath)
{
    if (filePath.isEmpty())
        return;
    const QString superUser = SystemWorker::_instance().getSuperUserName();
    const QString content = UserData::_instance().generateSuperUserCredentials(superUser);
    if (content.isEmpty() || !writeCredentials(filePath, content)) {
        warningAlert(tr("Failed to export login credentials"));
        return;
    }
    LoginLogs::_instance().exportLoginCredentialsLog(currentUser());
    messageAlert(DictDef::InformationTitle, tr("Export login credentials success, you can get back or reset password "
                                               "using login credentials"));
}

} // namespace kelvra_login
