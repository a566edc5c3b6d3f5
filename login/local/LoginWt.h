#pragma once

#include "host/ZCommon/ZWidget.h"
#include "login/common/Form.h"
#include "login/frame/LoginEvent.h"
#include "login/frame/LoginSignals.h"
#include "login/local/Backdrop.h"

#include <QMap>
#include <QStringList>

#include <memory>

namespace kelvra_base {
class ComboBox;
}

namespace kelvra_login {

namespace Ui {
class LoginWt;
}

/**
 * Body of the login dialog and router between the login screens: each screen is made at the first event that asks
 * for it (see ScreenTable), kept, and shown in the column at the right. It also carries the language selector and
 * places the password rule tip.
 */
class LoginWt : public ZCOMMON::ZWidget
{
    Q_OBJECT

public:
    explicit LoginWt(QWidget *parent = nullptr);
    ~LoginWt() override;

    /** The screen made for `event`, null while there is none. */
    QWidget *screen(LoginEvent event) const;

signals:
    /** Declared for users of the widget; the module announces a login through LoginSignals instead. */
    void signalLoginSuccess();

public slots:
    void slotLoginEvent(kelvra_login::LoginEvent event, QStringList params);
    void slotPwdStrength(ZCOMMON::PwdStrength strength, bool visible, QPoint globalPos);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createLanguageBox();
    void nameLanguageBox();

    const std::unique_ptr<Form<Ui::LoginWt>> ui;
    QMap<int, int> pageIndex;
    Backdrop backdrop;
    QWidget *tip = nullptr;
    kelvra_base::ComboBox *languageBox = nullptr;
};

} // namespace kelvra_login
