#include "client/kelvra_worker/FailureNotice.h"

#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/SystemAssistant.h"

#include <QApplication>
#include <QTimer>

namespace kelvra_worker {

void FailureNotice::show(const QString &sentence)
{
    qWarning("%s", qUtf8Printable(sentence));
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    QTimer::singleShot(0, qApp, [sentence] {
        const QString title = DictDef::_instance().alertTitle(DictDef::OperationFailedTitle);
        SystemAssistant::_instance().messageAlert(title, sentence);
    });
}

} // namespace kelvra_worker
