#include "login/cloud/CloudPageParts.h"

#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/local/UserNameWt.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRegExpValidator>

namespace kelvra_login {

namespace {

constexpr int phoneNumberLength = 11;
constexpr const char *loggingInProperty = "is_logging_in";

QString translated(const char *text)
{
    return QCoreApplication::translate("kelvra_login::CloudPageParts", text);
}

} // namespace

void setUpPhoneField(QWidget *page, UserNameWt *field, Handlers &handlers)
{
    ZCOMMON::ZLineEdit *number = field->lineEdit();
    setPhonePlaceholder(field);
    number->setAttribute(Qt::WA_InputMethodEnabled, false);
    number->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("^1[0-9]{10}$")), number));
    field->setText(kelvra_saas::LoginWorker::_instance().getRecentlyLoggedInAccount());
    followFocus(field, handlers);

    auto &hub = LoginSignals::_instance();
    handlers.connect(number, &QLineEdit::textChanged, [page](const QString &text) {
        emit LoginSignals::_instance().signalSaasAccountEditingFinished(page, text);
    });
    handlers.connect(&hub, &LoginSignals::signalSaasAccountEditingFinished,
                     [page, number](const QWidget *fromWt, const QString &account) {
                         // The other page answers what it is told: set again, the same text would move the cursor.
                         if (fromWt != page && number->text() != account)
                             number->setText(account);
                     });
}

void handFocusOn(QWidget *page, UserNameWt *field, QWidget *secret, Handlers &handlers)
{
    const auto choose = [page, field, secret] { page->setFocusProxy(field->text().isEmpty() ? field : secret); };
    choose();
    handlers.connect(field->lineEdit(), &QLineEdit::textChanged, choose);
}

void setPhonePlaceholder(UserNameWt *field)
{
    field->setPlaceholderText(translated(QT_TRANSLATE_NOOP("kelvra_login::CloudPageParts", "Phone Number")));
}

bool checkPhoneNumber(UserNameWt *field)
{
    if (field->text().size() == phoneNumberLength)
        return true;
    showFieldError(field, translated(QT_TRANSLATE_NOOP("kelvra_login::CloudPageParts", "Illegal mobile phone number")));
    return false;
}

void setLoggingIn(QPushButton *loginBt, bool loggingIn)
{
    loginBt->setText(loggingIn ? translated(QT_TRANSLATE_NOOP("kelvra_login::CloudPageParts", "Logging in..."))
                               : translated(QT_TRANSLATE_NOOP("kelvra_login::CloudPageParts", "Login")));
    loginBt->setProperty(loggingInProperty, loggingIn);
}

bool isLoggingIn(const QPushButton *loginBt)
{
    return loginBt->property(loggingInProperty).toBool();
}

void finishLogin(const QWidget *page, const QString &account, bool autoLogin)
{
    if (page->window()->isVisible() && !kelvra_worker::SystemWorker::_instance().isLoginSuccess())
        LoginWorker::_instance().saasLoginSuccess(account, autoLogin);
}

QString errorText(const kelvra_saas::Response &response)
{
    return kelvra_saas::saasErrorMsg(response.code, response.subCode);
}

bool isLeftRelease(const QEvent *event)
{
    return event->type() == QEvent::MouseButtonRelease &&
           static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
}

bool loginOnEnter(QWidget *page, QPushButton *loginBt, const QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QPointer<QWidget> self(page);
    // A held key must not spend one attempt after the other.
    if (enter && page->isVisible() && !event->isAutoRepeat())
        emit loginBt->clicked();
    return self;
}

} // namespace kelvra_login
