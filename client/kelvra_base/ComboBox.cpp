#include "host/kelvra_base/ComboBox.h"

#include "host/ZCommon/StyleDefs.h"

#include <QHelpEvent>
#include <QListWidget>
#include <QStylePainter>
#include <QToolTip>

namespace kelvra_base {

namespace {

constexpr int textMargin = 1; // pixels that styles leave at either side of the text
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

QString ComboBox::shownText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect place = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, place.width() - 2 * textMargin);
}

bool ComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || shownText() == currentText())
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), currentText(), this);
    return true;
}

void ComboBox::paintEvent(QPaintEvent *event)
{
    if (isEditable() || currentText().isEmpty()) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = shownText();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace kelvra_base
