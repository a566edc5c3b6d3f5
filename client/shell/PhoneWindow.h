#pragma once

#include "client/ZCommon/FramelessBehaviour.h"
#include "client/kelvra_saas/CloudSimulation.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QPushButton;

namespace kelvra_client {

namespace Ui {
class PhoneWindow;
}

/**
 * The phone that belongs to the simulated cloud: its accounts, the text message that has arrived, the login code to
 * scan, and the switch of the computer's network.
 *
 * Closing it hides it. It takes the focus only when it is clicked; `simulation` outlives it.
 */
class PhoneWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PhoneWindow(kelvra_saas::CloudSimulation &simulation, QWidget *parent = nullptr);
    ~PhoneWindow() override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void cutCorners();
    void connectCloud();
    void connectAccount();
    void connectCode();

    void showAll();
    void showNetwork();
    void showAccounts();
    void showAccount();
    void showMessage();
    void showCode();
    void showTimes();

    void reloadAccounts();
    void editAccounts();
    void copy(QPushButton *button, const QString &text);
    kelvra_saas::CloudAccount account() const;
    /** What a person calls the account: its name, where it has one. */
    QString nameOf(const QString &phone) const;
    QString textOf(const kelvra_saas::CloudCode &code) const;

    kelvra_saas::CloudSimulation &cloud;
    const std::unique_ptr<Ui::PhoneWindow> ui;
    ZCOMMON::FramelessBehaviour frame;
    QTimer clock; ///< brings the times that are left up to date while the phone is seen and one of them runs
};

} // namespace kelvra_client
