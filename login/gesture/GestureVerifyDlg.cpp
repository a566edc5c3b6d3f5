#include "login/gesture/GestureVerifyDlg.h"

#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginWorker.h"
#include "ui_GestureVerifyDlg.h"

#include <QEvent>

using kelvra_worker::SystemWorker;

namespace kelvra_login {

GestureVerifyDlg::GestureVerifyDlg(QWidget *parent)
    : CommonDialog(parent, 0, 1)
    , ui(std::make_unique<Form<Ui::GestureVerifyDlg>>())
{
    ui->setupUi(this);
    setTitle(tr("Gesture Verify"));
    ui->handlers.connect(ui->gesturePanel, &GesturePanel::signalGesturePwd, this, &GestureVerifyDlg::slotGesturePwd);
}

GestureVerifyDlg::~GestureVerifyDlg() = default;

void GestureVerifyDlg::slotGesturePwd(const QString &pwd)
{
    if (LoginWorker::_instance().verifyGesture(SystemWorker::_instance().getCurUserName(), pwd))
        accept();
    else
        ui->gesturePanel->setError();
}

void GestureVerifyDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        setTitle(tr("Gesture Verify"));
    }
    CommonDialog::changeEvent(event);
}

} // namespace kelvra_login
