#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace {

constexpr int quitDelayMs = 50; // lets the program reach its event loop
constexpr qint64 nsPerMs = 1000000;

} // namespace

/** Waits for the first paint of a window of a login's size, prints the time since the start, ends the program. */
class FirstPaintWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Not the window itself: one that its children cover is not painted.
        auto *widget = qobject_cast<QWidget *>(watched);
        if (!painted && event->type() == QEvent::Paint && widget && widget->window()->width() >= loginWidth) {
            painted = true;
            // The next turn: the window with its children has been painted and flushed by then.
            QTimer::singleShot(0, this, &FirstPaintWatch::report);
        }
        return false;
    }

private:
    void report()
    {
        const qint64 startNs = qEnvironmentVariable("FIRST_PAINT_START_NS").toLongLong();
        const qint64 nowMs = QDateTime::currentMSecsSinceEpoch();
        std::printf("%lld\n", static_cast<long long>(nowMs - startNs / nsPerMs));
        std::fflush(stdout);
        QTimer::singleShot(quitDelayMs, qApp, &QCoreApplication::quit);
    }

    static constexpr int loginWidth = 860;
    bool painted = false;
};

/** Lets the watch into any Qt program, unchanged: QT_QPA_GENERIC_PLUGINS=firstpaint. */
class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject *create(const QString &name, const QString &) override
    {
        if (name != QLatin1String("firstpaint"))
            return nullptr;
        auto *watch = new FirstPaintWatch; // owned by the application
        qApp->installEventFilter(watch);
        return watch;
    }
};

#include "FirstPaintPlugin.moc"
