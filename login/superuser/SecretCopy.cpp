#include "login/superuser/SecretCopy.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>

#include <utility>

namespace kelvra_login {

namespace {

constexpr int lifetimeMs = 60'000;

// What keeps managers of the clipboard, its history and its synchronisation from storing a text.
void markAsSecret(QMimeData *data)
{
#ifdef Q_OS_WIN
    const QByteArray no(sizeof(quint32), '\0');
    for (const char *format :
         {"ExcludeClipboardContentFromMonitorProcessing", "CanIncludeInClipboardHistory", "CanUploadToCloudClipboard"})
        data->setData(QStringLiteral("application/x-qt-windows-mime;value=\"%1\"").arg(QLatin1String(format)), no);
#else
    data->setData(QStringLiteral("x-kde-passwordManagerHint"), QByteArrayLiteral("secret"));
#endif
}

} // namespace

SecretCopy::SecretCopy(QObject *parent)
    : QObject(parent)
    , lifetime(new QTimer(this))
{
    lifetime->setSingleShot(true);
    // A coarse timer may be three seconds late.
    lifetime->setTimerType(Qt::PreciseTimer);
    lifetime->setInterval(lifetimeMs);
    connect(lifetime, &QTimer::timeout, this, &SecretCopy::takeOff);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &SecretCopy::takeOff);
}

SecretCopy::~SecretCopy()
{
    takeOff();
}

void SecretCopy::put(const QString &text)
{
    secret = text;
    auto *data = new QMimeData;
    data->setText(text);
    markAsSecret(data);
    QGuiApplication::clipboard()->setMimeData(data);
    lifetime->start();
}

void SecretCopy::takeOff()
{
    lifetime->stop();
    const QString put = std::exchange(secret, {});
    if (!put.isEmpty() && QGuiApplication::clipboard()->text() == put)
        QGuiApplication::clipboard()->clear();
}

} // namespace kelvra_login
