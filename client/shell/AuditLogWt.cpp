#include "client/shell/AuditLogWt.h"

#include "client/kelvra_data/Store.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "client/shell/AuditModel.h"
#include "client/shell/AuditOrder.h"
#include "ui_AuditLogWt.h"

#include <QEvent>
#include <QHeaderView>

using kelvra_data::Store;
using kelvra_worker::AuditTrail;

namespace kelvra_client {

namespace {

constexpr int timeColumnWidth = 160;  // pixels
constexpr int eventColumnWidth = 180; // pixels
constexpr int userColumnWidth = 120;  // pixels

} // namespace

AuditLogWt::AuditLogWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::AuditLogWt>())
    , model(new AuditModel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    ui->setupUi(this);
    setFocusProxy(ui->auditTable);
    auto *order = new AuditOrder(this);
    order->setSourceModel(model);
    ui->auditTable->setModel(order);
    ui->auditTable->sortByColumn(AuditModel::TimeColumn, Qt::DescendingOrder);
    QHeaderView *header = ui->auditTable->horizontalHeader();
    header->resizeSection(AuditModel::TimeColumn, timeColumnWidth);
    header->resizeSection(AuditModel::EventColumn, eventColumnWidth);
    header->resizeSection(AuditModel::UserColumn, userColumnWidth);
    showTexts();
    connect(&AuditTrail::_instance(), &AuditTrail::entryAdded, this, &AuditLogWt::add);
}

AuditLogWt::~AuditLogWt() = default;

void AuditLogWt::load()
{
    model->setEntries(Store::_instance().auditLog(AuditModel::capacity));
    showTexts();
}

void AuditLogWt::add(const kelvra_data::AuditEntry &entry)
{
    model->add(entry);
    showTexts();
}

void AuditLogWt::showTexts()
{
    const int count = model->rowCount();
    ui->auditCount->setText(count < AuditModel::capacity ? tr("Entries: %1").arg(count)
                                                         : tr("The newest %1 entries").arg(count));
    ui->auditTable->setEmptyText(tr("Nothing has been recorded yet."));
}

void AuditLogWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        model->retranslate();
        showTexts();
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_client
