#include "host/kelvra_base/CommonDialog.h"

#include "client/ZCommon/FramelessBehaviour.h"
#include "client/ZCommon/WindowPlace.h"
#include "host/ZCommon/StyleDefs.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

namespace kelvra_base {

namespace {

constexpr int barHeight = 45;
constexpr int buttonSize = 14;
constexpr int buttonMargin = 15;  ///< to the dialog's edges
constexpr int buttonSpacing = 16; ///< between two buttons
constexpr int titleMargin = 20;
constexpr int titlePixels = 14;

const QColor bodyColor(0x14, 0x1d, 0x30);
const QColor barColor(0x1a, 0x25, 0x3c);
const QColor titleColor(0xcc, 0xd3, 0xdd);

QPushButton *createFrameButton(QWidget *dialog, const char *name)
{
    auto *button = new QPushButton(dialog);
    button->setObjectName(QLatin1String(name));
    button->setFixedSize(buttonSize, buttonSize);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    return button;
}

} // namespace

class CommonDialog::Private
{
public:
    explicit Private(CommonDialog *owner)
        : dialog(owner)
        , frame(owner)
    {
    }

    void createButtons(bool resizeBts, bool close);
    void nameButtons() const;
    void placeButtons();
    int titleRight() const;
    void paint(QPainter &painter) const;
    bool takesClose(QCloseEvent *event) const;
    bool takesKey(const QKeyEvent *event) const;

    CommonDialog *const dialog;
    ZCOMMON::FramelessBehaviour frame;
    QString title;
    QPushButton *closeBt = nullptr;    ///< null without a close button
    QPushButton *maximizeBt = nullptr; ///< null without resize buttons, as is the next
    QPushButton *minimizeBt = nullptr;
};

void CommonDialog::Private::createButtons(bool resizeBts, bool close)
{
    if (close) {
        closeBt = createFrameButton(dialog, "closeBt");
        closeBt->setProperty("common_close_bt_style1", true);
        connect(closeBt, &QPushButton::clicked, dialog, &CommonDialog::slotCloseBtClicked);
    }
    if (resizeBts) {
        maximizeBt = createFrameButton(dialog, "maximizeBt");
        maximizeBt->setCheckable(true);
        connect(maximizeBt, &QPushButton::toggled, dialog, &CommonDialog::slotMaximizeBtClicked);
        minimizeBt = createFrameButton(dialog, "minimizeBt");
        connect(minimizeBt, &QPushButton::clicked, dialog, &CommonDialog::slotMinimizeBtClicked);
    }
}

void CommonDialog::Private::nameButtons() const
{
    if (closeBt)
        closeBt->setAccessibleName(CommonDialog::tr("Close"));
    if (maximizeBt) {
        maximizeBt->setAccessibleName(CommonDialog::tr("Maximize"));
        minimizeBt->setAccessibleName(CommonDialog::tr("Minimize"));
    }
}

void CommonDialog::Private::placeButtons()
{
    int x = dialog->width() - buttonMargin;
    for (QPushButton *button : {closeBt, maximizeBt, minimizeBt}) {
        if (!button)
            continue;
        button->move(x - buttonSize, buttonMargin);
        button->raise();
        x -= buttonSize + buttonSpacing;
    }
}

int CommonDialog::Private::titleRight() const
{
    int right = dialog->width() - titleMargin;
    for (const QPushButton *button : {closeBt, maximizeBt, minimizeBt}) {
        if (button)
            right = qMin(right, button->x() - buttonSpacing);
    }
    return right;
}

void CommonDialog::Private::paint(QPainter &painter) const
{
    const QRect edge = dialog->rect().adjusted(0, 0, -1, -1);
    painter.fillRect(QRect(0, 0, dialog->width(), barHeight), barColor);
    painter.setPen(QColor(ZCOMMON::colorBorder));
    painter.drawLine(0, barHeight - 1, edge.right(), barHeight - 1);
    painter.drawRect(edge);

    QFont font(QStringLiteral("microsoft yahei"));
    font.setPixelSize(titlePixels);
    painter.setFont(font);
    painter.setPen(titleColor);
    const QRect place(titleMargin, 0, titleRight() - titleMargin, barHeight - 1);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(title, Qt::ElideRight, place.width()));
}

bool CommonDialog::Private::takesClose(QCloseEvent *event) const
{
    // Only what the window system asks for: an override of quitSystem() may itself call close().
    if (!event->spontaneous() || !dialog->isVisible())
        return false;
    const QPointer<QWidget> guard(dialog);
    dialog->slotCloseBtClicked();
    event->setAccepted(!guard || !guard->isVisible());
    return true;
}

bool CommonDialog::Private::takesKey(const QKeyEvent *event) const
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        frame.demoteDefaultButtons();
    if (!event->matches(QKeySequence::Cancel))
        return false;
    dialog->slotCloseBtClicked();
    return true;
}

CommonDialog::CommonDialog(QWidget *parent, int resizeFlag, int closeBtFlag)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint)
    , d(std::make_unique<Private>(this))
{
    if (resizeFlag)
        setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, bodyColor);
    setPalette(colors);
    d->createButtons(resizeFlag != 0, closeBtFlag != 0);
    d->nameButtons();
    d->placeButtons();
    ZCOMMON::WindowPlace::centre(this);
}

CommonDialog::~CommonDialog() = default;

void CommonDialog::setTitle(const QString &title)
{
    d->title = title;
    setWindowTitle(title);
    update();
}

void CommonDialog::quitSystem()
{
    reject();
}

void CommonDialog::slotCloseBtClicked()
{
    quitSystem();
}

void CommonDialog::slotMaximizeBtClicked(bool maximize)
{
    if (maximize)
        showMaximized();
    else
        showNormal();
}

void CommonDialog::slotMinimizeBtClicked()
{
    showMinimized();
}

void CommonDialog::mousePressEvent(QMouseEvent *event)
{
    const bool onBar = event->button() == Qt::LeftButton && event->pos().y() < barHeight;
    if (onBar && d->maximizeBt && event->type() == QEvent::MouseButtonDblClick)
        slotMaximizeBtClicked(!isMaximized());
    else
        event->setAccepted(onBar && d->frame.press(event));
}

void CommonDialog::mouseMoveEvent(QMouseEvent *event)
{
    event->setAccepted(d->frame.move(event));
}

void CommonDialog::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(d->frame.release(event));
}

void CommonDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    d->paint(painter);
}

void CommonDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    d->placeButtons();
}

bool CommonDialog::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (d->takesKey(static_cast<QKeyEvent *>(event)))
            return true;
        break;
    case QEvent::Close:
        if (d->takesClose(static_cast<QCloseEvent *>(event)))
            return true;
        break;
    case QEvent::LanguageChange:
        d->nameButtons();
        break;
    case QEvent::WindowStateChange:
        if (d->maximizeBt) {
            const QSignalBlocker noClick(d->maximizeBt);
            d->maximizeBt->setChecked(isMaximized());
        }
        d->frame.cancelDrag();
        break;
    case QEvent::Show:
        d->placeButtons(); // above the form that was set up after them
        break;
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        d->frame.cancelDrag();
        break;
    default:
        break;
    }
    return QDialog::event(event);
}

} // namespace kelvra_base
