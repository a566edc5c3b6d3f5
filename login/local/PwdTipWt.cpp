#include "login/local/PwdTipWt.h"

#include "login/local/FieldStyle.h"
#include "ui_PwdTipWt.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>

namespace kelvra_login {

namespace {

constexpr QChar brokenMark(0x00b7); // middle dot
constexpr QChar keptMark(0x221a);   // square root sign, for a tick
const QString brokenStyle = QStringLiteral("QLabel{color:#ffffff;font-family:microsoft yahei;font-size:13px;}");
const QString keptStyle = QStringLiteral("QLabel{color:#858fa2;font-family:microsoft yahei;font-size:13px;}");

void markRule(QWidget *row, QLabel *flag, bool broken)
{
    flag->setText(broken ? brokenMark : keptMark);
    applyStyle(row, broken ? brokenStyle : keptStyle);
}

} // namespace

PwdTipWt::PwdTipWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::PwdTipWt>>())
{
    ui->setupUi(this);
    setStrength(static_cast<ZCOMMON::PwdStrength>(PwdTipKept));
}

PwdTipWt::~PwdTipWt() = default;

void PwdTipWt::setStrength(ZCOMMON::PwdStrength strength)
{
    const int tipClass = strength;
    markRule(ui->tooSimpleWt, ui->tooSimpleFlag, tipClass == PwdTipLength || tipClass == PwdTipTooSimple);
    markRule(ui->lessThan8Wt, ui->lessThan8Flag, tipClass == PwdTipLength);
    markRule(ui->similarToNameWt, ui->similarToNameFlag, tipClass == PwdTipLikeName);
}

void PwdTipWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

void PwdTipWt::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setPen(Qt::NoPen);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), QIcon(QStringLiteral(":/login_images/images/pwd_tip.png")).pixmap(size()));
    }
    QWidget::paintEvent(event);
}

} // namespace kelvra_login
