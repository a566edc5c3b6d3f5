#pragma once

#include <QLineEdit>

namespace kelvra_client {

/**
 * A line edit for a password. To assistive technology it is a password field without a text interface: a plain line
 * edit has every typed character broadcast, hidden or not.
 */
class PasswordEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PasswordEdit(QWidget *parent = nullptr);
    ~PasswordEdit() override;
};

} // namespace kelvra_client
