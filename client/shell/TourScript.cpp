#include "client/shell/TourScript.h"

#include "client/shell/TourCloud.h"
#include "client/shell/TourGesture.h"
#include "client/shell/TourLocalUser.h"
#include "client/shell/TourSuperUser.h"

namespace kelvra_client {

QVector<TourStage> TourScript::stages()
{
    return TourLocalUser::stages() + TourSuperUser::stages() + TourGesture::stages() + TourCloud::stages();
}

} // namespace kelvra_client
