#include "client/shell/LocalUsersWt.h"

#include "client/kelvra_base/AlertBox.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "client/shell/AddUserDlg.h"
#include "client/shell/SetPwdDlg.h"
#include "client/shell/UsersModel.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/SystemAssistant.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginAccess.h"
#include "ui_LocalUsersWt.h"

#include <QEvent>
#include <QHeaderView>
#include <QSortFilterProxyModel>

using kelvra_base::AlertBox;
using kelvra_data::UserAdmin;
using kelvra_data::UserData;
using kelvra_login::LoginAccess;
using kelvra_worker::DictDef;

namespace kelvra_client {

namespace {

constexpr int nameColumnWidth = 180;      // pixels
constexpr int lastLoginColumnWidth = 176; // pixels
constexpr int autoLoginColumnWidth = 160; // pixels

void alertFailure(const QString &sentence)
{
    kelvra_worker::SystemAssistant::_instance().messageAlert(
        DictDef::_instance().alertTitle(DictDef::OperationFailedTitle), sentence);
}

} // namespace

LocalUsersWt::LocalUsersWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LocalUsersWt>())
    , model(new UsersModel(this))
    , order(new QSortFilterProxyModel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    ui->setupUi(this);
    order->setSortRole(UsersModel::SortRole);
    order->setSortLocaleAware(true);
    order->setSourceModel(model);
    ui->usersTable->setModel(order);
    ui->usersTable->sortByColumn(UsersModel::NameColumn, Qt::AscendingOrder);
    ui->usersTable->horizontalHeader()->resizeSection(UsersModel::NameColumn, nameColumnWidth);
    ui->usersTable->horizontalHeader()->resizeSection(UsersModel::LastLoginColumn, lastLoginColumnWidth);
    ui->usersTable->horizontalHeader()->resizeSection(UsersModel::AutoLoginColumn, autoLoginColumnWidth);
    connectButtons();
    refresh();
}

LocalUsersWt::~LocalUsersWt() = default;

void LocalUsersWt::connectButtons()
{
    connect(ui->addUserBt, &QPushButton::clicked, this, &LocalUsersWt::addUser);
    connect(ui->setPwdBt, &QPushButton::clicked, this, &LocalUsersWt::setPassword);
    connect(ui->setGestureBt, &QPushButton::clicked, this, &LocalUsersWt::setGesture);
    connect(ui->deleteGestureBt, &QPushButton::clicked, this, &LocalUsersWt::confirmGestureDeletion);
    connect(ui->removeUserBt, &QPushButton::clicked, this, &LocalUsersWt::confirmRemoval);
    connect(ui->usersTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LocalUsersWt::showSelection);
}

void LocalUsersWt::setUser(const QString &name)
{
    user = name;
    refresh();
}

void LocalUsersWt::refresh()
{
    const bool manages = UserData::_instance().isSuperUser(user);
    const QString selected = selectedUser();
    model->setUsers(manages ? UserAdmin::_instance().users() : QVector<kelvra_data::OrdinaryUser>());
    select(selected);
    for (QWidget *widget : std::initializer_list<QWidget *>{ui->usersTable, ui->addUserBt, ui->setPwdBt,
                                                            ui->setGestureBt, ui->deleteGestureBt, ui->removeUserBt})
        widget->setVisible(manages);
    ui->usersNote->setVisible(!manages);
    setSizePolicy(QSizePolicy::Preferred, manages ? QSizePolicy::Expanding : QSizePolicy::Maximum);
    showTexts();
}

QString LocalUsersWt::selectedUser() const
{
    const QModelIndexList rows = ui->usersTable->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : model->name(order->mapToSource(rows.constFirst()).row());
}

void LocalUsersWt::select(const QString &name)
{
    const int row = model->rowOf(name);
    if (row >= 0 && selectedUser() != name)
        ui->usersTable->selectRow(order->mapFromSource(model->index(row, 0)).row());
    showSelection(); // a reset tells of no change
}

void LocalUsersWt::showSelection()
{
    const bool any = ui->usersTable->selectionModel()->hasSelection();
    const int row = model->rowOf(selectedUser());
    const bool gesture = row >= 0 && model->hasGesture(row);
    ui->setPwdBt->setEnabled(any);
    ui->setGestureBt->setEnabled(any);
    ui->setGestureBt->setText(gesture ? tr("Change gesture") : tr("Set gesture"));
    ui->deleteGestureBt->setEnabled(gesture);
    ui->removeUserBt->setEnabled(any);
}

void LocalUsersWt::showTexts()
{
    const QString superUser = kelvra_worker::SystemWorker::_instance().getSuperUserName();
    ui->usersNote->setText(
        superUser.isEmpty()
            ? tr("Local users are managed by the superuser of this client.")
            : tr("Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new "
                 "password.")
                  .arg(superUser));
    ui->usersTable->setEmptyText(tr("There are no other local users yet. Add one, and they can log in with their "
                                    "own name and password."));
}

void LocalUsersWt::addUser()
{
    auto *dialog = new AddUserDlg(window());
    connect(dialog, &QDialog::accepted, this, [this, dialog] { select(dialog->userName()); });
    open(dialog);
}

void LocalUsersWt::setPassword()
{
    open(new SetPwdDlg(selectedUser(), window()));
}

void LocalUsersWt::open(NewPwdDlg *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &LocalUsersWt::refresh);
    dialog->open();
}

void LocalUsersWt::setGesture()
{
    LoginAccess::_instance().addUserGesture(window(), selectedUser());
}

void LocalUsersWt::confirmGestureDeletion()
{
    const QString name = selectedUser();
    ask(tr("Delete the gesture password of %1?").arg(name), name, &LocalUsersWt::deleteGesture);
}

void LocalUsersWt::deleteGesture(const QString &name)
{
    const bool deleted = LoginAccess::_instance().deleteUserGesture(name);
    refresh();
    if (!deleted)
        alertFailure(tr("The gesture password could not be deleted."));
}

void LocalUsersWt::confirmRemoval()
{
    const QString name = selectedUser();
    ask(tr("Remove the user %1? Their password and their gesture are deleted with them.").arg(name), name,
        &LocalUsersWt::remove);
}

void LocalUsersWt::ask(const QString &question, const QString &name, void (LocalUsersWt::*action)(const QString &))
{
    auto *box = new AlertBox(window(), AlertBox::Warning, DictDef::_instance().alertTitle(DictDef::WarningTitle),
                             question, kelvra_base::OkButton | kelvra_base::CancelButton);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::accepted, this, [this, name, action] { (this->*action)(name); });
    box->open();
}

void LocalUsersWt::remove(const QString &name)
{
    const UserAdmin::Answer answer = UserAdmin::_instance().remove(name);
    if (answer == UserAdmin::Done)
        kelvra_worker::AuditTrail::_instance().write(kelvra_worker::AuditEvent::RemoveUser, name);
    refresh();
    if (answer != UserAdmin::Done)
        alertFailure(UserAdmin::sentence(answer));
}

void LocalUsersWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        model->retranslate();
        showTexts();
        showSelection();
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_client
