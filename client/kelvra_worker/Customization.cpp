#include "host/kelvra_worker/Customization.h"

#include "client/kelvra_worker/CustomizeFile.h"
#include "client/kelvra_worker/WorkerSetup.h"

#include <QDir>

ZSINGLETON_DEFINE(kelvra_worker::Customization)

namespace kelvra_worker {

namespace {

const QString fileName = QStringLiteral("customize.ini");

CustomizeInfo load()
{
    const QString &folder = WorkerSetup::dataFolder();
    return folder.isEmpty() ? CustomizeInfo() : CustomizeFile(QDir(folder).filePath(fileName)).read();
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
