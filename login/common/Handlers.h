#pragma once

#include <QObject>
#include <QTimer>

#include <limits>

namespace kelvra_login {

/**
 * The context of what is to happen on signals, after delays and on answers: nothing of it happens once this object
 * is gone. Whoever owns it owns what the handlers use.
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

    /** Calls `handler` once, after a delay of any length: what a timer cannot take in one go, it takes in several. */
    template <typename Handler>
    void after(qint64 milliseconds, const Handler &handler)
    {
        constexpr int longest = std::numeric_limits<int>::max();
        if (milliseconds <= longest)
            QTimer::singleShot(static_cast<int>(milliseconds), this, handler);
        else
            QTimer::singleShot(longest, this, [=] { after(milliseconds - longest, handler); });
    }
};

} // namespace kelvra_login
