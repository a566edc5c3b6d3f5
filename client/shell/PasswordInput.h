#pragma once

#include <QString>

#include <optional>

namespace kelvra_client {

/** A password that arrives on standard input, where neither a list of processes nor a shell's history shows it. */
class PasswordInput
{
public:
    PasswordInput() = delete;

    /**
     * Waits for standard input up to the first line break, or its end. A terminal shows nothing of it. Without a
     * value `error` holds a sentence for the user: nothing came, too much, or no UTF-8.
     */
    static std::optional<QString> read(QString *error);
};

} // namespace kelvra_client
