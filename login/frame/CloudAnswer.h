#pragma once

#include "host/kelvra_saas/Response.h"

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

/** A callback that hands the first answer, whatever its request id, to `handler` if `asker` still lives. */
template <typename Asker, typename Handler>
auto firstAnswer(Asker *asker, const Handler &handler)
{
    const QPointer<Asker> self(asker);
    // The callback is copied as it travels; its copies share the flag.
    const auto answered = std::make_shared<bool>(false);
    return [self, answered, handler](const kelvra_saas::Response &response, const auto &...rest) {
        if (self && !std::exchange(*answered, true))
            handler(response, rest...);
    };
}

/** As firstAnswer, for the answer to `requestId`: others are dropped. */
template <typename Asker, typename Handler>
auto answerTo(const QString &requestId, Asker *asker, const Handler &handler)
{
    return [requestId, take = firstAnswer(asker, handler)](const kelvra_saas::Response &response, const auto &...rest) {
        if (response.requestId == requestId)
            take(response, rest...);
    };
}

} // namespace kelvra_login
