#include "login/local/ScreenTable.h"

#include <QMap>

namespace kelvra_login {

namespace {

QMap<int, ScreenTable::Screen> &screens()
{
    static QMap<int, ScreenTable::Screen> table;
    return table;
}

ScreenTable::Tip &tipEntry()
{
    static ScreenTable::Tip tip;
    return tip;
}

} // namespace

void ScreenTable::enter(LoginEvent event, const Screen &screen)
{
    screens().insert(event, screen);
}

void ScreenTable::enterTip(const Tip &tip)
{
    tipEntry() = tip;
}

const ScreenTable::Screen *ScreenTable::find(LoginEvent event)
{
    const auto entry = screens().constFind(event);
    return entry == screens().constEnd() ? nullptr : &*entry;
}

const ScreenTable::Tip *ScreenTable::findTip()
{
    return tipEntry().create ? &tipEntry() : nullptr;
}

} // namespace kelvra_login
