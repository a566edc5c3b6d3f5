#include "login/superuser/NewPwdRating.h"

#include "host/ZCommon/ToolsCollection.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "host/kelvra_base/PwdStrengthWt.h"
#include "login/common/Handlers.h"
#include "login/frame/LoginSignals.h"
#include "login/local/FieldStyle.h"
#include "login/local/PwdTipWt.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

using ZCOMMON::PwdStrength;
using ZCOMMON::ToolsCollection;
using ZCOMMON::ZLineEdit;

namespace kelvra_login {

namespace {

PwdTipClass tipClass(PwdStrength grade, const QString &pwd, const QString &userName)
{
    switch (grade) {
    case ZCOMMON::PwdLengthIllegal:
        return PwdTipLength;
    case ZCOMMON::PwdTooSimple:
        return PwdTipTooSimple;
    default:
        return pwd == userName || ToolsCollection::reverseString(pwd) == userName ? PwdTipLikeName : PwdTipKept;
    }
}

} // namespace

NewPwdRating::NewPwdRating(const Fields &pageFields, Handlers &owner)
    : QObject(&owner)
    , fields(pageFields)
{
    connectTyping();
    connectFocus();
    for (UserPwdWt *field : {fields.password, fields.confirmation})
        new kelvra_base::CapsLockToolTipHandler(field, field->lineEdit(), field);
}

NewPwdRating::~NewPwdRating() = default;

void NewPwdRating::connectTyping()
{
    connect(fields.password->lineEdit(), &QLineEdit::textChanged, this,
            [this](const QString &text) { rate(text.trimmed(), true); });
    connect(fields.user->lineEdit(), &QLineEdit::textChanged, this, [this] { rate(fields.password->text(), false); });
}

void NewPwdRating::connectFocus()
{
    connect(fields.password->lineEdit(), &ZLineEdit::signalFocusEvent, this, [this](bool focused) {
        if (focused) {
            fields.user->setState(FieldNormal);
            fields.confirmation->setState(FieldNormal);
        }
        fields.password->setState(focused ? FieldFocused : FieldNormal);
        rate(fields.password->text(), focused);
    });
    connect(fields.confirmation->lineEdit(), &ZLineEdit::signalFocusEvent, this, [this](bool focused) {
        if (focused) {
            fields.user->setState(FieldNormal);
            fields.password->setState(FieldNormal);
        }
        fields.confirmation->setState(focused ? FieldFocused : FieldNormal);
    });
    connect(fields.user->lineEdit(), &ZLineEdit::signalFocusEvent, this, [this](bool focused) {
        if (focused) {
            fields.password->setState(FieldNormal);
            fields.confirmation->setState(FieldNormal);
        }
        fields.user->setState(focused ? FieldFocused : FieldNormal);
    });
}

void NewPwdRating::rate(const QString &pwd, bool tipVisible)
{
    const PwdTipClass pwdStrength = tipClass(fields.strength->setPwd(pwd), pwd, fields.user->text());
    emit signalRated(pwdStrength);
    const QPoint leftEdge = fields.password->mapToGlobal(QPoint(0, fields.password->height() / 2));
    emit LoginSignals::_instance().signalPwdStrength(static_cast<PwdStrength>(pwdStrength), tipVisible, leftEdge);
}

} // namespace kelvra_login
