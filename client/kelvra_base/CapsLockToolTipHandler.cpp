#include "host/kelvra_base/CapsLockToolTipHandler.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QToolTip>

#if defined(Q_OS_WIN)
#    include <qt_windows.h>
#endif

namespace kelvra_base {

class CapsLockToolTipHandler::Private
{
public:
    QPointer<QLineEdit> lineEdit;
    QPointer<QWidget> field;
    bool capsLock = false; ///< as far as known
    bool tipShown = false;

    void learn(const QKeyEvent *event);
    void refresh();
    void hide();
};

/** Qt does not tell the state of Caps Lock; where the system does not either, the typed keys give it away. */
void CapsLockToolTipHandler::Private::learn(const QKeyEvent *event)
{
    if (event->key() == Qt::Key_CapsLock) {
        if (!event->isAutoRepeat())
            capsLock = !capsLock;
        return;
    }
    const QString text = event->text();
    if (text.size() != 1 || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return;
    const QChar letter = text.at(0);
    if (letter.toUpper() != letter.toLower())
        capsLock = letter.isUpper() != bool(event->modifiers() & Qt::ShiftModifier);
}

void CapsLockToolTipHandler::Private::refresh()
{
#if defined(Q_OS_WIN)
    capsLock = GetKeyState(VK_CAPITAL) & 1;
#endif
    if (!capsLock || !field || !lineEdit) {
        hide();
        return;
    }
    tipShown = true;
    QToolTip::showText(field->mapToGlobal(QPoint(0, field->height())), tr("Caps Lock is on"), lineEdit);
}

void CapsLockToolTipHandler::Private::hide()
{
    // The tip on the screen may by now be somebody else's.
    if (tipShown && QToolTip::text() == tr("Caps Lock is on"))
        QToolTip::hideText();
    tipShown = false;
}

CapsLockToolTipHandler::CapsLockToolTipHandler(QWidget *owner, QLineEdit *lineEdit, QWidget *field)
    : QObject(owner)
    , d(std::make_unique<Private>())
{
    d->lineEdit = lineEdit;
    d->field = field;
    if (lineEdit)
        lineEdit->installEventFilter(this);
}

CapsLockToolTipHandler::~CapsLockToolTipHandler() = default;

bool CapsLockToolTipHandler::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        d->learn(static_cast<QKeyEvent *>(event));
        d->refresh();
        break;
    case QEvent::MouseButtonRelease: // a click has taken the tip away
        d->refresh();
        break;
    case QEvent::FocusIn:
        // Later, as the rest of the focus change takes every tip away.
        QTimer::singleShot(0, this, [this] {
            // What is shown by then is the reason why the field has been given the focus.
            if (d->lineEdit && d->lineEdit->hasFocus() && !QToolTip::isVisible())
                d->refresh();
        });
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
        d->hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kelvra_base
