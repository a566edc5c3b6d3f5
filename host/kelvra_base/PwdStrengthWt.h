#pragma once

#include "host/Export.h"
#include "host/ZCommon/PwdStrength.h"

#include <QWidget>

#include <memory>

namespace kelvra_base {

/** Strength meter of a new password: a coloured bar that shows the grade it has given. */
class KELVRA_BASE_EXPORT PwdStrengthWt : public QWidget
{
    Q_OBJECT

public:
    /** Shows no grade until setPwd(). @param parent owner, may be null */
    explicit PwdStrengthWt(QWidget *parent = nullptr);
    ~PwdStrengthWt() override;

    /** Grades `pwd`, shows the grade and returns it. The password itself is not kept. */
    ZCOMMON::PwdStrength setPwd(const QString &pwd);

protected:
    /** Draws the bar, filled and coloured by the grade. */
    void paintEvent(QPaintEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
    Q_DISABLE_COPY(PwdStrengthWt)
};

} // namespace kelvra_base
