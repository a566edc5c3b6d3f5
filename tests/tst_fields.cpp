#include "TestTools.h"
#include "host/ZCommon/ZLineEdit.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

using namespace kelvra_login;

namespace {

const QString kept = QString(16, QChar(1)) + " stored stored -"; // of a remembered password
const QString clipboardText = "of the clipboard";

const QString editStyle = "QLineEdit{color:%1;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
                          "background-color:%2;}";
const QMap<QString, QString> styleNames = {
    {"QWidget{background-color: #0e1623;border:1px solid #323e58;border-radius:3px}", "normal"},
    {"QWidget{background-color: #0e1623;border:1px solid #2c7dce;border-radius:3px}", "highlighted"},
    {"QWidget{background-color: #253141;border:1px solid #323e58;border-radius:3px}", "disabled"},
    {editStyle.arg("#858fa2", " #0e1623"), "dim"},
    {editStyle.arg("#ccd3dd", " #0e1623"), "bright"},
    {editStyle.arg("#858fa2", "#253141"), "grey"}};

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

/** The colours of a field's frame and of what is within. */
QString frameAndGround(QWidget *field)
{
    const QImage image = field->grab().toImage();
    return image.pixelColor(0, field->height() / 2).name() + ' ' + image.pixelColor(4, 4).name();
}

} // namespace

class TestFields : public WindowTest
{
    Q_OBJECT

private slots:
    void init() { newFields(); }
    void cleanup() { delete window; }

    void looks()
    {
        QCOMPARE(look(name, ""), QString("normal dim user_n"));
        QCOMPARE(look(name, "1 3 -1"), QString("highlighted dim user_h"));
        QCOMPARE(look(name, "2 3 -1"), QString("highlighted bright user_h"));
        QCOMPARE(look(name, "focus 1"), QString("normal dim user_n"));
        QCOMPARE(look(name, "focus 2 1 0 in out"), QString("highlighted bright user_h"));
        QCOMPARE(look(name, "focus 2 blur 0"), QString("normal dim user_n"));
        QCOMPARE(look(name, "in"), QString("highlighted dim user_h"));
        QCOMPARE(look(name, "in out"), QString("normal dim user_n"));
        QCOMPARE(look(name, "2 disable 0 1 2 in"), QString("disabled grey user_n"));

        QCOMPARE(look(pwd, ""), QString("normal dim password_n hide_pwd_n"));
        QCOMPARE(look(pwd, "in 3 -1"), QString("highlighted bright password_h hide_pwd_h"));
        QCOMPARE(look(pwd, "in out"), QString("normal dim password_n hide_pwd_n"));
        QCOMPARE(look(pwd, "focus 1"), QString("normal dim password_n hide_pwd_n"));
        QCOMPARE(look(pwd, "focus 2 0 in out"), QString("highlighted bright password_h hide_pwd_h"));
        QCOMPARE(look(pwd, "eye"), QString("normal dim password_n show_pwd_h"));
        QCOMPARE(look(pwd, "eye 0"), QString("normal dim password_n show_pwd_n"));
        QCOMPARE(look(pwd, "eye 0 eye"), QString("normal dim password_n hide_pwd_h"));
        pwd->hideIcon();
        QVERIFY(!pwd->findChild<QLabel *>("pwdImage")->isVisible() && pwdEdit()->isVisible());
    }

    void frameIsPainted()
    {
        for (QWidget *field : {static_cast<QWidget *>(name), static_cast<QWidget *>(pwd)}) {
            QCOMPARE(frameAndGround(field), QString("#323e58 #0e1623"));
            // The frame is the field's, not one round each of its parts.
            const QImage icon = field->grab(field->findChild<QLabel *>()->geometry()).toImage();
            for (int i = 0; i < icon.width() * icon.height(); ++i)
                QVERIFY(icon.pixelColor(i % icon.width(), i / icon.width()).name() != "#323e58");
            QTest::mouseMove(field, QPoint(3, 3));
            QCOMPARE(frameAndGround(field), QString("#2c7dce #0e1623"));
        }
        name->setFieldDisabled();
        QCOMPARE(frameAndGround(name), QString("#323e58 #253141"));
    }

    void typing()
    {
        QTest::keyClicks(nameEdit(), " a b ");
        QCOMPARE(nameEdit()->text(), QString("ab"));
        name->setText(" padded ");
        QCOMPARE(name->text(), QString("padded"));
        QTest::keyClicks(pwdEdit(), QString(20, 'x'));
        QCOMPARE(pwd->text(), QString(16, 'x'));

        pwd->setText("");
        QTest::keyClicks(pwdEdit(), " a b ");
        QTest::keyClick(pwdEdit(), Qt::Key_Left);
        QTest::keyClicks(pwdEdit(), " ");
        QTest::keyClick(pwdEdit(), Qt::Key_Home);
        QTest::keyClicks(pwdEdit(), " ");
        QCOMPARE(pwdEdit()->text(), QString("a b"));
    }

    void pastedName()
    {
        // The text after pasting, with the number of edits and of changes that are reported.
        const auto pasted = [this](const QString &before, const QString &clipboard, const char *keys = "Ctrl+V") {
            name->setText(before);
            QGuiApplication::clipboard()->setText(clipboard);
            const QSignalSpy edits(nameEdit(), &QLineEdit::textEdited);
            const QSignalSpy changes(nameEdit(), &QLineEdit::textChanged);
            QTest::keySequence(nameEdit(), QKeySequence(keys));
            return QString("%1 %2 %3").arg(nameEdit()->text()).arg(edits.count()).arg(changes.count());
        };
        QCOMPARE(pasted("old", "\tn e w\n"), QString("new 1 1"));
        QCOMPARE(pasted("old", "\tn e w\n", "Shift+Ins"), QString("new 1 1"));
        QCOMPARE(pasted("alice", " al ice\n"), QString("alice 0 0"));
        QCOMPARE(pasted("old", " \n"), QString(" 1 1"));
        QCOMPARE(pasted("old", QString(70, 'y')), QString(64, 'y') + " 1 1");
    }

    void passwordStaysInItsField()
    {
        QTest::keyClicks(pwdEdit(), "secret");
        QVERIFY(pwdEdit()->displayText() != "secret");
        QTest::mouseClick(eyeButton(), Qt::LeftButton);
        QCOMPARE(pwdEdit()->displayText(), QString("secret"));
        for (const char *keys : {"Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+Ins", "Shift+Del", "Shift+Ins"}) {
            pwdEdit()->selectAll();
            QTest::keySequence(pwdEdit(), QKeySequence(keys));
            pwdEdit()->home(false);
            QTest::keySequence(pwdEdit(), QKeySequence(keys));
            QCOMPARE(pwd->text(), QString("secret"));
            QCOMPARE(QGuiApplication::clipboard()->text(), clipboardText);
        }
        for (int toggles = 0; toggles < 3; ++toggles, eye()->trigger()) {
            QVERIFY(!pwdEdit()->testAttribute(Qt::WA_InputMethodEnabled));
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), pwdEdit()->mapToGlobal(QPoint(5, 5)));
            qApp->notify(pwdEdit(), &event);
            QVERIFY(!QApplication::activePopupWidget() && window->findChildren<QMenu *>().isEmpty());
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
        const QString cleared = "   eye";
        QCOMPARE(after(Qt::Key_X, "x"), cleared);
        QTest::keyClicks(pwdEdit(), "new");
        QCOMPARE(pwd->text(), QString("new"));
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
    }

    void languageChange()
    {
        name->setText("alice");
        pwd->setPassword("stored", true);
        const auto placeholders = [this] { return nameEdit()->placeholderText() + ' ' + pwdEdit()->placeholderText(); };
        const Brackets brackets;
        QCOMPARE(placeholders(), QString("[user name] [password]"));
        QCOMPARE(name->text() + ' ' + pwdState(), "alice " + kept);
        name->setPlaceholderText("the");
        pwd->setPlaceholderText("page's");
        const Brackets again;
        QCOMPARE(placeholders(), QString("the page's"));
    }

private:
    void newFields()
    {
        auto *page = new QWidget;
        auto *column = new QVBoxLayout(page);
        column->addWidget(name = new UserNameWt);
        column->addWidget(pwd = new UserPwdWt);
        column->addWidget(elsewhere = new QLineEdit);
        open(page);
        elsewhere->setFocus();
        QTest::mouseMove(elsewhere);
        QGuiApplication::clipboard()->setText(clipboardText);
    }

    QLineEdit *nameEdit() const { return edit("userName"); }
    QLineEdit *pwdEdit() const { return edit("pwd"); }
    QAction *eye() const { return pwdEdit()->actions().value(0); }
    QToolButton *eyeButton() const { return pwdEdit()->findChild<QToolButton *>(); }

    QString pwdState() const
    {
        return pwdEdit()->text() + ' ' + pwd->text() + ' ' + pwdEdit()->property("pwd").toString() + ' ' +
               (eyeButton()->isVisible() ? "eye" : "-");
    }

    // The look of a fresh field after the steps: states that are set, and what else happens in between.
    template <typename Field>
    QString look(Field *const &field, const QString &steps)
    {
        newFields(); // makes another field
        const QMap<QString, std::function<void()>> others{{"focus", [&] { field->setFocus(); }},
                                                          {"blur", [&] { elsewhere->setFocus(); }},
                                                          {"in", [&] { QTest::mouseMove(field, QPoint(3, 3)); }},
                                                          {"out", [&] { QTest::mouseMove(elsewhere); }},
                                                          {"disable", [&] { name->setFieldDisabled(); }},
                                                          {"eye", [&] { eye()->trigger(); }}};
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts))
            others.value(step, [&] { field->setState(step.toInt()); })();
        QStringList found = {styleNames.value(field->styleSheet()), styleNames.value(field->lineEdit()->styleSheet()),
                             pictureName(field->template findChild<QLabel *>()->pixmap(Qt::ReturnByValue))};
        if (std::is_same_v<Field, UserPwdWt>)
            found << pictureName(eye()->icon());
        return found.join(' ');
    }

    UserNameWt *name = nullptr;
    UserPwdWt *pwd = nullptr;
    QLineEdit *elsewhere = nullptr;
};

QTEST_MAIN(TestFields)

#include "tst_fields.moc"
