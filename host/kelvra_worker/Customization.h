#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_worker/CustomizeInfo.h"

namespace kelvra_worker {
class Customization;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::Customization)

namespace kelvra_worker {

/** Access to the customisation of this delivery. */
class KELVRA_WORKER_EXPORT Customization : public ZCOMMON::ZSingleton<Customization>
{
public:
    /** The record in force; it does not change while the client runs. */
    const CustomizeInfo &getCustomizeInfo() const;

private:
    friend class ZCOMMON::ZSingleton<Customization>;
    Customization();
    ~Customization();
};

} // namespace kelvra_worker
