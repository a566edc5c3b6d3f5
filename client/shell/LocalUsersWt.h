#pragma once

#include "client/kelvra_data/UserAdmin.h"

#include <QWidget>

#include <memory>

class QSortFilterProxyModel;

namespace kelvra_client {

class NewPwdDlg;
class UsersModel;

namespace Ui {
class LocalUsersWt;
}

/** The ordinary local users for a superuser to manage; for everybody else an explanation. */
class LocalUsersWt : public QWidget
{
    Q_OBJECT

public:
    explicit LocalUsersWt(QWidget *parent = nullptr);
    ~LocalUsersWt() override;

    /** Who is logged in. */
    void setUser(const QString &name);

    /** Reads again what the user may do, and the other users. */
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectButtons();
    QString selectedUser() const;
    void select(const QString &name);
    void showSelection();
    void showTexts();
    void addUser();
    void setPassword();
    void setGesture();
    void confirmGestureDeletion();
    void deleteGesture(const QString &name);
    void confirmRemoval();
    void remove(const QString &name);
    /** Asks a question about `name`, which is done on OK. */
    void ask(const QString &question, const QString &name, void (LocalUsersWt::*action)(const QString &));
    void open(NewPwdDlg *dialog);

    const std::unique_ptr<Ui::LocalUsersWt> ui;
    UsersModel *const model;
    QSortFilterProxyModel *const order;
    QString user;
};

} // namespace kelvra_client
