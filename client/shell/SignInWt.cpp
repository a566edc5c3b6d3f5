#include "client/shell/SignInWt.h"

#include "client/kelvra_base/AlertBox.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/LoginAccess.h"
#include "ui_SignInWt.h"

#include <QEvent>
#include <QPointer>
#include <QSignalBlocker>

using kelvra_base::AlertBox;
using kelvra_login::LoginAccess;
using kelvra_worker::DictDef;

namespace kelvra_client {

SignInWt::SignInWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::SignInWt>())
{
    ui->setupUi(this);
    connect(ui->setOwnGestureBt, &QPushButton::clicked, this, &SignInWt::setGesture);
    connect(ui->deleteOwnGestureBt, &QPushButton::clicked, this, &SignInWt::confirmGestureDeletion);
    connect(ui->verifyGestureBt, &QPushButton::clicked, this, &SignInWt::verifyGesture);
    connect(ui->autoLoginSwitch, &QCheckBox::toggled, this, &SignInWt::switchAutoLogin);
}

SignInWt::~SignInWt() = default;

void SignInWt::setSession(const SessionInfo &info)
{
    session = info;
    tell({});
    refresh();
}

void SignInWt::refresh()
{
    showGesture();
    showAutoLogin();
}

void SignInWt::showGesture()
{
    const bool local = session.type == kelvra_worker::LocalUser;
    const bool set = LoginAccess::_instance().isCurUserConfigureGesture();
    ui->gestureState->setText(set ? tr("set") : tr("not set"));
    ui->setOwnGestureBt->setText(set ? tr("Change") : tr("Set"));
    ui->setOwnGestureBt->setEnabled(local);
    ui->deleteOwnGestureBt->setEnabled(set);
    ui->verifyGestureBt->setEnabled(set);
    const QString none = set ? QString() : tr("No gesture password has been set.");
    const QString reason = local ? none : tr("Only local users have a gesture password; this is a cloud account.");
    ui->setOwnGestureBt->setToolTip(local ? QString() : reason);
    ui->deleteOwnGestureBt->setToolTip(reason);
    ui->verifyGestureBt->setToolTip(reason);
    // Heard by themselves, their texts do not tell what they are about.
    for (QPushButton *button : {ui->setOwnGestureBt, ui->deleteOwnGestureBt, ui->verifyGestureBt})
        button->setAccessibleName(QStringLiteral("%1: %2").arg(ui->gestureCaption->text(), button->text()));
}

void SignInWt::showAutoLogin()
{
    const bool on = LoginAccess::_instance().isCurUserAutoLogin();
    // What an account would need for it was thrown away when its user logged in without.
    const bool possible = on || session.type == kelvra_worker::LocalUser;
    ui->autoLogin->setText(on ? tr("Automatic") : tr("By hand"));
    const QSignalBlocker noChoice(ui->autoLoginSwitch);
    ui->autoLoginSwitch->setChecked(on);
    ui->autoLoginSwitch->setEnabled(possible);
    ui->autoLoginSwitch->setToolTip(
        possible ? QString() : tr("Choose “Automatic Logon” when you log in with this account the next time."));
}

void SignInWt::setGesture()
{
    const QPointer<SignInWt> self(this);
    tell({});
    LoginAccess::_instance().addCurUserGesture(window());
    if (self)
        refresh();
}

void SignInWt::confirmGestureDeletion()
{
    tell({});
    auto *box = new AlertBox(window(), AlertBox::Warning, DictDef::_instance().alertTitle(DictDef::WarningTitle),
                             tr("Delete your gesture password? You then log in with your password only."),
                             kelvra_base::OkButton | kelvra_base::CancelButton);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::accepted, this, &SignInWt::deleteGesture);
    box->open();
}

void SignInWt::deleteGesture()
{
    const bool deleted = LoginAccess::_instance().deleteCurUserGesture();
    refresh();
    tell(deleted ? tr("The gesture password has been deleted.") : tr("The gesture password could not be deleted."));
}

void SignInWt::verifyGesture()
{
    const QPointer<SignInWt> self(this);
    tell({});
    const bool right = LoginAccess::_instance().gestureVerify(window());
    if (self)
        tell(right ? tr("The gesture password has been verified.") : tr("The gesture password was not verified."));
}

void SignInWt::switchAutoLogin(bool on)
{
    auto &access = LoginAccess::_instance();
    const bool done = on ? access.openCurUserAutoLogin() : access.cancelCurUserAutoLogin();
    if (done && session.type == kelvra_worker::CloudUser)
        kelvra_saas::LoginWorker::_instance().cancelAccountAutoLogin(session.user);
    refresh();
    tell(done ? QString() : tr("The automatic login could not be changed."));
}

void SignInWt::tell(const QString &outcome)
{
    ui->signInNote->setText(outcome);
    ui->signInNote->setVisible(!outcome.isEmpty());
}

void SignInWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        tell({});
        refresh();
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_client
