#pragma once

namespace kelvra_saas {

// Response::code of calls that failed, beside successCode. The second code is 0 unless it says otherwise.
constexpr int invalidNumberCode = 1001;    ///< no phone number, or none with an account
constexpr int malformedRequestCode = 1002; ///< nothing that the service knows
constexpr int noAnswerCode = 1101;         ///< the client's own: the call has run into its time-out
constexpr int accountsUnusableCode = 1102; ///< the simulation cannot read its file of accounts
constexpr int unknownAccountCode = 2202;   ///< password or automatic login: no such account
constexpr int lockedOrInvalidCode = 2203;  ///< locked, with minutes left as second code; by SMS code: no such account
constexpr int lockedCode = 2204;           ///< not by password: locked; second code: minutes left
constexpr int wrongSmsCode = 2205;         ///< second code: attempts left
constexpr int noSmsCode = 2206;            ///< none has been sent, or it has expired or been used
constexpr int codeNotConfirmedCode = 2211; ///< QR login: the phone has not confirmed it
constexpr int codeInvalidCode = 2212;      ///< QR login: the code has expired or is not this terminal's
constexpr int noScanCode = 2213;        ///< no QR login completed on this terminal, or its account has been asked for
constexpr int nothingStoredCode = 2221; ///< the client's own: no automatic login is stored for the account
constexpr int tokenInvalidCode = 2222;  ///< the stored automatic login does not hold any more
constexpr int insecureTerminalCode = 2229; ///< first to log in here by SMS or QR code, then by password
constexpr int wrongPasswordCode = 2231;    ///< second code: attempts left

} // namespace kelvra_saas
