#include "FirstPaint.h"

#include <QCoreApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int settleMs = 1000; // until the memory is looked at
constexpr double nsPerMs = 1e6;

int residentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray key("VmRSS:");
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf(key) + key.size()).trimmed().split(' ').first().toInt();
}

} // namespace

/**
 * Prints when the first window of a login's size is painted and what memory the program holds a second later, then
 * ends it. Goes into any Qt program, unchanged: QT_QPA_GENERIC_PLUGINS=watch.
 */
class StartWatch : public QObject
{
    Q_OBJECT

public:
    StartWatch() { connect(&firstPaint, &FirstPaint::signalPainted, this, &StartWatch::report); }

private:
    void report()
    {
        const QByteArray name = qgetenv("BENCH_SUBJECT");
        const qint64 startNs = qEnvironmentVariable("BENCH_START_NS").toLongLong();
        std::printf("startup_%s_ms %.2f\n", name.data(), double(firstPaint.paintedAt() - startNs) / nsPerMs);
        QTimer::singleShot(settleMs, this, [name] {
            std::printf("memory_%s_kb %d\n", name.data(), residentKb());
            std::fflush(stdout);
            QCoreApplication::quit();
        });
    }

    FirstPaint firstPaint;
};

class WatchPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "watch.json")

public:
    QObject *create(const QString &name, const QString &) override
    {
        return name == QLatin1String("watch") ? new StartWatch : nullptr; // the application's
    }
};

#include "WatchPlugin.moc"
