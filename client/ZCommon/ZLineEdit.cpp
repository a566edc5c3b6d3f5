#include "host/ZCommon/ZLineEdit.h"

#include <QFocusEvent>

namespace ZCOMMON {

ZLineEdit::ZLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

ZLineEdit::~ZLineEdit() = default;

void ZLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    emit signalFocusEvent(true);
}

void ZLineEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    emit signalFocusEvent(false);
}

} // namespace ZCOMMON
