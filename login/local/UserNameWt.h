#pragma once

#include "host/ZCommon/ZWidget.h"
#include "login/common/Form.h"

#include <memory>

namespace ZCOMMON {
class ZLineEdit;
}

namespace kelvra_login {

namespace Ui {
class UserNameWt;
}

/** A framed field for a user name: up to 64 characters, no white space. */
class UserNameWt : public ZCOMMON::ZWidget
{
    Q_OBJECT

public:
    explicit UserNameWt(QWidget *parent = nullptr);
    ~UserNameWt() override;

    /** What has been typed, trimmed. */
    QString text() const;
    void setText(const QString &text);
    /** Replaces the form's placeholder for good; the owner translates it. */
    void setPlaceholderText(const QString &text);
    /** Applies a FieldState; normal and hover only without the keyboard focus, nothing while disabled. */
    void setState(int state);
    /** Disables the field for good and shows it so. */
    void setFieldDisabled();
    /** Puts the cursor in the line edit, unless disabled, and shows `text` as a tool tip there. */
    void showError(const QString &text);

    /** The line edit inside, for its signals. */
    ZCOMMON::ZLineEdit *lineEdit() const;

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openMenu(const QPoint &globalPos);
    void pasteWithoutBlanks();
    void retranslate();

    const std::unique_ptr<Form<Ui::UserNameWt>> ui;
    bool placeholderIsOwners = false;
};

} // namespace kelvra_login
