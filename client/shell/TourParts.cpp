#include "client/shell/TourParts.h"

#include "client/kelvra_worker/WorkerSetup.h"
#include "client/shell/TourDriver.h"

#include <QDir>
#include <QRegularExpression>

namespace kelvra_client::tour {

TourStep step(const QString &did, const Acts &acts, const QString &lookAt, const Check &check, const QString &picture,
              int holdsMs)
{
    return {did, acts, lookAt, check, picture, holdsMs};
}

TourStep quit(const QString &did, const Acts &acts)
{
    return {did, acts, {}, {}, {}, 0};
}

Acts click(const QString &path)
{
    return {[path](TourDriver &driver) { driver.input().click(path); }};
}

Acts moveTo(const QString &path)
{
    return {[path](TourDriver &driver) { driver.input().moveTo(path); }};
}

Acts draw(const QString &gesture)
{
    return {[gesture](TourDriver &driver) { driver.input().draw(QStringLiteral("gesturePanel"), gesture); }};
}

Acts makeRoom(const QString &path)
{
    return {[path](TourDriver &driver) { driver.input().shift(path, QPoint(-90, 0)); }};
}

Acts minimize(const QString &path)
{
    return {[path](TourDriver &driver) { driver.input().minimize(path); }};
}

Acts press(int key, Qt::KeyboardModifiers modifiers)
{
    return {[key, modifiers](TourDriver &driver) { driver.input().press(key, modifiers); }};
}

Acts fill(const QString &path, const QString &text)
{
    return click(path) + press(Qt::Key_A, Qt::ControlModifier) + press(Qt::Key_Delete) +
           Acts{[text](TourDriver &driver) { driver.input().type(text); }};
}

Acts chooseFile(const QString &name)
{
    // The data folder is known only to the program that the stage runs in.
    const TourStep::Act typePath = [name](TourDriver &driver) {
        const QDir dataFolder(kelvra_worker::WorkerSetup::dataFolder());
        driver.input().type(QDir::cleanPath(dataFolder.absoluteFilePath(QStringLiteral("../") + name)));
    };
    return fill(QStringLiteral("fileNameEdit"), QString()) + Acts{typePath} + press(Qt::Key_Return);
}

Acts startAgain()
{
    return {[](TourDriver &driver) { driver.startAgain(); }};
}

Check is(const QString &expected)
{
    return [expected](const QString &seen, const QString &) { return seen == expected; };
}

Check like(const QString &pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    return [expression](const QString &seen, const QString &) { return expression.match(seen).hasMatch(); };
}

bool changed(const QString &seen, const QString &before)
{
    return seen != before && !seen.contains(QLatin1String("not shown"));
}

QString formText(const QString &name, const QString &password)
{
    return QStringLiteral("name: %1, password: %2, button: Login").arg(name, password);
}

} // namespace kelvra_client::tour
