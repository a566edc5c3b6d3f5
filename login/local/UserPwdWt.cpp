#include "login/local/UserPwdWt.h"

#include "login/common/AccessibleFaces.h"
#include "login/local/FieldStyle.h"
#include "ui_UserPwdWt.h"

#include <QAction>
#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace kelvra_login {

namespace {

constexpr QChar placeholderChar(0x0001);
constexpr int placeholderLength = 16;
constexpr char passwordProperty[] = "pwd";

bool isForbiddenKey(const QKeyEvent &event)
{
    // DeleteEndOfLine and DeleteCompleteLine copy what they delete. Undo empties a field that hides its text.
    static constexpr QKeySequence::StandardKey keys[] = {QKeySequence::Paste,
                                                         QKeySequence::Copy,
                                                         QKeySequence::Cut,
                                                         QKeySequence::DeleteEndOfLine,
                                                         QKeySequence::DeleteCompleteLine,
                                                         QKeySequence::Undo,
                                                         QKeySequence::Redo};
    return std::any_of(std::begin(keys), std::end(keys), [&event](auto key) { return event.matches(key); });
}

bool typesText(const QKeyEvent &event)
{
    // As the line edit takes it: AltGr arrives as Control and Alt together.
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::ShiftModifier;
    const QString text = event.text();
    return !text.isEmpty() && text.at(0).isPrint() && modifiers != Qt::ControlModifier;
}

} // namespace

UserPwdWt::UserPwdWt(QWidget *parent)
    : ZWidget(parent)
    , ui(std::make_unique<Form<Ui::UserPwdWt>>())
{
    AccessibleFaces::install();
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setFocusProxy(ui->pwd);
    nameAfterPlaceholder(ui->pwd);
    ui->pwd->setContextMenuPolicy(Qt::NoContextMenu);
    ui->pwd->setAttribute(Qt::WA_InputMethodEnabled, false);
    ui->pwd->installEventFilter(this);

    eye = new QAction(ui->pwd);
    eye->setObjectName(QStringLiteral("eye"));
    eye->setCheckable(true);
    eye->setText(tr("Show password"));
    // Tab goes from field to field, past the eye.
    eye->setShortcut(QKeySequence(QStringLiteral("Alt+F8")));
    eye->setShortcutContext(Qt::WidgetShortcut);
    ui->pwd->addAction(eye, QLineEdit::TrailingPosition);

    ui->handlers.connect(eye, &QAction::triggered, this, &UserPwdWt::showPassword);
    ui->handlers.connect(ui->pwd, &QLineEdit::textEdited, this, &UserPwdWt::keepTypedPasswordClean);
    ui->handlers.connect(ui->pwd, &QLineEdit::textChanged, [this] { forgetEdits(); });
    setState(FieldNormal);
}

UserPwdWt::~UserPwdWt() = default;

QString UserPwdWt::text() const
{
    return standsForRemembered() ? ui->pwd->property(passwordProperty).toString() : ui->pwd->text().trimmed();
}

void UserPwdWt::setText(const QString &text)
{
    setPassword(text, false);
}

void UserPwdWt::setPassword(const QString &text, bool remembered)
{
    ui->pwd->setProperty(passwordProperty, text);
    if (text.isEmpty()) {
        ui->pwd->clear();
        eye->setVisible(true);
    } else if (remembered) {
        // An open eye would show the placeholders as blanks.
        eye->setChecked(false);
        ui->pwd->setEchoMode(QLineEdit::Password);
        updateEyeIcon(styleSheet() == frameHighlightedStyle);
        ui->pwd->setText(QString(placeholderLength, placeholderChar));
        eye->setVisible(false);
    } else {
        ui->pwd->setText(text);
    }
}

void UserPwdWt::forgetRememberedPassword()
{
    if (standsForRemembered())
        setPassword(QString(), false);
}

bool UserPwdWt::standsForRemembered() const
{
    return ui->pwd->text().contains(placeholderChar);
}

void UserPwdWt::keepTypedPasswordClean(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed != text)
        ui->pwd->setText(trimmed);
    else if (standsForRemembered())
        setPassword(QString(), false);
    eye->setVisible(true);
}

void UserPwdWt::forgetEdits()
{
    // A text that is set cannot be undone, and the same text again is no change.
    const int cursor = ui->pwd->cursorPosition();
    ui->pwd->setText(ui->pwd->text());
    ui->pwd->setCursorPosition(cursor);
}

void UserPwdWt::setPlaceholderText(const QString &text)
{
    placeholderIsOwners = true;
    ui->pwd->setPlaceholderText(text);
    nameAfterPlaceholder(ui->pwd);
}

void UserPwdWt::setState(int state)
{
    if (state < FieldNormal || state > FieldFocused)
        return;
    if (state != FieldFocused && ui->pwd->hasFocus())
        return;

    const bool normal = state == FieldNormal;
    applyStyle(this, normal ? frameNormalStyle : frameHighlightedStyle);
    applyStyle(ui->pwd, normal ? editDimStyle : editBrightStyle);
    showIcon(ui->pwdImage, normal ? QStringLiteral(":/login_images/images/password_n.png")
                                  : QStringLiteral(":/login_images/images/password_h.png"));
    updateEyeIcon(!normal);
}

void UserPwdWt::updateEyeIcon(bool highlighted)
{
    eye->setIcon(QIcon(QStringLiteral(":/images/images/%1_pwd_%2.png")
                           .arg(eye->isChecked() ? QStringLiteral("show") : QStringLiteral("hide"),
                                highlighted ? QStringLiteral("h") : QStringLiteral("n"))));
}

void UserPwdWt::showPassword(bool shown)
{
    ui->pwd->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    updateEyeIcon(true);
}

void UserPwdWt::hideIcon()
{
    ui->pwdImage->hide();
}

void UserPwdWt::showError(const QString &text)
{
    showFieldError(ui->pwd, text);
}

ZCOMMON::ZLineEdit *UserPwdWt::lineEdit() const
{
    return ui->pwd;
}

void UserPwdWt::enterEvent(QEvent *event)
{
    setState(FieldHover);
    ZWidget::enterEvent(event);
}

void UserPwdWt::leaveEvent(QEvent *event)
{
    setState(FieldNormal);
    ZWidget::leaveEvent(event);
}

void UserPwdWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    ZWidget::changeEvent(event);
}

void UserPwdWt::retranslate()
{
    const FieldContent content(ui->pwd, placeholderIsOwners);
    ui->retranslateUi(this);
    content.restore();
    eye->setText(tr("Show password"));
}

bool UserPwdWt::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->pwd && event->type() == QEvent::KeyPress && handleKeyPress(*static_cast<QKeyEvent *>(event)))
        return true;
    // On X11 a line edit copies a selection on release of the left button, and pastes one on release of the middle one.
    if (watched == ui->pwd && event->type() == QEvent::MouseButtonRelease)
        return true;
    return ZWidget::eventFilter(watched, event);
}

bool UserPwdWt::handleKeyPress(const QKeyEvent &event)
{
    if (isForbiddenKey(event))
        return true;
    // The placeholder fills the field, so that the line edit would refuse the character and report no edit.
    if (standsForRemembered() && !ui->pwd->hasSelectedText() && typesText(event)) {
        setPassword(QString(), false);
        return true;
    }
    return false;
}

} // namespace kelvra_login
