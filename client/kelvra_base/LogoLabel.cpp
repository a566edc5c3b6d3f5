#include "host/kelvra_base/LogoLabel.h"

#include <QPixmap>

namespace kelvra_base {

LogoLabel::LogoLabel(QWidget *parent)
    : QLabel(parent)
{
    setPixmap(QPixmap(QStringLiteral(":/images/images/logo.png")));
    adjustSize();
}

LogoLabel::~LogoLabel() = default;

} // namespace kelvra_base
