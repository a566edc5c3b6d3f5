#pragma once

#include "host/ZCommon/ZLineEdit.h"
#include "login/common/Handlers.h"
#include "login/local/FieldStyle.h"

#include <QString>
#include <QWidget>

class QEvent;
class QKeyEvent;
class QPushButton;

namespace kelvra_saas {
struct Response;
}

/**
 * @file
 * What the pages of cloud login share.
 */

namespace kelvra_login {

class UserNameWt;

/**
 * Makes `field` the phone number field of `page`: it takes eleven digits, holds the account that logged in last at
 * first, and is kept in step with the fields of the other pages.
 */
void setUpPhoneField(QWidget *page, UserNameWt *field, Handlers &handlers);
/** From now on `page` hands the keyboard focus on: to `field` while it is empty, then to `secret`. */
void handFocusOn(QWidget *page, UserNameWt *field, QWidget *secret, Handlers &handlers);
/** Sets the field's placeholder, in the language in force. */
void setPhonePlaceholder(UserNameWt *field);
/** Whether the field holds a number of the right length; if not, a tip at the field says so. */
bool checkPhoneNumber(UserNameWt *field);

/** Highlights `field` while it has the keyboard focus. */
template <typename Field>
void followFocus(Field *field, Handlers &handlers)
{
    handlers.connect(field->lineEdit(), &ZCOMMON::ZLineEdit::signalFocusEvent,
                     [field](bool focused) { field->setState(focused ? FieldFocused : FieldNormal); });
}

/** Marks the login button of a page, and says on it, that a login is under way or not. */
void setLoggingIn(QPushButton *loginBt, bool loggingIn);
bool isLoggingIn(const QPushButton *loginBt);

/**
 * Ends a login that the cloud has granted. Its answer may come late: nothing happens once the user has closed the
 * window of `page`, and whoever has logged in meanwhile stays.
 */
void finishLogin(const QWidget *page, const QString &account, bool autoLogin);

/** The text of the cloud for a call that failed. */
QString errorText(const kelvra_saas::Response &response);

/** Whether the left mouse button goes up. */
bool isLeftRelease(const QEvent *event);

/**
 * Return and Enter click the page's login button, once for each press of the key, while the page is visible. The
 * click may cost the page its life: false when it is gone.
 */
bool loginOnEnter(QWidget *page, QPushButton *loginBt, const QKeyEvent *event);

} // namespace kelvra_login
