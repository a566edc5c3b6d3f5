#pragma once

#include "host/Export.h"

#include <QPushButton>

namespace ZCOMMON {

/** A push button that drops its hover look the moment it is disabled under the pointer. */
class ZCOMMON_EXPORT ZPushButton : public QPushButton
{
    Q_OBJECT

public:
    /** @param parent owner, may be null */
    explicit ZPushButton(QWidget *parent = nullptr);
    ~ZPushButton() override;

    /** As QWidget::setEnabled, and refreshes the hover look in both directions. */
    void setEnabled(bool enabled);
};

} // namespace ZCOMMON
