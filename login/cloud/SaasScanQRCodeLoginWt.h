#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_saas {
struct Response;
}

namespace kelvra_login {

namespace Ui {
class SaasScanQRCodeLoginWt;
}

/** The page of the login form for a QR code that the Nimbra App scans. */
class SaasScanQRCodeLoginWt : public QWidget
{
    Q_OBJECT

public:
    explicit SaasScanQRCodeLoginWt(QWidget *parent);
    ~SaasScanQRCodeLoginWt() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void queryAccount();
    void accountAnswered(const kelvra_saas::Response &response, const QString &account);

    const std::unique_ptr<Form<Ui::SaasScanQRCodeLoginWt>> ui;
};

} // namespace kelvra_login
