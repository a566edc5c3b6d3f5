#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QString>
#include <QVariant>

#include <memory>

namespace kelvra_worker {
class UiSettings;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::UiSettings)

namespace kelvra_worker {

/**
 * Persistent settings of the user interface.
 *
 * The module uses one key, "client_login_mode": 0 after a password or cloud login, 1 after a gesture login.
 */
class KELVRA_WORKER_EXPORT UiSettings : public ZCOMMON::ZSingleton<UiSettings>
{
public:
    /** The stored value, invalid when the key was never set. Its type may have become text on the way. */
    QVariant getValue(const QString &key) const;

    /** Stores the value so that the next run finds it. */
    void setValue(const QString &key, const QVariant &value);

private:
    friend class ZCOMMON::ZSingleton<UiSettings>;
    UiSettings();
    ~UiSettings();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_worker
