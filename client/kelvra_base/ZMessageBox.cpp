#include "host/kelvra_base/ZMessageBox.h"

#include "client/kelvra_base/AlertBox.h"

#include <QGuiApplication>

namespace kelvra_base {

namespace {

constexpr int unansweredSeconds = 30;

} // namespace

MessageBoxButton ZMessageBox::warning(QWidget *parent, const QString &text, int buttons, bool flag)
{
    return AlertBox::ask(parent, AlertBox::Warning, QGuiApplication::applicationDisplayName(), text, buttons,
                         flag ? unansweredSeconds : 0);
}

} // namespace kelvra_base
