#include "client/kelvra_saas/CloudService.h"

namespace kelvra_saas {

CloudService::~CloudService() = default;

} // namespace kelvra_saas
