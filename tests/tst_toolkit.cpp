#include "client/kelvra_base/AlertBox.h"
#include "host/ZCommon/MoveableDialog.h"
#include "host/ZCommon/SmoothProgress.h"
#include "host/ZCommon/ToolsCollection.h"
#include "host/ZCommon/ZLabel.h"
#include "host/ZCommon/ZWidget.h"
#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "host/kelvra_base/ComboBox.h"
#include "host/kelvra_base/ModuleInitialization.h"
#include "host/kelvra_base/PwdStrengthWt.h"

#include <QtTest>
#include <QtWidgets>

using namespace kelvra_base;
using namespace ZCOMMON;

namespace {

class Module : public ModuleInitialization
{
public:
    Module()
        : ModuleInitialization(nullptr)
    {
    }
    using ModuleInitialization::loadStyleSheet;
};

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

/** What the spy has heard since the last call. */
QVector<int> taken(QSignalSpy &spy)
{
    QVector<int> values;
    while (!spy.isEmpty())
        values.append(spy.takeFirst().at(0).toInt());
    return values;
}

} // namespace

class TestToolkit : public QObject
{
    Q_OBJECT

private slots:
    void dialogFollowsDrag()
    {
        struct Row
        {
            const char *what;
            bool framed;
            QPoint press;
            Qt::MouseButton button;
            bool moves;
        };
        for (const Row &row : {Row{"panel", false, {200, 120}, Qt::LeftButton, true},
                               Row{"button", false, {40, 75}, Qt::LeftButton, false},
                               Row{"line edit", false, {40, 125}, Qt::LeftButton, false},
                               Row{"right button", false, {150, 20}, Qt::RightButton, false},
                               Row{"title bar", true, {150, 20}, Qt::LeftButton, true},
                               Row{"below the bar", true, {200, 120}, Qt::LeftButton, false}}) {
            const auto dialog = showDialog(row.framed);
            const QPoint end = dialog->pos() + (row.moves ? QPoint(30, 20) : QPoint());
            QWindow *const window = dialog->windowHandle();
            QTest::mousePress(window, row.button, {}, row.press);
            QTest::mouseMove(window, row.press + QPoint(30, 20));
            QVERIFY2(dialog->pos() == end, row.what);
            QTest::mouseRelease(window, row.button, {}, row.press);
            QTest::mouseMove(window, row.press + QPoint(50, 30));
            QVERIFY2(dialog->pos() == end, row.what);
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

    void defaultPosIsForTheFirstShow()
    {
        MoveableDialog dialog(nullptr, QString(), Qt::black);
        dialog.setDefaultPos({70, 50});
        dialog.show();
        QCOMPARE(dialog.pos(), QPoint(70, 50));
        dialog.move(10, 20);
        for (const bool visible : {false, true})
            dialog.setVisible(visible);
        QCOMPARE(dialog.pos(), QPoint(10, 20));
    }

    void progressGlides()
    {
        SmoothProgress progress;
        QSignalSpy spy(&progress, &SmoothProgress::signalProgress);
        progress.setCurrentProgress(60);
        QCOMPARE(spy.count(), 0);
        QTRY_VERIFY(spy.count() > 3);
        progress.setCurrentProgress(100);
        QTRY_COMPARE(spy.last().at(0).toInt(), 100);
        const QVector<int> up = taken(spy);
        QVERIFY(up.size() > 20 && std::is_sorted(up.cbegin(), up.cend()));
        QCOMPARE(std::adjacent_find(up.cbegin(), up.cend()), up.cend());

        progress.setCurrentProgress(100); // there already
        progress.setCurrentProgress(97);
        QTRY_COMPARE(spy.count(), 3);
        QCOMPARE(taken(spy), QVector<int>({99, 98, 97}));
        progress.resetProgress();
        progress.setCurrentProgress(1);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(taken(spy), QVector<int>({1}));
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
        const QVector<QPair<QString, PwdStrength>> grades = {
            {"", PwdLengthIllegal},
            {"Abcde1!", PwdLengthIllegal},           // 7 characters
            {"Abcdefghijklmno1!", PwdLengthIllegal}, // 17
            {"Abcdefghijklmn1!", PwdStrong},         // 16
            {"abcd efgh", PwdTooSimple},             // a blank is no kind
            {"abcdefg1", PwdWeak},
            {"Abcdefg1", PwdMedium},
            {QString::fromUtf8("abcdef\U0001F600"), PwdWeak} // surrogates count twice
        };
        for (const auto &[pwd, grade] : grades) {
            PwdStrengthWt meter;
            meter.resize(200, 10);
            const QImage track = meter.grab().toImage();
            QVERIFY2(meter.setPwd(pwd) == grade, qPrintable(pwd));
            QCOMPARE(meter.grab().toImage() == track, pwd.isEmpty());
        }
    }

    void reversed()
    {
        QCOMPARE(ToolsCollection::reverseString(QString::fromUtf8("ab\U0001F600\U0001F511z")),
                 QString::fromUtf8("z\U0001F511\U0001F600ba"));
    }

    void styleSheetIsAddedOnce()
    {
        qApp->setStyleSheet("QLabel{color:red}");
        QTemporaryFile file;
        QVERIFY(file.open() && file.write("QLabel{margin:1px}") > 0 && file.flush());
        Module module;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be read"));
        for (const QString &name : {file.fileName(), QString(":/none.qss"), file.fileName()})
            module.loadStyleSheet(name);
        QCOMPARE(qApp->styleSheet(), QString("QLabel{color:red}\nQLabel{margin:1px}"));
        qApp->setStyleSheet(QString());
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
        QWidget owner;
        owner.setGeometry(100, 100, 700, 500);
        owner.show();
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
            });
            const int seconds = keys.isEmpty() ? 1 : 5; // the latter only ends a failed check
            QCOMPARE(int(AlertBox::ask(&owner, AlertBox::Warning, "title", "text", buttons, seconds)), answer);
            QCOMPARE(clicks, 1);
        }
    }

    void alertLosesItsParent()
    {
        auto *owner = new QWidget;
        QTimer::singleShot(0, owner, [owner] { delete owner; });
        QCOMPARE(AlertBox::ask(owner, AlertBox::Error, "title", "text", OkButton | CancelButton), CancelButton);
    }

    void comboBoxPicksFromItsList()
    {
        ComboBox box;
        box.addItem("one", 11);
        box.addItem("two", 22);
        QListWidget *const list = box.getListWt();
        list->setStyleSheet("QListWidget{border:0px;} QListWidget::item{min-height:40px;}");
        box.show();
        box.showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(list->window()));
        const QRect second = list->visualItemRect(list->item(1));
        QVERIFY(second.height() >= 40 && list->viewport()->rect().contains(second));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second.center());
        QCOMPARE(box.currentData().toInt(), 22);
        QTRY_VERIFY(list->window()->isHidden());
    }

    void comboBoxShortensWhatIsTooWide()
    {
        const auto prepare = [](QComboBox &box) {
            box.addItems({"one", "a text that is much too wide for the box"});
            box.resize(120, 30);
        };
        ComboBox box;
        QComboBox clipping;
        prepare(box);
        prepare(clipping);
        for (const int index : {0, 1}) {
            box.setCurrentIndex(index);
            clipping.setCurrentIndex(index);
            QCOMPARE(box.grab().toImage() == clipping.grab().toImage(), index == 0);
            QHelpEvent ask(QEvent::ToolTip, {5, 5}, box.mapToGlobal({5, 5}));
            QCoreApplication::sendEvent(&box, &ask);
            QCOMPARE(QToolTip::text(), index == 0 ? QString() : box.currentText());
        }
        QToolTip::hideText();
    }
};

QTEST_MAIN(TestToolkit)
#include "tst_toolkit.moc"
