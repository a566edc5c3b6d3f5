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

/** Where the user is at work; a window that only keeps others company is no place for an alert. */
QWidget *placeForAlert()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    QWidget *active = QApplication::activeWindow();
    return active && active->windowType() != Qt::Tool ? active : nullptr;
}

} // namespace

SystemAssistant::SystemAssistant() = default;

SystemAssistant::~SystemAssistant() = default;

void SystemAssistant::messageAlert(const QString &title, const QString &text)
{
    AlertBox::ask(placeForAlert(), iconFor(title), title, text);
}

} // namespace kelvra_worker
