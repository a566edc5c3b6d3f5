#include "login/superuser/LoginMethodSelWt.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/Customization.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/common/AccessibleFaces.h"
#include "login/common/AccessibleMethod.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "ui_LoginMethodSelWt.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

using kelvra_data::UserData;
using kelvra_worker::Customization;
using kelvra_worker::SystemWorker;

namespace kelvra_login {

namespace {

constexpr int topMarginWithoutCloud = 54; // pixels, above the two buttons that are left
constexpr int frameOutside = 1;           // pixels; the column leaves no more at the left of the buttons

} // namespace

LoginMethodSelWt::LoginMethodSelWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::LoginMethodSelWt>>())
    , frame(new QFrame(this))
{
    AccessibleFaces::install();
    ui->setupUi(this);
    setFocusPolicy(Qt::StrongFocus);
    ui->defaultUserBt->setMethod(LoginMethodBt::DefaultSuperUserMethod);
    ui->newUserBt->setMethod(LoginMethodBt::NewSuperUserMethod);
    ui->saasUserBt->setMethod(LoginMethodBt::CloudUserMethod);
    ui->defaultUserBt->setShortcut(QKeySequence(QStringLiteral("Alt+1")));
    ui->newUserBt->setShortcut(QKeySequence(QStringLiteral("Alt+2")));
    ui->saasUserBt->setShortcut(QKeySequence(QStringLiteral("Alt+3")));
    applyCloudRule();
    for (const LoginMethodBt *button : {ui->defaultUserBt, ui->newUserBt, ui->saasUserBt})
        ui->handlers.connect(button, &LoginMethodBt::signalClicked, this, &LoginMethodSelWt::slotLoginMethodBtClicked);

    frame->setObjectName(QStringLiteral("choiceFrame"));
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame->setStyleSheet(QStringLiteral("border:2px solid #ffffff;border-radius:3px;background-color:transparent;"));
    frame->raise();
    choose(ui->defaultUserBt);
}

LoginMethodSelWt::~LoginMethodSelWt() = default;

void LoginMethodSelWt::applyCloudRule()
{
    if (Customization::_instance().getCustomizeInfo().cloudLoginEnabled)
        return;
    ui->saasUserBt->hide();
    ui->verticalLayout->setContentsMargins(0, topMarginWithoutCloud, 0, 0);
}

QVector<LoginMethodBt *> LoginMethodSelWt::offered() const
{
    QVector<LoginMethodBt *> buttons = {ui->defaultUserBt, ui->newUserBt};
    if (!ui->saasUserBt->isHidden())
        buttons << ui->saasUserBt;
    return buttons;
}

void LoginMethodSelWt::choose(LoginMethodBt *button)
{
    choice = button;
    for (LoginMethodBt *other : offered())
        other->setProperty(AccessibleMethod::chosenProperty, other == button);
    placeFrame();
    announceChoice();
}

void LoginMethodSelWt::moveChoice(int step)
{
    const QVector<LoginMethodBt *> buttons = offered();
    choose(buttons[(buttons.indexOf(choice) + step + buttons.size()) % buttons.size()]);
}

void LoginMethodSelWt::placeFrame()
{
    frame->setGeometry(choice->geometry() + QMargins(frameOutside, frameOutside, frameOutside, frameOutside));
    frame->setVisible(hasFocus());
}

void LoginMethodSelWt::announceChoice()
{
    // When the focus comes, the toolkit announces the page right after this.
    ui->handlers.after(0, [this] {
        if (!hasFocus())
            return;
        QAccessibleEvent focused(choice, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    });
}

bool LoginMethodSelWt::event(QEvent *event)
{
    const bool taken = QWidget::event(event);
    switch (event->type()) {
    case QEvent::FocusIn:
        announceChoice();
        [[fallthrough]];
    case QEvent::FocusOut:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        placeFrame();
        break;
    default:
        break;
    }
    return taken;
}

void LoginMethodSelWt::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        moveChoice(-1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        moveChoice(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        // A key that was pressed before the page was shown, and is still held, chooses nothing.
        if (!event->isAutoRepeat())
            choice->click();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool LoginMethodSelWt::focusNextPrevChild(bool next)
{
    // A page that is hidden gives the focus away.
    if (!isVisible())
        return QWidget::focusNextPrevChild(next);
    moveChoice(next ? 1 : -1);
    return true;
}

void LoginMethodSelWt::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        setFocus();
    QWidget::showEvent(event);
}

void LoginMethodSelWt::slotLoginMethodBtClicked(int method)
{
    const QPointer<LoginMethodSelWt> self(this);
    showNextScreen(method);
    // The alert of a refusal, or what hears of the choice, may have outlived this page.
    if (self)
        focusFirstField();
    UserData::_instance().updateLoginEnvironment();
}

void LoginMethodSelWt::showNextScreen(int method)
{
    auto &hub = LoginSignals::_instance();
    switch (method) {
    case LoginMethodBt::DefaultSuperUserMethod:
        createDefaultSuperUser();
        break;
    case LoginMethodBt::NewSuperUserMethod:
        emit hub.signalLoginEvent(CreateSuperUser, {});
        break;
    default:
        emit hub.signalLoginEvent(NormalLogin, {});
        emit hub.signalSaasLoginEvent(SaasPwdLogin, {});
        SystemWorker::_instance().setLastLoggedInUserType(kelvra_worker::CloudUser);
    }
}

void LoginMethodSelWt::focusFirstField() const
{
    for (QWidget *next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        if (qobject_cast<QLineEdit *>(next) && next->isVisible() && next->isEnabled()) {
            next->setFocus();
            return;
        }
    }
}

void LoginMethodSelWt::createDefaultSuperUser()
{
    const kelvra_data::SuperUserInfo info = LoginWorker::_instance().defaultSuperUserInfo();
    if (!UserData::_instance().addSuperUser(info)) {
        warningAlert(tr("Local default superuser is not available"));
        return;
    }
    auto &hub = LoginSignals::_instance();
    emit hub.signalLoginEvent(NormalLogin, {info.userName, info.password});
    emit hub.signalDefaultLocalSuperUserMethodSelected(info.userName, info.password);
}

void LoginMethodSelWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
