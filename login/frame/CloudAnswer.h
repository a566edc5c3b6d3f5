#pragma once

#include "host/kelvra_saas/Response.h"
#include "login/common/Handlers.h"

#include <QPointer>
#include <QUuid>

#include <memory>
#include <utility>

/**
 * @file
 * Callbacks for the cloud library: its answers may come late, twice, or after whoever asked has gone.
 */

namespace kelvra_login {

inline QString newRequestId()
{
    return QUuid::createUuid().toString();
}

/** A callback that hands the first answer, whatever its request id, to `handler` if `handlers` still live. */
template <typename Handler>
auto firstAnswer(Handlers &handlers, const Handler &handler)
{
    const QPointer<Handlers> context(&handlers);
    // The callback is copied as it travels; its copies share the flag.
    const auto answered = std::make_shared<bool>(false);
    return [context, answered, handler](const kelvra_saas::Response &response, const auto &...rest) {
        if (context && !std::exchange(*answered, true))
            handler(response, rest...);
    };
}

/** As firstAnswer, for the answer to `requestId`: others are dropped. */
template <typename Handler>
auto answerTo(const QString &requestId, Handlers &handlers, const Handler &handler)
{
    const auto take = firstAnswer(handlers, handler);
    return [requestId, take](const kelvra_saas::Response &response, const auto &...rest) {
        if (response.requestId == requestId)
            take(response, rest...);
    };
}

} // namespace kelvra_login
