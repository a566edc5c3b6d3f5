#include "Platform.h"
#include "client/kelvra_base/AlertBox.h"
#include "host/ZCommon/MoveableDialog.h"
#include "host/ZCommon/SmoothProgress.h"
#include "host/ZCommon/ToolsCollection.h"
#include "host/ZCommon/ZLabel.h"
#include "host/ZCommon/ZWidget.h"
#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "host/kelvra_base/ComboBox.h"
#include "host/kelvra_base/PwdStrengthWt.h"

#include <QtTest>
#include <QtWidgets>

using namespace kelvra_base;
using namespace ZCOMMON;

namespace {

/** A dialog of 300x200 with a panel and, on the panel, a default button and a line edit with the focus. */
std::unique_ptr<QDialog> showDialog(bool framed)
{
    std::unique_ptr<QDialog> dialog(framed ? static_cast<QDialog *>(new CommonDialog(nullptr, 0, 1))
                                           : new MoveableDialog(nullptr, QString(), Qt::black));
    auto *panel = new ZWidget(dialog.get());
    panel->setGeometry(0, 50, 300, 150);
    auto *button = new QPushButton("button", panel);
    button->setObjectName("button");
    button->setGeometry(10, 10, 80, 30);
    button->setDefault(true);
    auto *edit = new QLineEdit(panel);
    edit->setGeometry(10, 60, 80, 30);
    edit->setFocus();
    dialog->setGeometry(100, 100, 300, 200);
    dialog->show();
    return QTest::qWaitForWindowActive(dialog.get()) ? std::move(dialog) : nullptr;
}

} // namespace

class TestToolkit : public QObject
{
    Q_OBJECT

private slots:
    void dialogFollowsDrag()
    {
        const QPoint onButton(40, 75), onEdit(40, 125), onBar(150, 20);
        const QVector<std::tuple<bool, QPoint, Qt::MouseButton, bool>> rows = {
            // Whether the dialog has a frame, what is pressed on its panel or above, whether it moves
            {false, {200, 120}, Qt::LeftButton, true}, {false, onButton, Qt::LeftButton, false},
            {false, onEdit, Qt::LeftButton, false},    {false, onBar, Qt::RightButton, false},
            {true, onBar, Qt::LeftButton, true},       {true, {200, 120}, Qt::LeftButton, false}};
        for (const auto &[framed, press, button, moves] : rows) {
            const auto dialog = showDialog(framed);
            const QPoint end = dialog->pos() + (moves ? QPoint(30, 20) : QPoint());
            QWindow *const window = dialog->windowHandle();
            QTest::mousePress(window, button, {}, press);
            QTest::mouseMove(window, press + QPoint(30, 20));
            QCOMPARE(dialog->pos(), end);
            QTest::mouseRelease(window, button, {}, press);
            QTest::mouseMove(window, press + QPoint(50, 30));
            QCOMPARE(dialog->pos(), end);
            if (auto *moveable = qobject_cast<MoveableDialog *>(dialog.get()))
                moveable->setDefaultPos({70, 50}); // is for the first show
            for (const bool visible : {false, true})
                dialog->setVisible(visible);
            QCOMPARE(dialog->pos(), end);
        }
    }

    void frameLeavesEnterAlone()
    {
        const auto frame = showDialog(true);
        QSignalSpy clicked(frame->findChild<QPushButton *>("button"), &QPushButton::clicked);
        QTest::keyClick(frame->windowHandle(), Qt::Key_Return);
        QTest::keyClick(frame->windowHandle(), Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(clicked.isEmpty() && frame->isVisible());
        QTest::keyClick(frame->windowHandle(), Qt::Key_Escape);
        QVERIFY(frame->isHidden());
    }

    void progressGlides()
    {
        SmoothProgress progress;
        QVector<int> seen;
        connect(&progress, &SmoothProgress::signalProgress, this, [&seen](int value) { seen << value; });
        progress.setCurrentProgress(60);
        QVERIFY(seen.isEmpty());
        QTRY_VERIFY(seen.size() > 3);
        progress.setCurrentProgress(100);
        QTRY_COMPARE(seen.last(), 100);
        QVERIFY(seen.size() > 20 && std::is_sorted(seen.cbegin(), seen.cend()));
        QCOMPARE(std::adjacent_find(seen.cbegin(), seen.cend()), seen.cend());
        progress.setCurrentProgress(100); // there already
        progress.setCurrentProgress(97);
        QTRY_COMPARE(seen.last(), 97);
        progress.resetProgress();
        progress.setCurrentProgress(1);
        QTRY_COMPARE(seen.last(), 1);
        QCOMPARE(seen.mid(seen.indexOf(100)), QVector<int>({100, 99, 98, 97, 1}));
    }

    void progressDiesInItsSlot()
    {
        const QPointer<SmoothProgress> progress = new SmoothProgress;
        connect(progress.data(), &SmoothProgress::signalProgress, this, [&] { delete progress; });
        progress->setCurrentProgress(100);
        QTRY_VERIFY(!progress);
    }

    void strength()
    {
        using Grades = QVector<QPair<QString, PwdStrength>>;
        const Grades grades = {{"", PwdLengthIllegal},
                               {"Abcde1!", PwdLengthIllegal},           // 7 characters
                               {"Abcdefghijklmno1!", PwdLengthIllegal}, // 17
                               {"Abcdefghijklmn1!", PwdStrong},         // 16
                               {"abcd efgh", PwdTooSimple},             // a blank is no kind
                               {"abcdefg1", PwdWeak},
                               {"Abcdefg1", PwdMedium},
                               {"abcdef\U0001F600", PwdWeak}}; // surrogates count twice
        for (const auto &[pwd, grade] : grades) {
            PwdStrengthWt meter;
            meter.resize(200, 10);
            const QImage track = meter.grab().toImage();
            QVERIFY2(meter.setPwd(pwd) == grade, qPrintable(pwd));
            QCOMPARE(meter.grab().toImage() == track, pwd.isEmpty());
        }
        QCOMPARE(ToolsCollection::reverseString("ab\U0001F600\U0001F511z"), QString("z\U0001F511\U0001F600ba"));
    }

    void labelIsElided()
    {
        const QString text = "a title that is far too long for its label";
        ZLabel label;
        label.setText(text);
        label.resize(80, 20);
        QLabel shown(label.fontMetrics().elidedText(text, Qt::ElideRight, 80));
        shown.resize(80, 20);
        QCOMPARE(label.grab().toImage(), shown.grab().toImage());
        QCOMPARE(label.toolTip(), text);
        label.resize(label.sizeHint());
        (void)label.grab(); // delivers the resize
        QCOMPARE(label.toolTip(), QString());
    }

    void capsLockTip()
    {
        if (isWindows)
            QSKIP("The system tells the state of the real key.");
        QWidget window;
        auto *field = new QWidget(&window);
        auto *edit = new QLineEdit(field);
        auto *other = new QLineEdit(&window);
        new CapsLockToolTipHandler(&window, edit, field);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit->setFocus();
        QTest::keyClick(edit, 'a');
        QTest::keyClick(edit, 'A', Qt::ShiftModifier);
        QVERIFY(!QToolTip::isVisible());
        QTest::keyClick(edit, 'A');
        QCOMPARE(QToolTip::text(), QString("Caps Lock is on"));
        other->setFocus();
        QTRY_VERIFY(!QToolTip::isVisible());
        edit->setFocus();
        QTRY_VERIFY(QToolTip::isVisible());
        QTest::keyClick(edit, Qt::Key_CapsLock);
        QTRY_VERIFY(!QToolTip::isVisible());
        QTest::keyClick(edit, Qt::Key_CapsLock);
        other->setFocus();
        edit->setFocus();
        QToolTip::showText(QPoint(0, 0), "The reason for the focus", edit);
        QCoreApplication::processEvents();
        QCOMPARE(QToolTip::text(), QString("The reason for the focus"));
    }

    void alertAnswers()
    {
        const int both = OkButton | CancelButton;
        const QVector<std::tuple<int, QVector<int>, int>> rows = {{OkButton, {Qt::Key_Return}, OkButton},
                                                                  {both, {Qt::Key_Enter}, OkButton},
                                                                  {OkButton, {Qt::Key_Escape}, OkButton},
                                                                  {both, {Qt::Key_Escape}, CancelButton},
                                                                  {both, {Qt::Key_Tab, Qt::Key_Return}, CancelButton},
                                                                  {both, {}, CancelButton}}; // by itself
        QWidget owner(nullptr, Qt::FramelessWindowHint); // a frame would count when the box is centred
        owner.setGeometry(100, 100, 700, 500);
        owner.show();
        QVERIFY(QTest::qWaitForWindowActive(&owner));
        for (const auto &[buttons, keys, answer] : rows) {
            int clicks = 0;
            QTimer::singleShot(0, this, [this, &owner, &clicks, keysToPress = keys] {
                auto *box = QApplication::activeModalWidget();
                QVERIFY(QTest::qWaitForWindowActive(box));
                QCOMPARE(box->findChild<QLabel *>("text")->textFormat(), Qt::PlainText);
                QVERIFY((box->geometry().center() - owner.geometry().center()).manhattanLength() < 4);
                for (auto *button : box->findChildren<QPushButton *>(QRegularExpression("^(ok|cancel)Bt$")))
                    connect(button, &QPushButton::clicked, this, [&] { ++clicks; });
                // A key held down on the page behind answers nothing.
                QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
                QApplication::sendEvent(box->focusWidget(), &held);
                QCOMPARE(clicks, 0);
                for (const int key : keysToPress)
                    QTest::keyClick(box->windowHandle(), Qt::Key(key));
                QTimer::singleShot(0, this,
                                   [] {}); // the keys' own events may have hidden from the alert that it is over
            });
            const int seconds = keys.isEmpty() ? 1 : 5; // the latter only ends a failed check
            QCOMPARE(int(AlertBox::ask(&owner, AlertBox::Warning, "title", "text", buttons, seconds)), answer);
            QCOMPARE(clicks, 1);
        }
    }

    void alertStaysOnItsWindow()
    {
        QWidget owner(nullptr, Qt::FramelessWindowHint); // a frame would count when the box is centred
        owner.setGeometry(60, 40, 600, 400);
        owner.show();
        AlertBox box(&owner, AlertBox::Error, "title", "text");
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const auto distance = [&] { return (box.geometry().center() - owner.geometry().center()).manhattanLength(); };
        owner.windowHandle()->setPosition(120, 100); // as a window manager does
        QTRY_VERIFY(distance() < 4);
        box.windowHandle()->setPosition(0, 0);
        QTRY_VERIFY(distance() < 4);
        QTest::mousePress(box.windowHandle(), Qt::LeftButton, {}, {60, 20});
        QTest::mouseMove(box.windowHandle(), {90, 30});
        QTest::mouseRelease(box.windowHandle(), Qt::LeftButton, {}, {90, 30});
        const QPoint dragged = box.pos();
        QVERIFY(distance() > 20);
        owner.windowHandle()->setPosition(60, 40);
        QTRY_COMPARE(owner.pos(), QPoint(60, 40));
        QCOMPARE(box.pos(), dragged);
    }

    void alertLosesItsParent()
    {
        auto *owner = new QWidget;
        QTimer::singleShot(0, owner, [owner] { delete owner; });
        QCOMPARE(AlertBox::ask(owner, AlertBox::Error, "title", "text", OkButton | CancelButton), CancelButton);
    }

    void comboBox()
    {
        // What is too wide is shortened, and told by the tip.
        ComboBox box;
        QComboBox clipping;
        for (QComboBox *one : {static_cast<QComboBox *>(&box), &clipping}) {
            one->addItems({"one", "a text that is much too wide for the box"});
            one->resize(120, 30);
        }
        for (const int index : {0, 1}) {
            box.setCurrentIndex(index);
            clipping.setCurrentIndex(index);
            QCOMPARE(box.grab().toImage() == clipping.grab().toImage(), index == 0);
            QHelpEvent ask(QEvent::ToolTip, {5, 5}, box.mapToGlobal({5, 5}));
            QCoreApplication::sendEvent(&box, &ask);
            QCOMPARE(QToolTip::text(), index == 0 ? QString() : box.currentText());
        }
        box.setCurrentIndex(0);
        QListWidget *const list = box.getListWt();
        list->setStyleSheet("QListWidget{border:0px;} QListWidget::item{min-height:40px;}");
        box.show();
        box.showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(list->window()));
        const QRect second = list->visualItemRect(list->item(1));
        QVERIFY(second.height() >= 40 && list->viewport()->rect().contains(second));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second.center());
        QCOMPARE(box.currentIndex(), 1);
        QTRY_VERIFY(list->window()->isHidden());
    }
};

QTEST_MAIN(TestToolkit)
#include "tst_toolkit.moc"
