#include "login/gesture/AddGesturePwdDlg.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/Alerts.h"
#include "ui_AddGesturePwdDlg.h"

#include <QEvent>

using kelvra_data::UserData;
using kelvra_worker::LoginLogs;
using kelvra_worker::SystemWorker;

namespace kelvra_login {

namespace {

constexpr int minDots = 4;
constexpr int promptDelayMs = 500;
constexpr int acceptDelayMs = 1000;
constexpr int pointStyle = 1;

constexpr auto firstInput = QT_TRANSLATE_NOOP("kelvra_login::AddGesturePwdDlg", "First input gesture");
constexpr auto secondInput = QT_TRANSLATE_NOOP("kelvra_login::AddGesturePwdDlg", "Second input gesture");
constexpr auto tooSimple = QT_TRANSLATE_NOOP("kelvra_login::AddGesturePwdDlg", "Too simple gesture:at least 4 points");
constexpr auto success = QT_TRANSLATE_NOOP("kelvra_login::AddGesturePwdDlg", "Successfully set gesture password");

} // namespace

AddGesturePwdDlg::AddGesturePwdDlg(QWidget *parent)
    : CommonDialog(parent, 0, 1)
    , ui(std::make_unique<Form<Ui::AddGesturePwdDlg>>())
{
    ui->setupUi(this);
    setTitle(tr("Add Gesture Password Login"));
    setUserName(SystemWorker::_instance().getCurUserName());
    showPrompt(firstInput);
    ui->gesturePanel->setPointStyle(pointStyle);
    ui->handlers.connect(ui->gesturePanel, &GesturePanel::signalGesturePwd, this, &AddGesturePwdDlg::slotGesturePwd);
}

AddGesturePwdDlg::~AddGesturePwdDlg() = default;

void AddGesturePwdDlg::setUserName(const QString &name)
{
    ui->userName->setText(name);
}

void AddGesturePwdDlg::slotGesturePwd(const QString &pwd)
{
    if (firstGesture.isEmpty()) {
        takeFirstGesture(pwd);
    } else if (pwd == firstGesture) {
        storeGesture();
    } else {
        ui->gesturePanel->setError();
        startAgain(tr("The gesture passwords entered twice are inconsistent"));
    }
}

void AddGesturePwdDlg::takeFirstGesture(const QString &pwd)
{
    if (pwd.size() >= minDots) {
        firstGesture = pwd;
        showPromptSoon(secondInput);
        return;
    }
    ui->gesturePanel->setError();
    showPrompt(tooSimple);
    startAgain(tr("The gesture password is too simple,you should connect at least 4 points"));
}

void AddGesturePwdDlg::storeGesture()
{
    const QString user = ui->userName->text();
    const bool wasSet = UserData::_instance().isUserConfigureGesture(user);
    if (!UserData::_instance().updateUserGesture(user, firstGesture)) {
        startAgain(wasSet ? tr("Failed to update gesture password") : tr("Failed to add gesture password"));
        return;
    }
    if (wasSet)
        LoginLogs::_instance().updateGestureLog(user);
    else
        LoginLogs::_instance().addGestureLog(user);
    showPromptSoon(success);
    ui->gesturePanel->setEnabled(false);
    ui->handlers.after(acceptDelayMs, [this] { accept(); });
}

void AddGesturePwdDlg::startAgain(const QString &reason)
{
    firstGesture.clear();
    showPromptSoon(firstInput);
    warningAlert(reason);
}

void AddGesturePwdDlg::showPrompt(const char *sourceText)
{
    prompt = sourceText;
    ui->prompt->setText(tr(sourceText));
}

void AddGesturePwdDlg::showPromptSoon(const char *sourceText)
{
    ui->handlers.after(promptDelayMs, [this, sourceText] { showPrompt(sourceText); });
}

void AddGesturePwdDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        setTitle(tr("Add Gesture Password Login"));
        showPrompt(prompt);
    }
    CommonDialog::changeEvent(event);
}

} // namespace kelvra_login
