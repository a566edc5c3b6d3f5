#pragma once

#include "host/ZCommon/PwdStrength.h"
#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class PwdTipWt;
}

/** What LoginSignals::signalPwdStrength says of a new password; any other value is taken as PwdTipKept. */
enum PwdTipClass : int {
    PwdTipLength = 0,    ///< too short or too long, and not varied enough
    PwdTipLikeName = 1,  ///< the user name, or that reversed
    PwdTipTooSimple = 2, ///< long enough, but not varied enough
    PwdTipKept = 3       ///< all rules are kept
};

/** The bubble beside a new password that lists the password rules and marks those that it breaks. */
class PwdTipWt : public QWidget
{
    Q_OBJECT

public:
    explicit PwdTipWt(QWidget *parent);
    ~PwdTipWt() override;

    /** Marks the rules that a password of this PwdTipClass breaks. */
    void setStrength(ZCOMMON::PwdStrength strength);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    const std::unique_ptr<Form<Ui::PwdTipWt>> ui;
};

} // namespace kelvra_login
