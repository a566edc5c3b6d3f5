#include "login/frame/Screens.h"

#include "login/gesture/GestureLoginWt.h"
#include "login/local/LoginWt.h"
#include "login/local/NormalLoginWt.h"
#include "login/local/PwdTipWt.h"
#include "login/local/ScreenTable.h"
#include "login/superuser/CreateSuperUserWt.h"
#include "login/superuser/LoginMethodSelWt.h"
#include "login/superuser/ResetSuperUserPwdWt.h"
#include "login/superuser/SetSecretAnswerWt.h"
#include "login/superuser/VerifySecretAnswerWt.h"

namespace kelvra_login {

namespace {

template <typename Screen>
QWidget *make(const QStringList &, QWidget *parent)
{
    return new Screen(parent);
}

template <typename Screen>
QWidget *makeForUser(const QStringList &params, QWidget *parent)
{
    return new Screen(params.value(0), parent);
}

/** What has been typed on the first page of superuser creation goes to the second one. */
void handOverSuperUser(const LoginWt &router, const QStringList &)
{
    const auto *creation = qobject_cast<CreateSuperUserWt *>(router.screen(CreateSuperUser));
    auto *questions = qobject_cast<SetSecretAnswerWt *>(router.screen(SetSecretAnswer));
    if (!creation || !questions)
        return;
    questions->setSuperUserInfo(creation->getSuperUserInfo());
    questions->setAutoLogin(creation->isAutoLogin());
}

void handOverUserName(const LoginWt &router, const QStringList &params)
{
    auto *page = qobject_cast<GestureLoginWt *>(router.screen(GestureLogin));
    if (page && !params.isEmpty())
        page->setUserName(params.first());
}

QWidget *makeTip(QWidget *parent)
{
    return new PwdTipWt(parent);
}

void setTipStrength(QWidget *tip, ZCOMMON::PwdStrength strength)
{
    if (auto *pwdTip = qobject_cast<PwdTipWt *>(tip))
        pwdTip->setStrength(strength);
}

} // namespace

void enterScreens()
{
    ScreenTable::enter(NormalLogin, {make<NormalLoginWt>, {}});
    ScreenTable::enter(CreateSuperUser, {make<CreateSuperUserWt>, {}});
    ScreenTable::enter(SetSecretAnswer, {make<SetSecretAnswerWt>, handOverSuperUser});
    ScreenTable::enter(ResetSuperUserPwd, {makeForUser<ResetSuperUserPwdWt>, {}});
    ScreenTable::enter(VerifySecretAnswer, {makeForUser<VerifySecretAnswerWt>, {}});
    ScreenTable::enter(GestureLogin, {make<GestureLoginWt>, handOverUserName});
    ScreenTable::enter(LoginMethodSel, {make<LoginMethodSelWt>, {}});
    ScreenTable::enterTip({makeTip, setTipStrength});
}

} // namespace kelvra_login
