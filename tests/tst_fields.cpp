#include "host/ZCommon/ZLineEdit.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>
#include <QToolTip>
#include <QTranslator>
#include <QtTest>

using kelvra_login::UserNameWt;
using kelvra_login::UserPwdWt;

namespace {

const QColor fieldBackground("#0e1623");
const QColor border("#323e58");
const QColor accent("#2c7dce");
const QString remembered(16, QChar(1));
const QString clipboardText = QStringLiteral("of the clipboard");

const QMap<QString, QString> looks = {
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
     "disabled"}};

QString pictureName(const QIcon &shown)
{
    QStringList found;
    for (const char *path : {":/login_images/images/user_n.png", ":/login_images/images/user_h.png",
                             ":/login_images/images/password_n.png", ":/login_images/images/password_h.png",
                             ":/images/images/show_pwd_n.png", ":/images/images/show_pwd_h.png",
                             ":/images/images/hide_pwd_n.png", ":/images/images/hide_pwd_h.png"}) {
        const QPixmap picture(path);
        if (!picture.isNull() && picture.toImage() == shown.pixmap(picture.size()).toImage())
            found << QFileInfo(path).baseName();
    }
    return found.join('|');
}

/** A page with both fields that translates their placeholders itself when it is given one, and a third widget. */
class Page : public QWidget
{
public:
    UserNameWt *const name = new UserNameWt(this);
    UserPwdWt *const pwd = new UserPwdWt(this);
    QLineEdit *const elsewhere = new QLineEdit(this);
    QString placeholder;

    Page()
    {
        auto *column = new QVBoxLayout(this);
        for (QWidget *widget : {static_cast<QWidget *>(name), static_cast<QWidget *>(pwd),
                                static_cast<QWidget *>(elsewhere)})
            column->addWidget(widget);
        resize(300, 200);
    }

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange && !placeholder.isEmpty()) {
            name->setPlaceholderText(placeholder);
            pwd->setPlaceholderText(placeholder);
        }
        QWidget::changeEvent(event);
    }
};

class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QByteArray(context).startsWith("kelvra_login::User") ? QString("[%1]").arg(text) : QString();
    }
};

} // namespace

class TestFields : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        page = std::make_unique<Page>();
        page->show();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        page->elsewhere->setFocus();
        QTest::mouseMove(page->elsewhere);
        QGuiApplication::clipboard()->setText(clipboardText);
    }

    void cleanup() { page.reset(); }

    void forms()
    {
        const UserNameWt name;
        const UserPwdWt pwd;
        QCOMPARE(name.size(), QSize(400, 32));
        QCOMPARE(pwd.size(), QSize(400, 34));
        QCOMPARE(name.objectName(), QStringLiteral("kelvra_login__UserNameWt"));
        QCOMPARE(pwd.objectName(), QStringLiteral("kelvra_login__UserPwdWt"));
        for (const QWidget *field : {static_cast<const QWidget *>(&name), static_cast<const QWidget *>(&pwd)}) {
            QCOMPARE(field->layout()->spacing(), 11);
            QCOMPARE(field->layout()->contentsMargins(), QMargins(11, 1, 1, 1));
            QCOMPARE(field->findChild<QLabel *>()->maximumSize(), QSize(15, 15));
            const auto *edit = field->findChild<QLineEdit *>();
            QVERIFY(!edit->hasFrame() && !edit->acceptDrops() && edit->minimumHeight() == 28);
        }
        QCOMPARE(name.lineEdit()->placeholderText(), QStringLiteral("user name"));
        QCOMPARE(pwd.lineEdit()->placeholderText(), QStringLiteral("password"));
        page->pwd->hideIcon();
        QVERIFY(!child<QLabel>("pwdImage")->isVisible() && page->pwd->lineEdit()->isVisible());
    }

    void looks_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("steps"); // states to set, and what else happens in between
        QTest::addColumn<QString>("look");
        const auto row = [](const char *field, const char *steps, const char *look) {
            QTest::addRow("%s: %s", field, steps) << QString(field) << QString(steps) << QString(look);
        };
        row("name", "", "normal dim user_n");
        row("name", "1", "highlighted dim user_h");
        row("name", "2", "highlighted bright user_h");
        row("name", "1 0", "normal dim user_n");
        row("name", "2 0", "normal dim user_n");
        row("name", "1 3 -1", "highlighted dim user_h");
        row("name", "2 3 -1", "highlighted bright user_h");
        row("name", "focus 1", "normal dim user_n");
        row("name", "focus 2 1 0", "highlighted bright user_h");
        row("name", "focus 2 in out", "highlighted bright user_h");
        row("name", "focus 2 blur 0", "normal dim user_n");
        row("name", "in", "highlighted dim user_h");
        row("name", "in out", "normal dim user_n");
        row("name", "2 disable", "disabled disabled user_n");
        row("name", "disable 0 1 2 in out", "disabled disabled user_n");
        row("pwd", "", "normal dim password_n hide_pwd_n");
        row("pwd", "1", "highlighted bright password_h hide_pwd_h");
        row("pwd", "2", "highlighted bright password_h hide_pwd_h");
        row("pwd", "2 3 -1", "highlighted bright password_h hide_pwd_h");
        row("pwd", "2 0", "normal dim password_n hide_pwd_n");
        row("pwd", "focus 1", "normal dim password_n hide_pwd_n");
        row("pwd", "focus 2 0 in out", "highlighted bright password_h hide_pwd_h");
        row("pwd", "focus 2 blur 0", "normal dim password_n hide_pwd_n");
        row("pwd", "in", "highlighted bright password_h hide_pwd_h");
        row("pwd", "in out", "normal dim password_n hide_pwd_n");
        row("pwd", "eye", "normal dim password_n show_pwd_h");
        row("pwd", "eye 0", "normal dim password_n show_pwd_n");
        row("pwd", "eye 0 2", "highlighted bright password_h show_pwd_h");
        row("pwd", "eye 0 eye", "normal dim password_n hide_pwd_h");
    }

    void looks()
    {
        QFETCH(QString, field);
        QFETCH(QString, steps);
        const bool isName = field == "name";
        QWidget *widget = isName ? static_cast<QWidget *>(page->name) : page->pwd;
        QLineEdit *edit = widget->findChild<QLineEdit *>();
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts)) {
            if (step == "focus")
                widget->setFocus();
            else if (step == "blur")
                page->elsewhere->setFocus();
            else if (step == "in")
                QTest::mouseMove(widget, QPoint(3, 3));
            else if (step == "out")
                QTest::mouseMove(page->elsewhere);
            else if (step == "disable")
                page->name->setFieldDisabled();
            else if (step == "eye")
                eye()->trigger();
            else if (isName)
                page->name->setState(step.toInt());
            else
                page->pwd->setState(step.toInt());
        }
        QCOMPARE(edit->hasFocus(), steps.contains("focus") && !steps.contains("blur"));
        QStringList look = {::looks.value(widget->styleSheet()), ::looks.value(edit->styleSheet()),
                            pictureName(widget->findChild<QLabel *>()->pixmap(Qt::ReturnByValue))};
        if (!isName)
            look << pictureName(eye()->icon());
        QTEST(look.join(' '), "look");
        QCOMPARE(widget->isEnabled(), !steps.contains("disable"));
    }

    void frameIsPainted()
    {
        for (QWidget *field : {static_cast<QWidget *>(page->name), static_cast<QWidget *>(page->pwd)}) {
            QTest::mouseMove(page->elsewhere);
            QCOMPARE(edgeColors(field), QSet<QRgb>({border.rgb()}));
            QVERIFY(QColor(field->grab().toImage().pixel(4, 4)) == fieldBackground);
            // The frame is the field's, not one round each of its parts.
            const QWidget *icon = field->findChild<QLabel *>();
            const QImage inside = field->grab(icon->geometry().adjusted(-1, -1, 1, 1)).toImage();
            for (int x = 0; x < inside.width(); ++x) {
                for (int y = 0; y < inside.height(); ++y)
                    QVERIFY(inside.pixel(x, y) != border.rgb());
            }
            QTest::mouseMove(field, QPoint(3, 3));
            QCOMPARE(edgeColors(field), QSet<QRgb>({accent.rgb()}));
        }
        page->name->setFieldDisabled();
        QCOMPARE(edgeColors(page->name), QSet<QRgb>({border.rgb()}));
        QVERIFY(QColor(page->name->grab().toImage().pixel(4, 4)) == QColor("#253141"));
    }

    void typing()
    {
        QTest::keyClicks(nameEdit(), " a b\t");
        QCOMPARE(page->name->text(), QStringLiteral("ab"));
        page->name->setText(" padded ");
        QCOMPARE(page->name->text(), QStringLiteral("padded"));
        page->name->setText("");
        QTest::keyClicks(nameEdit(), QString(70, 'x'));
        QCOMPARE(page->name->text(), QString(64, 'x'));
        QTest::keyClicks(pwdEdit(), QString(20, 'x'));
        QCOMPARE(page->pwd->text(), QString(16, 'x'));

        page->pwd->setText("");
        QTest::keyClicks(pwdEdit(), " a b ");
        QCOMPARE(pwdEdit()->text(), QStringLiteral("ab"));
        QTest::keyClick(pwdEdit(), Qt::Key_Left);
        QTest::keyClick(pwdEdit(), Qt::Key_Space);
        QCOMPARE(page->pwd->text(), QStringLiteral("a b"));
        QTest::keyClick(pwdEdit(), Qt::Key_Home);
        QTest::keyClick(pwdEdit(), Qt::Key_Space);
        QCOMPARE(pwdEdit()->text(), QStringLiteral("a b"));
    }

    void pastedName_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("edits");
        QTest::newRow("replaces") << "old" << "\tn e w\n" << "new" << 1;
        QTest::newRow("equal") << "alice" << " al ice\n" << "alice" << 0;
        QTest::newRow("blank") << "old" << " \n" << "" << 1;
        QTest::newRow("long") << "" << QString(70, 'y') << QString(64, 'y') << 1;
    }

    void pastedName()
    {
        QFETCH(QString, before);
        QFETCH(QString, pasted);
        QGuiApplication::clipboard()->setText(pasted);
        for (const QKeySequence &keys : QKeySequence::keyBindings(QKeySequence::Paste)) {
            page->name->setText(before);
            const QSignalSpy edited(nameEdit(), &QLineEdit::textEdited);
            const QSignalSpy changed(nameEdit(), &QLineEdit::textChanged);
            press(nameEdit(), keys);
            QTEST(nameEdit()->text(), "after");
            QTEST(edited.count(), "edits");
            QTEST(changed.count(), "edits");
        }
    }

    void passwordClipboard_data()
    {
        QTest::addColumn<QKeySequence>("keys");
        QList<QKeySequence> all = {QKeySequence("Ctrl+K"), QKeySequence("Ctrl+U")};
        for (const auto key : {QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste})
            all << QKeySequence::keyBindings(key);
        for (const char *needed : {"Ctrl+C", "Ctrl+X", "Ctrl+V", "Shift+Ins", "Shift+Del", "Ctrl+Ins"})
            QVERIFY2(all.contains(QKeySequence(needed)), needed);
        for (const QKeySequence &keys : qAsConst(all))
            QTest::addRow("%s", qPrintable(keys.toString())) << keys;
    }

    void passwordClipboard()
    {
        QFETCH(QKeySequence, keys);
        QTest::keyClicks(pwdEdit(), "secret");
        eye()->trigger();
        pwdEdit()->selectAll();
        press(pwdEdit(), keys);
        QCOMPARE(page->pwd->text(), QStringLiteral("secret"));
        QCOMPARE(QGuiApplication::clipboard()->text(), clipboardText);
        pwdEdit()->home(false);
        press(pwdEdit(), keys);
        QCOMPARE(page->pwd->text(), QStringLiteral("secret"));
        QCOMPARE(QGuiApplication::clipboard()->text(), clipboardText);
    }

    void passwordHasNoMenuAndNoInputMethod()
    {
        const auto inputMethod = [this] { return pwdEdit()->testAttribute(Qt::WA_InputMethodEnabled); };
        QVERIFY(!inputMethod());
        for (int toggles = 0; toggles < 2; ++toggles) {
            eye()->trigger();
            QVERIFY(!inputMethod());
            const QPoint middle = pwdEdit()->rect().center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, middle, pwdEdit()->mapToGlobal(middle));
            qApp->notify(pwdEdit(), &event);
            QVERIFY(!QApplication::activePopupWidget() && page->findChildren<QMenu *>().isEmpty());
        }
    }

    void eyeShowsThePassword()
    {
        QCOMPARE(pwdEdit()->echoMode(), QLineEdit::Password);
        QTest::keyClicks(pwdEdit(), "secret");
        QTest::mouseClick(eyeButton(), Qt::LeftButton);
        QCOMPARE(pwdEdit()->echoMode(), QLineEdit::Normal);
        QCOMPARE(pwdEdit()->displayText(), QStringLiteral("secret"));
        QCOMPARE(pictureName(eyeButton()->icon()), QStringLiteral("show_pwd_h"));
        QTest::mouseClick(eyeButton(), Qt::LeftButton);
        QCOMPARE(pwdEdit()->echoMode(), QLineEdit::Password);
        QCOMPARE(pictureName(eyeButton()->icon()), QStringLiteral("hide_pwd_h"));
        QCOMPARE(page->pwd->text(), QStringLiteral("secret"));
    }

    void rememberedPassword_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("clears");
        QTest::newRow("letter") << int(Qt::Key_X) << "x" << int(Qt::NoModifier) << true;
        QTest::newRow("capital") << int(Qt::Key_X) << "X" << int(Qt::ShiftModifier) << true;
        QTest::newRow("space") << int(Qt::Key_Space) << " " << int(Qt::NoModifier) << true;
        QTest::newRow("AltGr") << int(Qt::Key_At) << "@" << int(Qt::ControlModifier | Qt::AltModifier) << true;
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << "" << int(Qt::NoModifier) << true;
        QTest::newRow("arrow") << int(Qt::Key_Left) << "" << int(Qt::NoModifier) << false;
        QTest::newRow("copy") << int(Qt::Key_C) << "\x03" << int(Qt::ControlModifier) << false;
        QTest::newRow("shift") << int(Qt::Key_Shift) << "" << int(Qt::ShiftModifier) << false;
    }

    void rememberedPassword()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        QFETCH(bool, clears);
        page->pwd->setPassword("stored", true);
        QCOMPARE(pwdEdit()->text(), remembered);
        QCOMPARE(page->pwd->text(), QStringLiteral("stored"));
        QVERIFY(!eyeButton()->isVisible());
        pwdEdit()->setFocus();
        QTest::sendKeyEvent(QTest::Click, pwdEdit(), Qt::Key(key), text, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(pwdEdit()->text(), clears ? QString() : remembered);
        QCOMPARE(page->pwd->text(), clears ? QString() : QString("stored"));
        QCOMPARE(eyeButton()->isVisible(), clears);
        if (!clears)
            return;
        QTest::keyClicks(pwdEdit(), "new");
        QCOMPARE(page->pwd->text(), QStringLiteral("new"));
    }

    void settingAndForgetting()
    {
        page->pwd->setText("typed");
        page->pwd->forgetRememberedPassword();
        QCOMPARE(page->pwd->text(), QStringLiteral("typed"));
        QCOMPARE(pwdEdit()->property("pwd").toString(), QStringLiteral("typed"));
        page->pwd->setPassword("stored", true);
        QCOMPARE(pwdEdit()->property("pwd").toString(), QStringLiteral("stored"));
        page->pwd->forgetRememberedPassword();
        QVERIFY(page->pwd->text().isEmpty() && pwdEdit()->property("pwd").toString().isEmpty());
        QVERIFY(eyeButton()->isVisible());
        page->pwd->setPassword("stored", true);
        page->pwd->setPassword("", true);
        QVERIFY(page->pwd->text().isEmpty() && pwdEdit()->text().isEmpty() && eyeButton()->isVisible());
    }

    void languageChange()
    {
        page->name->setText("alice");
        page->pwd->setPassword("stored", true);
        Brackets brackets;
        QVERIFY(QCoreApplication::installTranslator(&brackets));
        QTRY_COMPARE(nameEdit()->placeholderText(), QStringLiteral("[user name]"));
        QCOMPARE(pwdEdit()->placeholderText(), QStringLiteral("[password]"));
        QCOMPARE(page->name->text(), QStringLiteral("alice"));
        QCOMPARE(pwdEdit()->text(), remembered);
        QCOMPARE(page->pwd->text(), QStringLiteral("stored"));
        QVERIFY(!eyeButton()->isVisible());

        page->placeholder = "the page's";
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(page.get(), &change);
        QCOMPARE(nameEdit()->placeholderText(), page->placeholder);
        QCOMPARE(pwdEdit()->placeholderText(), page->placeholder);
    }

    void errorTip()
    {
        const auto check = [](QLineEdit *edit, const QString &text) {
            QVERIFY(QToolTip::isVisible());
            QCOMPARE(QToolTip::text(), text);
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                if (!window->inherits("QTipLabel") || !window->isVisible())
                    continue;
                // The style puts a tip a few pixels from its point.
                const QPoint offset = window->pos() - edit->mapToGlobal(QPoint(0, 0));
                QVERIFY(QRect(0, 0, 6, 24).contains(offset));
            }
        };
        page->name->showError("wrong name");
        check(nameEdit(), "wrong name");
        page->pwd->showError("wrong password");
        check(pwdEdit(), "wrong password");
    }

private:
    template <typename T>
    T *child(const char *name) const
    {
        return page->findChild<T *>(name);
    }

    QLineEdit *nameEdit() const { return child<QLineEdit>("userName"); }
    QLineEdit *pwdEdit() const { return child<QLineEdit>("pwd"); }
    QAction *eye() const { return pwdEdit()->actions().value(0); }
    QToolButton *eyeButton() const { return pwdEdit()->findChild<QToolButton *>(); }

    static void press(QWidget *widget, const QKeySequence &keys)
    {
        QTest::keyClick(widget, Qt::Key(keys[0] & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(keys[0] & int(Qt::KeyboardModifierMask)));
    }

    static QSet<QRgb> edgeColors(QWidget *field)
    {
        const QImage image = field->grab().toImage();
        const QPoint middle = image.rect().center();
        return {image.pixel(0, middle.y()), image.pixel(image.width() - 1, middle.y()), image.pixel(middle.x(), 0),
                image.pixel(middle.x(), image.height() - 1)};
    }

    std::unique_ptr<Page> page;
};

QTEST_MAIN(TestFields)

#include "tst_fields.moc"
