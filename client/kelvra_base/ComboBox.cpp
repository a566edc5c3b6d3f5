#include "host/kelvra_base/ComboBox.h"

#include "host/ZCommon/StyleDefs.h"

#include <QListWidget>

namespace kelvra_base {

namespace {

const QString popupStyle = QStringLiteral("QComboBoxPrivateContainer{border:1px solid %1}");

} // namespace

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
    , listWt(new QListWidget(this))
{
    setModel(listWt->model());
    setView(listWt);
    // Owners take the list's border away, so its window bears the frame. A rule in the application's style sheet
    // would draw the frame, but leave no room for it.
    listWt->parentWidget()->setStyleSheet(popupStyle.arg(ZCOMMON::colorBorder));
}

ComboBox::~ComboBox() = default;

QListWidget *ComboBox::getListWt() const
{
    return listWt;
}

} // namespace kelvra_base
