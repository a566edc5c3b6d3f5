#include "client/shell/PasswordInput.h"

#include <QTextCodec>

#include <array>
#include <cstdio>

#ifdef Q_OS_UNIX
#    include <termios.h>
#    include <unistd.h>
#endif

namespace kelvra_client {

namespace {

constexpr std::size_t maxBytes = 1024; // four for each of the 256 characters that a password may have

/** Room for a password that is wiped when it goes. */
struct Buffer
{
    Buffer() = default;
    Buffer(const Buffer &) = delete;
    Buffer &operator=(const Buffer &) = delete;
    ~Buffer()
    {
        // Volatile: nobody reads the bytes any more, so the writing would be left out.
        for (volatile char &byte : bytes)
            byte = '\0';
    }

    std::array<char, maxBytes + 1> bytes = {}; ///< one more, to tell that it is too long
    std::size_t size = 0;
};

/** Keeps a terminal from showing what is typed. */
class QuietTerminal
{
public:
#ifdef Q_OS_UNIX
    QuietTerminal()
    {
        if (!isatty(STDIN_FILENO) || tcgetattr(STDIN_FILENO, &before) != 0)
            return;
        std::fputs("Password: ", stderr);
        termios quiet = before;
        quiet.c_lflag &= ~tcflag_t(ECHO);
        changed = tcsetattr(STDIN_FILENO, TCSAFLUSH, &quiet) == 0;
    }
    ~QuietTerminal()
    {
        if (!changed)
            return;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        std::fputs("\n", stderr);
    }
    QuietTerminal(const QuietTerminal &) = delete;
    QuietTerminal &operator=(const QuietTerminal &) = delete;

private:
    termios before = {};
    bool changed = false;
#endif
};

void readLine(Buffer *buffer)
{
    // No copy in a buffer of the library's.
    std::setvbuf(stdin, nullptr, _IONBF, 0);
    for (int byte = std::fgetc(stdin); byte != EOF && byte != '\n'; byte = std::fgetc(stdin)) {
        if (buffer->size == buffer->bytes.size())
            return;
        buffer->bytes[buffer->size++] = char(byte);
    }
}

} // namespace

std::optional<QString> PasswordInput::read(QString *error)
{
    Buffer buffer;
    {
        [[maybe_unused]] const QuietTerminal terminal;
        readLine(&buffer);
    }
    if (buffer.size == 0) {
        *error = QStringLiteral("'--user' needs the password on standard input, which holds none.");
        return std::nullopt;
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString password = QTextCodec::codecForName("UTF-8")->toUnicode(buffer.bytes.data(), int(buffer.size), &state);
    if (buffer.size > maxBytes || state.invalidChars > 0 || state.remainingChars > 0) {
        password.fill(QChar());
        *error = QStringLiteral("The password on standard input is too long or not in UTF-8.");
        return std::nullopt;
    }
    return password;
}

} // namespace kelvra_client
