#include "host/kelvra_worker/SystemAssistant.h"

#include "client/kelvra_base/AlertBox.h"
#include "host/kelvra_worker/DictDef.h"

#include <QApplication>

#include <algorithm>

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

/** Alerts belong to no tool window, such as the phone. */
bool canHaveAlert(const QWidget *window)
{
    return window && window->isVisible() && (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
}

/** Where the user is at work. No window may be active yet, as the client starts, or the phone may be. */
QWidget *placeForAlert()
{
    QList<QWidget *> windows{QApplication::activeModalWidget(), QApplication::activeWindow()};
    windows += QApplication::topLevelWidgets();
    const auto place = std::find_if(windows.cbegin(), windows.cend(), canHaveAlert);
    return place != windows.cend() ? *place : nullptr;
}

} // namespace

SystemAssistant::SystemAssistant() = default;

SystemAssistant::~SystemAssistant() = default;

void SystemAssistant::messageAlert(const QString &title, const QString &text)
{
    AlertBox::ask(placeForAlert(), iconFor(title), title, text);
}

} // namespace kelvra_worker
