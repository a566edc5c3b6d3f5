#include "client/shell/Console.h"

#include <cstdio>

namespace kelvra_client {

void Console::print(const QString &text)
{
    std::fprintf(stdout, "%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

void Console::complain(const QString &sentence)
{
    std::fprintf(stderr, "kelvra_client: %s\n", qUtf8Printable(sentence));
}

} // namespace kelvra_client
