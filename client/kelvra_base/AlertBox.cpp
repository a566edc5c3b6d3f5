#include "client/kelvra_base/AlertBox.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace kelvra_base {

namespace {

constexpr int minimumTextWidth = 256; ///< makes a dialog of 360 pixels
constexpr int maximumTextWidth = 416; ///< makes a dialog of 520 pixels
constexpr int sideMargin = 24;
constexpr int topMargin = 45 + 24; ///< clear of the title bar
constexpr int bottomMargin = 20;
constexpr int iconSize = 40;
constexpr int iconSpacing = 16;
constexpr int buttonRowSpacing = 24; ///< above the buttons
constexpr int buttonSpacing = 12;    ///< between them
constexpr int buttonWidth = 88;
constexpr int buttonHeight = 30;
constexpr int millisecondsPerSecond = 1000;
constexpr QChar zeroWidthSpace(0x200b);

QString iconPath(AlertBox::Icon icon)
{
    switch (icon) {
    case AlertBox::Information:
        return QStringLiteral(":/images/images/alert_info.png");
    case AlertBox::Warning:
        return QStringLiteral(":/images/images/alert_warning.png");
    case AlertBox::Error:
        break;
    }
    return QStringLiteral(":/images/images/alert_error.png");
}

/** Lets words that are wider than a line, such as paths, break where the line ends. */
QString breakable(const QString &text, const QFontMetrics &metrics)
{
    QString result;
    int wordWidth = 0;
    for (const QChar character : text) {
        wordWidth = character.isSpace() ? 0 : wordWidth + metrics.horizontalAdvance(character);
        if (wordWidth > maximumTextWidth && !character.isLowSurrogate() && !character.isMark()) {
            result += zeroWidthSpace;
            wordWidth = metrics.horizontalAdvance(character);
        }
        result += character;
    }
    return result;
}

void fitToText(QLabel *label)
{
    label->ensurePolished();
    const QFontMetrics metrics = label->fontMetrics();
    label->setText(breakable(label->text(), metrics));
    const QRect room(0, 0, maximumTextWidth, QWIDGETSIZE_MAX);
    const int width = metrics.boundingRect(room, Qt::TextWordWrap, label->text()).width() + 1;
    label->setFixedWidth(qBound(minimumTextWidth, width, maximumTextWidth));
    label->setMinimumHeight(qMax(iconSize, label->heightForWidth(label->width())));
}

QPushButton *createButton(QWidget *parent, const char *name, const char *style)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setProperty(style, true);
    button->setMinimumSize(buttonWidth, buttonHeight);
    button->setAutoDefault(false);
    return button;
}

} // namespace

AlertBox::AlertBox(QWidget *parent, Icon icon, const QString &title, const QString &text, int buttons)
    : CommonDialog(parent, 0, 1)
    , pressed(buttons & CancelButton ? CancelButton : OkButton)
{
    setObjectName(QStringLiteral("alertBox"));
    setModal(true);
    setTitle(title);
    createButtons(buttons);
    setUpLayout(icon, text);
    setAccessibleDescription(text);
    retranslateUi();
}

AlertBox::~AlertBox() = default;

void AlertBox::createButtons(int buttons)
{
    if (buttons & OkButton || !(buttons & CancelButton)) {
        okBt = createButton(this, "okBt", "common_bt_style1");
        connect(okBt, &QPushButton::clicked, this, [this] {
            pressed = OkButton;
            accept();
        });
    }
    if (buttons & CancelButton) {
        cancelBt = createButton(this, "cancelBt", "common_bt_style2");
        connect(cancelBt, &QPushButton::clicked, this, [this] {
            pressed = CancelButton;
            reject();
        });
    }
    (okBt ? okBt : cancelBt)->setFocus();
}

void AlertBox::setUpLayout(Icon icon, const QString &text)
{
    auto *picture = new QLabel(this);
    picture->setFixedSize(iconSize, iconSize);
    picture->setScaledContents(true); // smooth at a broken scale factor
    picture->setPixmap(QIcon(iconPath(icon)).pixmap(iconSize, iconSize));
    auto *label = new QLabel(this);
    label->setObjectName(QStringLiteral("text"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(text);
    fitToText(label);

    auto *message = new QHBoxLayout;
    message->setSpacing(iconSpacing);
    message->addWidget(picture, 0, Qt::AlignTop);
    message->addWidget(label, 0, Qt::AlignVCenter);
    auto *row = new QHBoxLayout;
    row->setSpacing(buttonSpacing);
    row->addStretch();
    for (QPushButton *button : {okBt, cancelBt}) {
        if (button)
            row->addWidget(button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(sideMargin, topMargin, sideMargin, bottomMargin);
    layout->setSpacing(buttonRowSpacing);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(message);
    layout->addLayout(row);
}

void AlertBox::closeAfter(int seconds)
{
    QTimer::singleShot(seconds * millisecondsPerSecond, this, &AlertBox::quitSystem);
}

MessageBoxButton AlertBox::answer() const
{
    return pressed;
}

MessageBoxButton AlertBox::ask(QWidget *parent, Icon icon, const QString &title, const QString &text, int buttons,
                               int seconds)
{
    const QPointer<AlertBox> box = new AlertBox(parent, icon, title, text, buttons);
    const MessageBoxButton unanswered = box->answer();
    if (seconds > 0)
        box->closeAfter(seconds);
    box->exec();
    if (!box)
        return unanswered;
    const MessageBoxButton answer = box->answer();
    delete box;
    return answer;
}

void AlertBox::quitSystem()
{
    (cancelBt ? cancelBt : okBt)->click();
}

void AlertBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    CommonDialog::changeEvent(event);
}

void AlertBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        CommonDialog::keyPressEvent(event);
        return;
    }
    // A key that is still held from the page behind must not answer a question nobody has read.
    if (event->isAutoRepeat())
        return;
    const bool cancel = !okBt || (cancelBt && cancelBt->hasFocus());
    (cancel ? cancelBt : okBt)->click();
}

void AlertBox::retranslateUi()
{
    if (okBt)
        okBt->setText(tr("OK"));
    if (cancelBt)
        cancelBt->setText(tr("Cancel"));
}

} // namespace kelvra_base
