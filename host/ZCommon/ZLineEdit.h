#pragma once

#include "host/Export.h"

#include <QLineEdit>

namespace ZCOMMON {

/** A line edit that tells when the keyboard focus comes and goes. */
class ZCOMMON_EXPORT ZLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /** @param parent owner, may be null */
    explicit ZLineEdit(QWidget *parent = nullptr);
    ~ZLineEdit() override;

signals:
    /** True after the focus has come in, false after it has gone, whatever the reason. */
    void signalFocusEvent(bool focused);

protected:
    /** Emits signalFocusEvent() once the base class has done its part. */
    ///@{
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    ///@}
};

} // namespace ZCOMMON
