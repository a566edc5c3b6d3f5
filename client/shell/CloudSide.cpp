#include "client/shell/CloudSide.h"

#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/shell/PhonePlace.h"
#include "client/shell/PhoneWindow.h"
#include "host/ZCommon/MoveableDialog.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_worker/Customization.h"

#include <QApplication>

using kelvra_data::Store;
using kelvra_data::UserData;
using kelvra_saas::CloudSimulation;
using kelvra_saas::SaasSetup;

namespace kelvra_client {

namespace {

const QByteArray tokenPlace = QByteArrayLiteral("cloud token");

QWidget *loginDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<ZCOMMON::MoveableDialog *>(widget))
            return widget;
    }
    return nullptr;
}

} // namespace

CloudSide::CloudSide(QObject *parent)
    : QObject(parent)
{
}

CloudSide::~CloudSide()
{
    place.reset();
    phone.reset();
    SaasSetup::close();
}

void CloudSide::open(const QString &folder)
{
    SaasSetup::setSealing(
        [](const QString &text) { return Store::_instance().seal(text, tokenPlace); },
        [](const QByteArray &sealed, QString *text) { return Store::_instance().unseal(sealed, tokenPlace, text); });
    SaasSetup::setDataFolder(folder);
}

bool CloudSide::isEnabled()
{
    return kelvra_worker::Customization::_instance().getCustomizeInfo().cloudLoginEnabled;
}

// Of those who are no ordinary users there is one local superuser; the others are accounts.
bool CloudSide::isAccount(const QString &name)
{
    auto &userData = UserData::_instance();
    return userData.isSuperUser(name) && userData.getSuperUserInfo(name).userName != name;
}

bool CloudSide::isAutoLoginStored()
{
    const QString account = kelvra_saas::LoginWorker::_instance().getRecentlyLoggedInAccount();
    return UserData::_instance().isUserAutoLogin(account) && SaasSetup::isAutoLoginStored(account);
}

void CloudSide::settleAutoLogin(const QString &account)
{
    if (!UserData::_instance().isUserAutoLogin(account))
        kelvra_saas::LoginWorker::_instance().cancelAccountAutoLogin(account);
}

bool CloudSide::hasPhone() const
{
    return isEnabled() && SaasSetup::simulation();
}

PhonePlace *CloudSide::preparedPhone()
{
    if (!phone && hasPhone()) {
        CloudSimulation *cloud = SaasSetup::simulation();
        phone = std::make_unique<PhoneWindow>(*cloud);
        place = std::make_unique<PhonePlace>(*phone);
        connect(cloud, &CloudSimulation::signalMessageArrived, this, &CloudSide::arrive);
        connect(cloud, &CloudSimulation::signalCodeChanged, this, [this, cloud] {
            const QString code = cloud->codeOnShow().id;
            if (code.isEmpty() || code == lastCode)
                return;
            lastCode = code;
            arrive();
        });
    }
    return place.get();
}

void CloudSide::showPhone()
{
    if (PhonePlace *prepared = preparedPhone())
        prepared->open();
}

void CloudSide::accompanyLogin()
{
    // The phone may have been opened on its own meanwhile, where the login comes now.
    if (!loginOpen && place)
        place->leave();
    loginOpen = true;
    comeBack();
}

void CloudSide::comeBack()
{
    QWidget *dialog = loginDialog();
    if (!loginOpen || !phoneKept || !dialog)
        return;
    if (PhonePlace *prepared = preparedPhone())
        prepared->accompany(dialog);
}

void CloudSide::arrive()
{
    comeBack();
    place->announce();
}

void CloudSide::leaveLogin()
{
    loginOpen = false;
    if (place)
        place->leave();
}

} // namespace kelvra_client
