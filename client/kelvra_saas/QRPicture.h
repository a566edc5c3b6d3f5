#pragma once

#include <QString>

namespace kelvra_saas {

/**
 * `content` as a QR code: a PNG picture in a data URI, black on white. It has 178 pixels a side where that leaves
 * room for whole pixels a module and a quiet zone of four modules; shown at that size it needs no scaling. Empty on
 * failure.
 */
QString qrPicture(const QString &content);

} // namespace kelvra_saas
