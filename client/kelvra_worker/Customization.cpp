#include "host/kelvra_worker/Customization.h"

#include "client/kelvra_worker/CustomizeFile.h"
#include "client/kelvra_worker/WorkerSetup.h"

ZSINGLETON_DEFINE(kelvra_worker::Customization)

namespace kelvra_worker {

namespace {

CustomizeInfo load()
{
    CustomizeFile file(WorkerSetup::customizeFilePath());
    QString error;
    if (!WorkerSetup::dataFolder().isEmpty() && !file.read(&error))
        qWarning("%s", qUtf8Printable(error)); // the shell does not come this far with such a file
    return file.info();
}

} // namespace

Customization::Customization() = default;

Customization::~Customization() = default;

const CustomizeInfo &Customization::getCustomizeInfo() const
{
    static const CustomizeInfo info = load();
    return info;
}

} // namespace kelvra_worker
