#pragma once

#include "host/ZCommon/ZWidget.h"
#include "login/common/Form.h"

#include <memory>

class QAction;
class QKeyEvent;

namespace ZCOMMON {
class ZLineEdit;
}

namespace kelvra_login {

namespace Ui {
class UserPwdWt;
}

/**
 * A framed field for a password of up to 16 characters, with an eye that shows it. It can stand for a remembered
 * password, which it gives to its owner but never shows. It lets nothing be copied out, and undoes nothing: a password
 * that has been erased does not come back.
 */
class UserPwdWt : public ZCOMMON::ZWidget
{
    Q_OBJECT

public:
    explicit UserPwdWt(QWidget *parent = nullptr);
    ~UserPwdWt() override;

    /** The remembered password while it stands, else what has been typed, trimmed. */
    QString text() const;
    /** As setPassword(text, false). */
    void setText(const QString &text);
    /** `remembered` passwords are shown as 16 placeholder characters and cannot be revealed. */
    void setPassword(const QString &text, bool remembered);
    /** Clears the field if a remembered password stands in it. */
    void forgetRememberedPassword();
    /** Replaces the form's placeholder for good; the owner translates it. */
    void setPlaceholderText(const QString &text);
    /** Applies a FieldState; normal and hover only without the keyboard focus. */
    void setState(int state);
    /** Takes the lock icon away. */
    void hideIcon();
    /** Puts the cursor in the line edit and shows `text` as a tool tip there. */
    void showError(const QString &text);

    /** The line edit inside, for its signals. */
    ZCOMMON::ZLineEdit *lineEdit() const;

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool standsForRemembered() const;
    bool handleKeyPress(const QKeyEvent &event);
    void keepTypedPasswordClean(const QString &text);
    /** Leaves the line edit nothing to undo. */
    void forgetEdits();
    void showPassword(bool shown);
    void updateEyeIcon(bool highlighted);
    void retranslate();

    const std::unique_ptr<Form<Ui::UserPwdWt>> ui;
    QAction *eye = nullptr;
    bool placeholderIsOwners = false;
};

} // namespace kelvra_login
