#pragma once

#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "host/kelvra_worker/Customization.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemAssistant.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginInit.h"
#include "login/frame/LoginSignals.h"

#include <QVector>

/** The address of every singleton as the code that includes this header sees it. */
inline QVector<const void *> singletonAddresses()
{
    return {&kelvra_contact::SystemMsg::_instance(),      &kelvra_data::UserData::_instance(),
            &kelvra_saas::LoginWorker::_instance(),       &kelvra_saas::SaasWorker::_instance(),
            &kelvra_worker::Customization::_instance(),   &kelvra_worker::DictDef::_instance(),
            &kelvra_worker::LoginLogs::_instance(),       &kelvra_worker::SysLanguage::_instance(),
            &kelvra_worker::SystemAssistant::_instance(), &kelvra_worker::SystemWorker::_instance(),
            &kelvra_worker::UiSettings::_instance(),      &kelvra_login::LoginAccess::_instance(),
            &kelvra_login::LoginInit::_instance(),        &kelvra_login::LoginSignals::_instance()};
}
