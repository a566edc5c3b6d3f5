#pragma once

#include "host/kelvra_base/CommonDialog.h"
#include "login/common/Form.h"

#include <QString>

#include <memory>

namespace kelvra_login {

namespace Ui {
class AddGesturePwdDlg;
}

/** Sets or replaces a user's gesture, which is drawn twice; accepted a second after the host has stored it. */
class AddGesturePwdDlg : public kelvra_base::CommonDialog
{
    Q_OBJECT

public:
    /** For the host's current user. */
    explicit AddGesturePwdDlg(QWidget *parent);
    ~AddGesturePwdDlg() override;

    /** Whose gesture is set. */
    void setUserName(const QString &name);

public slots:
    void slotGesturePwd(const QString &pwd);

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeFirstGesture(const QString &pwd);
    void storeGesture();
    void startAgain(const QString &reason);
    void showPrompt(const char *sourceText);
    void showPromptSoon(const char *sourceText);

    const std::unique_ptr<Form<Ui::AddGesturePwdDlg>> ui;
    QString firstGesture;
    const char *prompt = nullptr; ///< source text, for another language
};

} // namespace kelvra_login
