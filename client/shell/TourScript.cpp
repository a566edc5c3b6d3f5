#include "client/shell/TourScript.h"

#include "client/shell/TourLocalUser.h"
#include "client/shell/TourSuperUser.h"

namespace kelvra_client {

QVector<TourStage> TourScript::stages()
{
    return TourLocalUser::stages() + TourSuperUser::stages();
}

} // namespace kelvra_client
