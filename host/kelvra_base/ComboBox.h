#pragma once

#include "host/Export.h"

#include <QComboBox>

class QListWidget;

namespace kelvra_base {

/**
 * A combo box whose drop-down is a list widget that its owner may style. A chosen text wider than the box is shown
 * shortened with an ellipsis and offered whole as a tool tip.
 */
class KELVRA_BASE_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** @param parent owner, may be null */
    explicit ComboBox(QWidget *parent = nullptr);
    ~ComboBox() override;

    /** The list that drops down; owned by the box and never null. */
    QListWidget *getListWt() const;

protected:
    /** Offers the tool tip of a text that is shown shortened. */
    bool event(QEvent *event) override;
    /** Draws the box with as much of its text as fits. */
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;

    QListWidget *listWt;
};

} // namespace kelvra_base
