#pragma once

#include <QObject>
#include <QTimer>

namespace kelvra_login {

/**
 * The context of what is to happen on signals, after delays and on answers: nothing of it happens once this object
 * is gone. Whoever binds a handler to it owns it and what the handler uses.
 */
class Handlers : public QObject
{
public:
    /** Calls `slot` of `receiver` on every `signal`. */
    template <typename Sender, typename Signal, typename Receiver, typename Owner, typename... Arguments>
    void connect(const Sender *sender, Signal signal, Receiver *receiver, void (Owner::*slot)(Arguments...))
    {
        connect(sender, signal, [receiver, slot](Arguments... arguments) { (receiver->*slot)(arguments...); });
    }

    template <typename Sender, typename Signal, typename Handler>
    void connect(const Sender *sender, Signal signal, const Handler &handler)
    {
        QObject::connect(sender, signal, this, handler);
    }

    /** Calls `handler` once. */
    template <typename Handler>
    void after(int milliseconds, const Handler &handler)
    {
        QTimer::singleShot(milliseconds, this, handler);
    }
};

} // namespace kelvra_login
