#pragma once

#include <QString>

namespace kelvra_client {

/** Where the client speaks to whoever started it from a command line. */
class Console
{
public:
    Console() = delete;

    /** A text on standard output. */
    static void print(const QString &text);

    /** A sentence on standard error, behind the name of the program. */
    static void complain(const QString &sentence);
};

} // namespace kelvra_client
