#include "login/local/UserNameWt.h"

#include "login/local/FieldStyle.h"
#include "ui_UserNameWt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QRegExpValidator>
#include <QRegularExpression>

namespace kelvra_login {

UserNameWt::UserNameWt(QWidget *parent)
    : ZWidget(parent)
    , ui(std::make_unique<Form<Ui::UserNameWt>>())
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    ui->userName->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("^\\S+$")), ui->userName));
    ui->userName->installEventFilter(this);
    setFocusProxy(ui->userName);
    nameAfterPlaceholder(ui->userName);
    setState(FieldNormal);
}

UserNameWt::~UserNameWt() = default;

QString UserNameWt::text() const
{
    return ui->userName->text().trimmed();
}

void UserNameWt::setText(const QString &text)
{
    ui->userName->setText(text);
}

void UserNameWt::setPlaceholderText(const QString &text)
{
    placeholderIsOwners = true;
    ui->userName->setPlaceholderText(text);
    nameAfterPlaceholder(ui->userName);
}

void UserNameWt::setState(int state)
{
    if (!isEnabled() || state < FieldNormal || state > FieldFocused)
        return;
    if (state != FieldFocused && ui->userName->hasFocus())
        return;

    const bool normal = state == FieldNormal;
    applyStyle(this, normal ? frameNormalStyle : frameHighlightedStyle);
    applyStyle(ui->userName, state == FieldFocused ? editBrightStyle : editDimStyle);
    showIcon(ui->userImage, normal ? QStringLiteral(":/login_images/images/user_n.png")
                                   : QStringLiteral(":/login_images/images/user_h.png"));
}

void UserNameWt::setFieldDisabled()
{
    // A style sheet that is replaced before the widget is polished may never be drawn.
    ensurePolished();
    setEnabled(false);
    applyStyle(this, frameDisabledStyle);
    applyStyle(ui->userName, editDisabledStyle);
    showIcon(ui->userImage, QStringLiteral(":/login_images/images/user_n.png"));
}

void UserNameWt::showError(const QString &text)
{
    showFieldError(ui->userName, text);
}

ZCOMMON::ZLineEdit *UserNameWt::lineEdit() const
{
    return ui->userName;
}

void UserNameWt::enterEvent(QEvent *event)
{
    setState(FieldHover);
    ZWidget::enterEvent(event);
}

void UserNameWt::leaveEvent(QEvent *event)
{
    setState(FieldNormal);
    ZWidget::leaveEvent(event);
}

void UserNameWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    ZWidget::changeEvent(event);
}

void UserNameWt::retranslate()
{
    const FieldContent content(ui->userName, placeholderIsOwners);
    ui->retranslateUi(this);
    content.restore();
}

bool UserNameWt::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->userName && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)) {
        pasteWithoutBlanks();
        return true;
    }
    return ZWidget::eventFilter(watched, event);
}

void UserNameWt::pasteWithoutBlanks()
{
    QString pasted = QGuiApplication::clipboard()->text();
    pasted.remove(QRegularExpression(QStringLiteral("\\s")));
    if (pasted == ui->userName->text())
        return;
    // Inserted over the old text, not set: the owner is to hear of it as of any edit.
    ui->userName->selectAll();
    ui->userName->insert(pasted);
}

} // namespace kelvra_login
