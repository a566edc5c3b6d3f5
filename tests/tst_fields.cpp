#include "fakehost/Brackets.h"
#include "host/ZCommon/ZLineEdit.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

using namespace kelvra_login;

namespace {

const QString remembered(16, QChar(1));
const QString clipboardText = "of the clipboard";

const QMap<QString, QString> styleNames = {
    {"QWidget{background-color: #0e1623;border:1px solid #323e58;border-radius:3px}", "normal"},
    {"QWidget{background-color: #0e1623;border:1px solid #2c7dce;border-radius:3px}", "highlighted"},
    {"QWidget{background-color: #253141;border:1px solid #323e58;border-radius:3px}", "disabled"},
    {"QLineEdit{color:#858fa2;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
     "background-color: #0e1623;}",
     "dim"},
    {"QLineEdit{color:#ccd3dd;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
     "background-color: #0e1623;}",
     "bright"},
    {"QLineEdit{color:#858fa2;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
     "background-color:#253141;}",
     "grey"}};

QString pictureName(const QIcon &shown)
{
    for (const char *name : {"login_images/images/user", "login_images/images/password", "images/images/show_pwd",
                             "images/images/hide_pwd"}) {
        for (const char *variant : {"_n", "_h"}) {
            const QPixmap picture(QString(":/%1%2.png").arg(name, variant));
            if (!picture.isNull() && picture.toImage() == shown.pixmap(picture.size()).toImage())
                return QFileInfo(name).fileName() + variant;
        }
    }
    return "?";
}

/** The colours in the middle of a field's four edges. */
QSet<QString> edges(QWidget *field)
{
    const QImage image = field->grab().toImage();
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    return {image.pixelColor(0, bottom / 2).name(), image.pixelColor(right, bottom / 2).name(),
            image.pixelColor(right / 2, 0).name(), image.pixelColor(right / 2, bottom).name()};
}

void press(QWidget *widget, const QKeySequence &keys)
{
    const int modifiers = keys[0] & int(Qt::KeyboardModifierMask);
    QTest::keyClick(widget, Qt::Key(keys[0] - modifiers), Qt::KeyboardModifiers(modifiers));
}

} // namespace

class TestFields : public QObject
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { page.reset(); }

    void looks()
    {
        QCOMPARE(look(name, ""), QString("normal dim user_n"));
        QCOMPARE(look(name, "1 3 -1"), QString("highlighted dim user_h"));
        QCOMPARE(look(name, "2 3 -1"), QString("highlighted bright user_h"));
        QCOMPARE(look(name, "2 0"), QString("normal dim user_n"));
        QCOMPARE(look(name, "focus 1"), QString("normal dim user_n"));
        QCOMPARE(look(name, "focus 2 1 0 in out"), QString("highlighted bright user_h"));
        QCOMPARE(look(name, "focus 2 blur 0"), QString("normal dim user_n"));
        QCOMPARE(look(name, "in"), QString("highlighted dim user_h"));
        QCOMPARE(look(name, "in out"), QString("normal dim user_n"));
        QCOMPARE(look(name, "2 disable 0 1 2 in"), QString("disabled grey user_n"));

        QCOMPARE(look(pwd, ""), QString("normal dim password_n hide_pwd_n"));
        QCOMPARE(look(pwd, "1 3 -1"), QString("highlighted bright password_h hide_pwd_h"));
        QCOMPARE(look(pwd, "2 3 -1"), QString("highlighted bright password_h hide_pwd_h"));
        QCOMPARE(look(pwd, "focus 1"), QString("normal dim password_n hide_pwd_n"));
        QCOMPARE(look(pwd, "focus 2 0 in out"), QString("highlighted bright password_h hide_pwd_h"));
        QCOMPARE(look(pwd, "in"), QString("highlighted bright password_h hide_pwd_h"));
        QCOMPARE(look(pwd, "in out"), QString("normal dim password_n hide_pwd_n"));
        QCOMPARE(look(pwd, "eye"), QString("normal dim password_n show_pwd_h"));
        QCOMPARE(look(pwd, "eye 0"), QString("normal dim password_n show_pwd_n"));
        QCOMPARE(look(pwd, "eye 0 eye"), QString("normal dim password_n hide_pwd_h"));
        pwd->hideIcon();
        QVERIFY(!pwd->findChild<QLabel *>("pwdImage")->isVisible() && pwdEdit()->isVisible());
    }

    void frameIsPainted()
    {
        for (QWidget *field : {static_cast<QWidget *>(name), static_cast<QWidget *>(pwd)}) {
            QCOMPARE(edges(field), QSet<QString>{"#323e58"});
            QCOMPARE(field->grab().toImage().pixelColor(4, 4).name(), QString("#0e1623"));
            // The frame is the field's, not one round each of its parts.
            const QRect icon = field->findChild<QLabel *>()->geometry();
            const QImage inside = field->grab(icon).toImage();
            for (int i = 0; i < inside.width() * inside.height(); ++i)
                QVERIFY(inside.pixelColor(i % inside.width(), i / inside.width()).name() != "#323e58");
            QTest::mouseMove(field, QPoint(3, 3));
            QCOMPARE(edges(field), QSet<QString>{"#2c7dce"});
        }
        name->setFieldDisabled();
        QCOMPARE(edges(name), QSet<QString>{"#323e58"});
        QCOMPARE(name->grab().toImage().pixelColor(4, 4).name(), QString("#253141"));
    }

    void typing()
    {
        QTest::keyClicks(nameEdit(), " a b ");
        QCOMPARE(nameEdit()->text(), QString("ab"));
        name->setText(" padded ");
        QCOMPARE(name->text(), QString("padded"));
        name->setText("");
        QTest::keyClicks(nameEdit(), QString(70, 'x'));
        QCOMPARE(name->text(), QString(64, 'x'));
        QTest::keyClicks(pwdEdit(), QString(20, 'x'));
        QCOMPARE(pwd->text(), QString(16, 'x'));

        pwd->setText("");
        QTest::keyClicks(pwdEdit(), " a b ");
        QCOMPARE(pwdEdit()->text(), QString("ab"));
        press(pwdEdit(), Qt::Key_Left);
        QTest::keyClicks(pwdEdit(), " ");
        press(pwdEdit(), Qt::Key_Home);
        QTest::keyClicks(pwdEdit(), " ");
        QCOMPARE(pwdEdit()->text(), QString("a b"));
    }

    void pastedName()
    {
        for (const QKeySequence &keys : {QKeySequence("Ctrl+V"), QKeySequence("Shift+Ins")}) {
            // The text after pasting, with the number of edits and of changes that are reported.
            const auto pasted = [&](const QString &before, const QString &clipboard) {
                name->setText(before);
                QGuiApplication::clipboard()->setText(clipboard);
                const QSignalSpy edits(nameEdit(), &QLineEdit::textEdited);
                const QSignalSpy changes(nameEdit(), &QLineEdit::textChanged);
                press(nameEdit(), keys);
                return QString("%1 %2 %3").arg(nameEdit()->text()).arg(edits.count()).arg(changes.count());
            };
            QCOMPARE(pasted("old", "\tn e w\n"), QString("new 1 1"));
            QCOMPARE(pasted("alice", " al ice\n"), QString("alice 0 0"));
            QCOMPARE(pasted("old", " \n"), QString(" 1 1"));
            QCOMPARE(pasted("old", QString(70, 'y')), QString(64, 'y') + " 1 1");
        }
    }

    void passwordStaysInItsField()
    {
        QTest::keyClicks(pwdEdit(), "secret");
        QVERIFY(!pwdEdit()->testAttribute(Qt::WA_InputMethodEnabled));
        QVERIFY(pwdEdit()->displayText() != "secret");
        QTest::mouseClick(eyeButton(), Qt::LeftButton);
        QCOMPARE(pwdEdit()->displayText(), QString("secret"));
        for (const char *keys : {"Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+Ins", "Shift+Del", "Shift+Ins"}) {
            pwdEdit()->selectAll();
            press(pwdEdit(), QKeySequence(keys));
            pwdEdit()->home(false);
            press(pwdEdit(), QKeySequence(keys));
            QCOMPARE(pwd->text(), QString("secret"));
            QCOMPARE(QGuiApplication::clipboard()->text(), clipboardText);
        }
        for (int toggles = 0; toggles < 3; ++toggles, eye()->trigger()) {
            QVERIFY(!pwdEdit()->testAttribute(Qt::WA_InputMethodEnabled));
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), pwdEdit()->mapToGlobal(QPoint(5, 5)));
            qApp->notify(pwdEdit(), &event);
            QVERIFY(!QApplication::activePopupWidget() && page->findChildren<QMenu *>().isEmpty());
        }
        QCOMPARE(pwdEdit()->echoMode(), QLineEdit::Password);
    }

    void rememberedPassword()
    {
        const auto after = [this](Qt::Key key, const QString &text, Qt::KeyboardModifiers modifiers = {}) {
            pwd->setPassword("stored", true);
            QTest::sendKeyEvent(QTest::Click, pwdEdit(), key, text, modifiers);
            return pwdState();
        };
        const QString kept = remembered + " stored stored -";
        const QString cleared = "   eye";
        QCOMPARE(after(Qt::Key_X, "x"), cleared);
        QTest::keyClicks(pwdEdit(), "new");
        QCOMPARE(pwd->text(), QString("new"));
        QCOMPARE(after(Qt::Key_X, "X", Qt::ShiftModifier), cleared);
        QCOMPARE(after(Qt::Key_Space, " "), cleared);
        QCOMPARE(after(Qt::Key_Backspace, ""), cleared);
        QCOMPARE(after(Qt::Key_Left, ""), kept);
        QCOMPARE(after(Qt::Key_C, "\x03", Qt::ControlModifier), kept);
        QCOMPARE(after(Qt::Key_At, "@", Qt::ControlModifier | Qt::AltModifier), cleared); // AltGr
        pwd->setPassword("stored", true);
        pwdEdit()->selectAll();
        QTest::keyClicks(pwdEdit(), "x");
        QCOMPARE(pwd->text() + (eyeButton()->isVisible() ? " eye" : ""), QString("x eye"));

        pwd->setPassword("stored", true);
        pwd->setPassword("", true);
        QCOMPARE(pwdState(), cleared);
        pwd->setPassword("stored", true);
        pwd->forgetRememberedPassword();
        QCOMPARE(pwdState(), cleared);
        pwd->setText("typed");
        pwd->forgetRememberedPassword();
        QCOMPARE(pwdState(), QString("typed typed typed eye"));
    }

    void languageChange()
    {
        name->setText("alice");
        pwd->setPassword("stored", true);
        const Brackets brackets;
        QCOMPARE(nameEdit()->placeholderText(), QString("[user name]"));
        QCOMPARE(pwdEdit()->placeholderText(), QString("[password]"));
        QCOMPARE(name->text(), QString("alice"));
        QCOMPARE(pwdState(), remembered + " stored stored -");

        page->installEventFilter(this);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(page.get(), &change);
        QCOMPARE(nameEdit()->placeholderText(), QString("the page's"));
        QCOMPARE(pwdEdit()->placeholderText(), QString("the page's"));
    }

    void errorTip()
    {
        // The text of the tip, if there is one a few pixels from the line edit's corner.
        const auto tipAt = [](const QLineEdit *edit) {
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                const QPoint offset = window->pos() - edit->mapToGlobal(QPoint(0, 0));
                if (window->inherits("QTipLabel") && window->isVisible() && QRect(0, 0, 6, 24).contains(offset))
                    return QToolTip::text();
            }
            return QString();
        };
        name->showError("wrong name");
        QCOMPARE(tipAt(nameEdit()), QString("wrong name"));
        pwd->showError("wrong password");
        QCOMPARE(tipAt(pwdEdit()), QString("wrong password"));
    }

protected:
    // As an owner of the fields does that has placeholders of its own.
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            name->setPlaceholderText("the page's");
            pwd->setPlaceholderText("the page's");
        }
        return false;
    }

private:
    void open()
    {
        page = std::make_unique<QWidget>();
        auto *column = new QVBoxLayout(page.get());
        column->addWidget(name = new UserNameWt);
        column->addWidget(pwd = new UserPwdWt);
        column->addWidget(elsewhere = new QLineEdit);
        page->show();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        elsewhere->setFocus();
        QTest::mouseMove(elsewhere);
        QGuiApplication::clipboard()->setText(clipboardText);
    }

    QLineEdit *nameEdit() const { return page->findChild<QLineEdit *>("userName"); }
    QLineEdit *pwdEdit() const { return page->findChild<QLineEdit *>("pwd"); }
    QAction *eye() const { return pwdEdit()->actions().value(0); }
    QToolButton *eyeButton() const { return pwdEdit()->findChild<QToolButton *>(); }

    QString pwdState() const
    {
        return pwdEdit()->text() + ' ' + pwd->text() + ' ' + pwdEdit()->property("pwd").toString() + ' ' +
               (eyeButton()->isVisible() ? "eye" : "-");
    }

    template <typename Field>
    void take(Field *field, const QString &step)
    {
        if (step == "focus")
            field->setFocus();
        else if (step == "blur")
            elsewhere->setFocus();
        else if (step == "in")
            QTest::mouseMove(field, QPoint(3, 3));
        else if (step == "out")
            QTest::mouseMove(elsewhere);
        else if (step == "disable")
            name->setFieldDisabled();
        else if (step == "eye")
            eye()->trigger();
        else
            field->setState(step.toInt());
    }

    // The look of a fresh field after the steps: states that are set, and what else happens in between.
    template <typename Field>
    QString look(Field *const &field, const QString &steps)
    {
        open(); // makes another field
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts))
            take(field, step);
        QStringList found = {styleNames.value(field->styleSheet()), styleNames.value(field->lineEdit()->styleSheet()),
                             pictureName(field->template findChild<QLabel *>()->pixmap(Qt::ReturnByValue))};
        if (std::is_same_v<Field, UserPwdWt>)
            found << pictureName(eye()->icon());
        return found.join(' ');
    }

    std::unique_ptr<QWidget> page;
    UserNameWt *name = nullptr;
    UserPwdWt *pwd = nullptr;
    QLineEdit *elsewhere = nullptr;
};

QTEST_MAIN(TestFields)

#include "tst_fields.moc"
