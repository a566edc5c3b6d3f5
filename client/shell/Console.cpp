#include "client/shell/Console.h"

#include <cstdio>

#ifdef Q_OS_WIN
#    include <qt_windows.h>
#endif

namespace kelvra_client {

namespace {

#ifdef Q_OS_WIN
/** A program with windows has no output unless it is redirected: it borrows the console that it was started from. */
bool writeToStarter(DWORD channel, const QString &text)
{
    const HANDLE own = GetStdHandle(channel);
    const bool redirected = own && own != INVALID_HANDLE_VALUE && GetFileType(own) != FILE_TYPE_UNKNOWN;
    if (redirected || !AttachConsole(ATTACH_PARENT_PROCESS))
        return false;
    const HANDLE console = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                       nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD written = 0;
    const bool done = console != INVALID_HANDLE_VALUE &&
                      WriteConsoleW(console, text.utf16(), DWORD(text.size()), &written, nullptr) != 0;
    if (console != INVALID_HANDLE_VALUE)
        CloseHandle(console);
    FreeConsole();
    return done;
}
#endif

} // namespace

void Console::print(const QString &text)
{
#ifdef Q_OS_WIN
    if (writeToStarter(STD_OUTPUT_HANDLE, text + QStringLiteral("\r\n")))
        return;
#endif
    std::fprintf(stdout, "%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

void Console::complain(const QString &sentence)
{
#ifdef Q_OS_WIN
    if (writeToStarter(STD_ERROR_HANDLE, QStringLiteral("kelvra_client: %1\r\n").arg(sentence)))
        return;
#endif
    std::fprintf(stderr, "kelvra_client: %s\n", qUtf8Printable(sentence));
}

} // namespace kelvra_client
