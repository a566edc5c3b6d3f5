#pragma once

#include <QMetaType>

namespace ZCOMMON {

/** Grade of a new password. Any other value passes both rules, as the three named grades do. */
enum PwdStrength : int {
    PwdLengthIllegal = -1, ///< shorter or longer than the length rule allows
    PwdTooSimple = 0,      ///< length kept, but not enough kinds of characters
    PwdWeak = 1,           ///< both rules kept; what parts it from the next two is the host's
    PwdMedium = 2,         ///< as PwdWeak, and better
    PwdStrong = 3          ///< as PwdWeak, and best
};

} // namespace ZCOMMON

Q_DECLARE_METATYPE(ZCOMMON::PwdStrength)
