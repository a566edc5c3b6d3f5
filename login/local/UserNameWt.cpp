#include "login/local/UserNameWt.h"

#include "login/local/FieldStyle.h"
#include "ui_UserNameWt.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QRegExpValidator>

namespace kelvra_login {

namespace {

// The line edit refuses as a whole what its validator finds a blank in. This is the validator's idea of a blank: that
// of QRegularExpression leaves out what is beyond ASCII.
QString withoutBlanks(QString text)
{
    return text.remove(QRegExp(QStringLiteral("\\s")));
}

} // namespace

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
    if (watched != ui->userName)
        return ZWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)) {
        pasteWithoutBlanks();
        return true;
    }
    if (event->type() == QEvent::ContextMenu) {
        openMenu(static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    if (event->type() == QEvent::InputMethod) {
        auto *input = static_cast<QInputMethodEvent *>(event);
        input->setCommitString(withoutBlanks(input->commitString()), input->replacementStart(),
                               input->replacementLength());
    }
    return ZWidget::eventFilter(watched, event);
}

// The line edit's menu, whose "Paste" would have the line edit refuse a text with a blank.
void UserNameWt::openMenu(const QPoint &globalPos)
{
    QMenu *const menu = ui->userName->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction *action : menu->actions()) {
        if (!action->text().startsWith(QLineEdit::tr("&Paste")))
            continue;
        disconnect(action, &QAction::triggered, nullptr, nullptr);
        ui->handlers.connect(action, &QAction::triggered, this, &UserNameWt::pasteWithoutBlanks);
    }
    menu->popup(globalPos);
}

void UserNameWt::pasteWithoutBlanks()
{
    const QString pasted = withoutBlanks(QGuiApplication::clipboard()->text());
    if (pasted == ui->userName->text())
        return;
    // Inserted over the old text, not set: the owner is to hear of it as of any edit.
    ui->userName->selectAll();
    ui->userName->insert(pasted);
}

} // namespace kelvra_login
