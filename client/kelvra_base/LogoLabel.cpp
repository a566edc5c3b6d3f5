#include "host/kelvra_base/LogoLabel.h"

#include <QPixmap>

namespace kelvra_base {

LogoLabel::LogoLabel(QWidget *parent)
    : QLabel(parent)
{
    setPixmap(QPixmap(QStringLiteral(":/images/images/logo.png")));
    setScaledContents(true); // smooth at a broken scale factor
    setFixedSize(sizeHint());
}

LogoLabel::~LogoLabel() = default;

} // namespace kelvra_base
