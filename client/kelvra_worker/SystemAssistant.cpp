#include "host/kelvra_worker/SystemAssistant.h"

#include "client/kelvra_base/AlertBox.h"
#include "host/kelvra_worker/DictDef.h"

#include <QApplication>

using kelvra_base::AlertBox;

ZSINGLETON_DEFINE(kelvra_worker::SystemAssistant)

namespace kelvra_worker {

namespace {

AlertBox::Icon iconFor(const QString &title)
{
    const DictDef &dictionary = DictDef::_instance();
    if (title == dictionary.alertTitle(DictDef::OperationFailedTitle))
        return AlertBox::Error;
    return title == dictionary.alertTitle(DictDef::InformationTitle) ? AlertBox::Information : AlertBox::Warning;
}

} // namespace

SystemAssistant::SystemAssistant() = default;

SystemAssistant::~SystemAssistant() = default;

void SystemAssistant::messageAlert(const QString &title, const QString &text)
{
    QWidget *const modal = QApplication::activeModalWidget();
    AlertBox::ask(modal ? modal : QApplication::activeWindow(), iconFor(title), title, text);
}

} // namespace kelvra_worker
