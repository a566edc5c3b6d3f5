#include "login/frame/Screens.h"

#include "login/local/NormalLoginWt.h"
#include "login/local/ScreenTable.h"
#include "login/superuser/LoginMethodSelWt.h"

namespace kelvra_login {

namespace {

template <typename Screen>
QWidget *make(const QStringList &, QWidget *parent)
{
    return new Screen(parent);
}

} // namespace

void enterScreens()
{
    ScreenTable::enter(NormalLogin, {make<NormalLoginWt>, {}});
    ScreenTable::enter(LoginMethodSel, {make<LoginMethodSelWt>, {}});
}

} // namespace kelvra_login
