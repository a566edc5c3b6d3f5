#pragma once

#include "client/kelvra_data/AuditEntry.h"

#include <QWidget>

#include <memory>

namespace kelvra_client {

class AuditModel;

namespace Ui {
class AuditLogWt;
}

/** The audit log as a table that new entries appear in by themselves. */
class AuditLogWt : public QWidget
{
    Q_OBJECT

public:
    explicit AuditLogWt(QWidget *parent = nullptr);
    ~AuditLogWt() override;

    /** Reads the log again. */
    void load();

protected:
    void changeEvent(QEvent *event) override;

private:
    void add(const kelvra_data::AuditEntry &entry);
    void showTexts();

    const std::unique_ptr<Ui::AuditLogWt> ui;
    AuditModel *const model;
};

} // namespace kelvra_client
