#pragma once

#include "host/Export.h"

#include <QObject>

#include <memory>

class QLineEdit;
class QWidget;

namespace kelvra_base {

/** Event filter that warns with a tool tip while Caps Lock is on and a password is being typed. */
class KELVRA_BASE_EXPORT CapsLockToolTipHandler : public QObject
{
    Q_OBJECT

public:
    /**
     * @param owner    becomes the handler's parent
     * @param lineEdit the watched line edit
     * @param field    the field that the line edit belongs to; the tip stands below it
     *
     * The handler outlives neither the owner nor makes use of a line edit or field that is gone.
     */
    CapsLockToolTipHandler(QWidget *owner, QLineEdit *lineEdit, QWidget *field);
    ~CapsLockToolTipHandler() override;

    /** Learns of Caps Lock from the keys and shows or hides the tip; every event goes on. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
    Q_DISABLE_COPY(CapsLockToolTipHandler)
};

} // namespace kelvra_base
