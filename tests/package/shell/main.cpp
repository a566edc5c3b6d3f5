#include "login/frame/LoginAccess.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    return kelvra_login::LoginAccess::_instance().isCurUserConfigureGesture() ? 1 : 0;
}
