#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QObject>
#include <QString>

namespace kelvra_contact {
class SystemMsg;
}

ZSINGLETON_DECLARE(KELVRA_CONTACT_EXPORT, kelvra_contact::SystemMsg)

namespace kelvra_contact {

/** Client-wide signals. Anybody may emit them and listen to them, on the GUI thread. */
class KELVRA_CONTACT_EXPORT SystemMsg : public QObject, public ZCOMMON::ZSingleton<SystemMsg>
{
    Q_OBJECT

signals:
    /** From the module: a user is logged in and the splash screen stands; the shell begins to load. */
    void signalLoginSuccess();

    /** Loading stands at `progress` percent: 50 from the module at first, then the shell's reports up to 100. */
    void signalSystemInitProgress(int progress);

    /** From the module: loading has reached 100 on the splash screen, which has just been hidden. */
    void signalSystemInitFinished();

    /** From the module: the user quits. What must be stored is stored now. */
    void signalPrepareQuitSystem();

    /** From the module, right after signalPrepareQuitSystem: the shell ends the client. */
    void signalQuitSystem();

    /** From the host: it cannot go on; the module shows `message`, unless it is empty, and quits. */
    void signalDgwAbnormal(const QString &message);

    /** From the host: the user has started the client again; the login dialog comes to the front. */
    void signalClientRepeatedStart();

private:
    friend class ZCOMMON::ZSingleton<SystemMsg>;
    SystemMsg();
    ~SystemMsg() override;
};

} // namespace kelvra_contact
