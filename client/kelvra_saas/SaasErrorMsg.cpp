#include "host/kelvra_saas/SaasErrorMsg.h"

#include "client/kelvra_saas/ResultCodes.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace kelvra_saas {

namespace {

struct Text
{
    int code;
    const char *source; ///< %1: the second code
};

constexpr const char *lockedText =
    QT_TRANSLATE_NOOP("kelvra_saas", "The account is locked; minutes until it is unlocked: %1");

constexpr Text texts[] = {
    {invalidNumberCode, QT_TRANSLATE_NOOP("kelvra_saas", "The mobile phone number is not valid")},
    {noAnswerCode, QT_TRANSLATE_NOOP("kelvra_saas", "The cloud service does not answer; check the network connection")},
    {accountsUnusableCode,
     QT_TRANSLATE_NOOP("kelvra_saas", "The simulated cloud cannot use its file cloud_accounts.ini; correct the file "
                                      "or delete it")},
    {unknownAccountCode, QT_TRANSLATE_NOOP("kelvra_saas", "There is no account with this mobile phone number")},
    {lockedOrInvalidCode, lockedText},
    {lockedCode, lockedText},
    {wrongSmsCode, QT_TRANSLATE_NOOP("kelvra_saas", "The verification code is wrong; attempts left: %1")},
    {noSmsCode, QT_TRANSLATE_NOOP("kelvra_saas", "The verification code is no longer valid; get a new one")},
    {codeNotConfirmedCode, QT_TRANSLATE_NOOP("kelvra_saas", "The login has not been confirmed on the phone")},
    {codeInvalidCode, QT_TRANSLATE_NOOP("kelvra_saas", "The QR code is no longer valid")},
    {noScanCode, QT_TRANSLATE_NOOP("kelvra_saas", "No account has logged in by QR code")},
    {nothingStoredCode, QT_TRANSLATE_NOOP("kelvra_saas", "No automatic login is stored for this account")},
    {tokenInvalidCode, QT_TRANSLATE_NOOP("kelvra_saas", "The stored login is no longer valid; log in once more")},
    {insecureTerminalCode,
     QT_TRANSLATE_NOOP("kelvra_saas", "This computer is new to the account; log in by verification code or QR code")},
    {wrongPasswordCode, QT_TRANSLATE_NOOP("kelvra_saas", "The password is wrong; attempts left: %1")},
};

QString translated(const char *source)
{
    return QCoreApplication::translate("kelvra_saas", source);
}

} // namespace

QString saasErrorMsg(int code, int subCode)
{
    if (code == lockedOrInvalidCode && subCode == 0)
        return saasErrorMsg(unknownAccountCode, 0);
    const auto known =
        std::find_if(std::begin(texts), std::end(texts), [&](const Text &text) { return text.code == code; });
    if (known == std::end(texts))
        return translated(QT_TRANSLATE_NOOP("kelvra_saas", "The cloud service has refused the request (code %1, %2)"))
            .arg(code)
            .arg(subCode);
    // Replaced, since arg() complains where there is nothing to fill in.
    return translated(known->source).replace(QLatin1String("%1"), QString::number(subCode));
}

} // namespace kelvra_saas
