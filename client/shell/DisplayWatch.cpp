#include "client/shell/DisplayWatch.h"

#include "client/shell/Console.h"
#include "client/shell/ExitCode.h"

#include <QString>

#include <cstdlib>
#include <cstring>

namespace kelvra_client {

namespace {

QtMessageHandler before = nullptr;

void endInsteadOfAborting(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg)
        std::_Exit(DisplayWatch::complain());
    // What the platform's search for itself tells beforehand would only stand before the sentence.
    const bool ofPlatform = (context.category && std::strncmp(context.category, "qt.qpa", 6) == 0) ||
                            message.startsWith(QLatin1String("QStandardPaths:"));
    if (!ofPlatform && before)
        before(type, context, message);
}

} // namespace

DisplayWatch::DisplayWatch()
{
    before = qInstallMessageHandler(endInsteadOfAborting);
}

DisplayWatch::~DisplayWatch()
{
    qInstallMessageHandler(before);
}

bool DisplayWatch::isDisplayNamed()
{
#ifdef Q_OS_LINUX
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

int DisplayWatch::complain()
{
    if (isDisplayNamed())
        Console::complain(QStringLiteral("The display that the environment names cannot be used (DISPLAY=%1, "
                                         "WAYLAND_DISPLAY=%2, QT_QPA_PLATFORM=%3).")
                              .arg(qEnvironmentVariable("DISPLAY"), qEnvironmentVariable("WAYLAND_DISPLAY"),
                                   qEnvironmentVariable("QT_QPA_PLATFORM")));
    else
        Console::complain(QStringLiteral("There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set."));
    return ExitCannotRun;
}

} // namespace kelvra_client
