#pragma once

namespace kelvra_worker {

/** Id of an interface language. The ids are the host's; their names come from SysLanguage::getLanguageNames. */
enum Language : int {};

} // namespace kelvra_worker
