#pragma once

#include <QObject>
#include <QString>

class QTimer;

namespace kelvra_login {

/**
 * A secret's stay on the clipboard: it is taken off again after a minute, when this object goes and when the program
 * quits, unless something else has been copied by then.
 */
class SecretCopy : public QObject
{
    Q_OBJECT

public:
    explicit SecretCopy(QObject *parent);
    ~SecretCopy() override;

    /** Puts `text` on the clipboard; the minute begins anew. */
    void put(const QString &text);
    /** Takes off what put() has put there. */
    void takeOff();

private:
    QTimer *const lifetime;
    QString secret;
};

} // namespace kelvra_login
