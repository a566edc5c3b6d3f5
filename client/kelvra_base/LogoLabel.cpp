#include "host/kelvra_base/LogoLabel.h"

#include <QIcon>

namespace kelvra_base {

namespace {

constexpr QSize logoSize(150, 32); // pixels

} // namespace

LogoLabel::LogoLabel(QWidget *parent)
    : QLabel(parent)
{
    // An icon knows its form for dense screens.
    setPixmap(QIcon(QStringLiteral(":/images/images/logo.png")).pixmap(logoSize));
    setScaledContents(true); // smooth at a broken scale factor
    setFixedSize(logoSize);
}

LogoLabel::~LogoLabel() = default;

} // namespace kelvra_base
