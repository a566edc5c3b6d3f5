#include "client/shell/TourInput.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCryptographicHash>
#include <QEnterEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QTableView>
#include <QWindow>

#include <algorithm>

QT_BEGIN_NAMESPACE
// The ways in for test tools: events go through the window system's queue, so that focus, hover and grabs hold.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow *window, QEvent::Type type, int key, Qt::KeyboardModifiers mods,
                                    const QString &text, bool autorep, ushort count);
QT_END_NAMESPACE

namespace kelvra_client {

namespace {

constexpr int betweenClicksMs = 1000; // of the events' clock: no two clicks make a double one
constexpr QChar rememberedChar(0x0001);
constexpr QChar pictureMark('#');
constexpr QChar colorMark('~');
constexpr int vividDifference = 100;         // between the red and the blue of a colour that stands out
constexpr int dragPixels = 16;               // from one move to the next
constexpr int beyondPixels = 4;              // past a place that is drawn through
constexpr int besideLoginPixels = 13;        // from the login's last column to the phone's first
const QColor desktopColor(0x5b, 0x67, 0x7d); // around windows that stand side by side

QList<QWidget *> windowsFromTheTop()
{
    QList<QWidget *> windows;
    const QList<QWidget *> all = QApplication::topLevelWidgets();
    for (QWidget *window :
         QList<QWidget *>{QApplication::activePopupWidget(), QApplication::activeModalWidget()} + all) {
        if (window && window->isVisible() && !window->isMinimized() && !windows.contains(window))
            windows.append(window);
    }
    return windows;
}

QWidget *childOf(QWidget *widget, const QString &name)
{
    if (widget->objectName() == name)
        return widget;
    for (QWidget *child : widget->findChildren<QWidget *>()) {
        if (child->isVisible() && (child->objectName() == name || child->inherits(qUtf8Printable(name))))
            return child;
    }
    return nullptr;
}

QString textOf(const QLineEdit &edit)
{
    const QString text = edit.text();
    if (text.isEmpty())
        return QStringLiteral("nothing");
    if (text.count(rememberedChar) == text.size())
        return QStringLiteral("%1 placeholder characters").arg(text.size());
    return edit.echoMode() == QLineEdit::Password ? QStringLiteral("%1 hidden characters").arg(text.size()) : text;
}

QString textOf(const QAbstractItemView &view)
{
    QStringList cells;
    for (int column = 0; column < view.model()->columnCount(); ++column)
        cells << view.model()->index(0, column).data().toString();
    return QStringLiteral("rows: %1, the first: %2")
        .arg(view.model()->rowCount())
        .arg(cells.join(QStringLiteral(" / ")));
}

QString textOf(const QWidget &widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        return textOf(*edit);
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *box = qobject_cast<const QCheckBox *>(&widget))
        return box->isChecked() ? QStringLiteral("checked") : QStringLiteral("not checked");
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return box->currentText();
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
        return textOf(*view);
    return QStringLiteral("shown");
}

QString nameOfPicture(QWidget &widget)
{
    const QImage image = widget.grab().toImage();
    const QByteArray bits =
        QByteArray::fromRawData(reinterpret_cast<const char *>(image.constBits()), int(image.sizeInBytes()));
    constexpr int digits = 8;
    return QString::fromLatin1(QCryptographicHash::hash(bits, QCryptographicHash::Md5).toHex().left(digits));
}

QString colorsOf(QWidget &widget)
{
    const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    bool red = false;
    bool blue = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            red |= qRed(pixel) - qBlue(pixel) > vividDifference;
            blue |= qBlue(pixel) - qRed(pixel) > vividDifference;
        }
    }
    if (red)
        return blue ? QStringLiteral("red and blue") : QStringLiteral("red");
    return blue ? QStringLiteral("blue") : QStringLiteral("grey");
}

/** Where a click is meant for: a check box takes it on its mark and text only, which stand at its start. */
QPoint clickPoint(const QWidget &widget)
{
    const QPoint middle = widget.rect().center();
    return qobject_cast<const QCheckBox *>(&widget) ? QPoint(middle.y(), middle.y()) : middle;
}

void takePointerOff(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UnderMouse, false);
    QEvent leave(QEvent::Leave);
    QHoverEvent hoverLeave(QEvent::HoverLeave, QPoint(-1, -1), QPoint(-1, -1));
    QCoreApplication::sendEvent(widget, &leave);
    QCoreApplication::sendEvent(widget, &hoverLeave);
}

/** Of a window in a picture: what has the higher number lies above. */
int layerOf(const QWidget *window)
{
    if (window->windowType() == Qt::ToolTip)
        return 3;
    if (window == QApplication::activePopupWidget())
        return 2;
    return window == QApplication::activeModalWidget() ? 1 : 0;
}

} // namespace

QWidget *TourInput::find(const QString &path)
{
    for (QWidget *widget : windowsFromTheTop()) {
        for (const QString &name : path.split(QLatin1Char('/')))
            widget = widget ? childOf(widget, name) : nullptr;
        if (widget)
            return widget;
    }
    return nullptr;
}

QString TourInput::seen(const QString &path)
{
    const bool asPicture = path.endsWith(pictureMark);
    const bool asColors = path.endsWith(colorMark);
    QWidget *widget = find(asPicture || asColors ? path.chopped(1) : path);
    if (!widget)
        return QStringLiteral("not shown");
    if (asColors)
        return colorsOf(*widget);
    return asPicture ? nameOfPicture(*widget) : textOf(*widget).simplified();
}

/** `down`: the button is held after the event. */
void TourInput::mouse(QWidget *window, const QPoint &at, QEvent::Type type, bool down)
{
    QWindow *handle = window->windowHandle();
    const QPoint global = window->mapToGlobal(at);
    if (pointerWindow != handle) {
        QEvent leave(QEvent::Leave);
        if (pointerWindow)
            QCoreApplication::sendEvent(pointerWindow, &leave);
        QEnterEvent enter(at, at, global);
        QCoreApplication::sendEvent(handle, &enter);
        pointerWindow = handle;
    }
    const bool moved = type == QEvent::MouseMove;
    qt_handleMouseEvent(handle, at, global, down ? Qt::LeftButton : Qt::NoButton, moved ? Qt::NoButton : Qt::LeftButton,
                        type, Qt::NoModifier, ++clock);
}

void TourInput::settle()
{
    const QWidget *modal = QApplication::activeModalWidget();
    const bool blocked = pointerWindow && modal && pointerWindow != modal->windowHandle();
    for (QWidget *widget : QApplication::allWidgets()) {
        const bool reachable = widget->isVisible() && !(blocked && widget->window()->windowHandle() == pointerWindow);
        if (widget->testAttribute(Qt::WA_UnderMouse) && !reachable)
            takePointerOff(widget);
    }
    if (blocked)
        pointerWindow = nullptr;
}

void TourInput::moveTo(const QString &path)
{
    if (QWidget *widget = find(path))
        mouse(widget->window(), widget->mapTo(widget->window(), clickPoint(*widget)), QEvent::MouseMove);
}

void TourInput::click(const QString &path)
{
    QWidget *widget = find(path);
    if (!widget)
        return;
    const QPointer<QWidget> window = widget->window();
    const QPoint at = widget->mapTo(window, clickPoint(*widget));
    pressButton(window, at);
    if (window && window->windowHandle())
        mouse(window, at, QEvent::MouseButtonRelease);
}

void TourInput::pressButton(QWidget *window, const QPoint &at)
{
    mouse(window, at, QEvent::MouseMove);
    // Where no window manager runs, a click alone would not bring the keys to its window.
    if (!QApplication::activePopupWidget())
        QApplication::setActiveWindow(window);
    clock += betweenClicksMs;
    mouse(window, at, QEvent::MouseButtonPress, true);
}

void TourInput::draw(const QString &pad, const QString &places)
{
    QWidget *widget = find(pad);
    if (!widget || !widget->layout())
        return;
    const QPointer<QWidget> window = widget->window();
    QVector<QPoint> points;
    for (const QChar place : places) {
        if (const QLayoutItem *item = widget->layout()->itemAt(place.digitValue()))
            points.append(widget->mapTo(window, item->geometry().center()));
    }
    if (points.isEmpty())
        return;
    // A line that follows the pointer asks the cursor, which knows nothing of the events below.
    QCursor::setPos(window->mapToGlobal(points.constLast()));
    QPoint at = points.constFirst();
    pressButton(window, at);
    for (const QPoint &point : points.mid(1)) {
        QLineF way(at, point);
        way.setLength(way.length() + beyondPixels);
        drag(window, at, way.p2().toPoint());
        at = way.p2().toPoint();
    }
    mouse(window, at, QEvent::MouseButtonRelease);
}

void TourInput::drag(QWidget *window, const QPoint &from, const QPoint &to)
{
    const int moves = 1 + int(QLineF(from, to).length()) / dragPixels;
    for (int move = 1; move <= moves; ++move)
        mouse(window, from + (to - from) * move / moves, QEvent::MouseMove, true);
}

void TourInput::shift(const QString &path, const QPoint &way)
{
    if (QWidget *widget = find(path))
        widget->window()->move(widget->window()->pos() + way);
}

void TourInput::openPhone()
{
    QWidget *login = find(QStringLiteral("kelvra_login__LoginDlg"));
    const QString handle = QStringLiteral("phoneHandle");
    if (!login || !find(handle))
        return;
    click(handle);
    QWidget *caption = find(QStringLiteral("phoneCaption"));
    if (!caption)
        return;
    // Whole, wherever the screen ends: pictures are taken of windows.
    QWidget *phone = caption->window();
    phone->resize(phone->maximumSize());
    const QRect frame = login->frameGeometry();
    phone->move(frame.right() + besideLoginPixels, qMax(0, frame.center().y() - phone->height() / 2));
}

void TourInput::minimize(const QString &path)
{
    if (QWidget *widget = find(path))
        widget->window()->showMinimized();
}

void TourInput::press(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QList<QWidget *> windows = windowsFromTheTop();
    QWidget *window = QApplication::activePopupWidget();
    if (!window)
        window = QApplication::activeWindow();
    if (!window && !windows.isEmpty())
        window = windows.first();
    // The press may close the window.
    const QPointer<QWidget> guard(window);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (guard && guard->windowHandle())
            qt_handleKeyEvent(guard->windowHandle(), type, key, modifiers, text, false, 1);
    }
}

void TourInput::type(const QString &text)
{
    for (const QChar character : text)
        press(character.toUpper().unicode(), Qt::NoModifier, character);
}

QPixmap TourInput::picture()
{
    QList<QWidget *> windows = windowsFromTheTop();
    if (windows.isEmpty())
        return {};
    const auto isSmaller = [](const QWidget *one, const QWidget *other) {
        return one->width() * one->height() < other->width() * other->height();
    };
    QWidget *largest = *std::max_element(windows.cbegin(), windows.cend(), isSmaller);
    std::stable_sort(windows.begin(), windows.end(), [isSmaller](const QWidget *one, const QWidget *other) {
        return layerOf(one) != layerOf(other) ? layerOf(one) < layerOf(other) : isSmaller(other, one);
    });
    QRect whole = largest->geometry();
    for (const QWidget *window : qAsConst(windows))
        whole |= layerOf(window) == 0 ? window->geometry() : QRect();
    const qreal ratio = largest->devicePixelRatioF();
    QPixmap result(whole.size() * ratio);
    result.setDevicePixelRatio(ratio);
    result.fill(desktopColor);
    QPainter painter(&result);
    for (QWidget *window : qAsConst(windows))
        painter.drawPixmap(window->geometry().topLeft() - whole.topLeft(), window->grab());
    return result;
}

} // namespace kelvra_client
