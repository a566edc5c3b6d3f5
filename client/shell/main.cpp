#include "client/shell/ClientShell.h"
#include "client/shell/Console.h"
#include "client/shell/DisplayWatch.h"
#include "client/shell/ExitCode.h"
#include "client/shell/StartOptions.h"
#include "client/shell/Tour.h"
#include "client/shell/TourDriver.h"

#include <QApplication>

#include <memory>

using namespace kelvra_client;

namespace {

void describeApplication()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#ifdef Q_OS_WIN
    // A screen at 125 or 150 % is served as it is. On X11 the dots per inch often only measure the glass, and a
    // factor of 1.04 would blur for nothing: there broken factors are asked for with QT_SCALE_FACTOR.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    QCoreApplication::setAttribute(Qt::AA_DisableWindowContextHelpButton);
    QCoreApplication::setOrganizationName(QStringLiteral("kelvra"));
    QCoreApplication::setApplicationName(QStringLiteral("kelvra_client"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELVRA_VERSION));
    qSetMessagePattern(QStringLiteral("%{appname}: %{if-category}%{category}: %{endif}%{message}"));
}

/** Exit code where the options leave nothing to run. */
std::optional<int> readOptions(int argc, char *argv[], StartOptions *options)
{
    // Decodes the command line as the platform does, and needs no display.
    const QCoreApplication application(argc, argv);
    QString error;
    const std::optional<StartOptions> parsed = StartOptions::parse(QCoreApplication::arguments(), &error);
    if (!parsed) {
        Console::complain(error);
        return ExitWrongUse;
    }
    *options = *parsed;
    if (!options->help && !options->version)
        return std::nullopt;
    Console::print(options->help ? StartOptions::helpText()
                                 : QStringLiteral("kelvra_client ") + QCoreApplication::applicationVersion());
    return ExitDone;
}

/** Nothing here is drawn with OpenGL, and on X11 loading it takes a third of the time until the login stands. */
void spareOpenGl()
{
    constexpr char variable[] = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, "none");
}

} // namespace

int main(int argc, char *argv[])
{
    describeApplication();
    StartOptions options;
    if (const std::optional<int> exitCode = readOptions(argc, argv, &options))
        return *exitCode;
    const bool onTour = !options.tourFolder.isEmpty();
    if (onTour && !DisplayWatch::isDisplayNamed())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!DisplayWatch::isDisplayNamed())
        return DisplayWatch::complain();

    spareOpenGl();
    auto watch = std::make_unique<DisplayWatch>();
    QApplication application(argc, argv);
    watch.reset();
    if (onTour)
        return Tour(options.tourFolder).run();
    // Null unless this is a program that the tour has started to show it.
    const std::unique_ptr<TourDriver> driver = TourDriver::fromEnvironment();
    return ClientShell().run(options);
}
