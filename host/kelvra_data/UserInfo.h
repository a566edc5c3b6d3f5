#pragma once

#include <QString>

namespace kelvra_data {

/** A user as the data library knows it. */
struct UserInfo
{
    QString name;        ///< empty when the user does not exist
    QString password;    ///< the stored password, in the clear; never written or logged by the module
    int attribute = 0;   ///< the host's own; handed to SystemWorker::setCurUserInfo unchanged
    QString displayName; ///< not read by the module
    QString remark;      ///< not read by the module
};

} // namespace kelvra_data
