// Every screen: whether its texts are translated and fit, what assistive technology finds on it, and whether the
// keyboard gets everywhere it may. What is wrong stands in the warnings, line by line. With a folder named in
// KELVRA_TEST_PICTURES, a picture of every screen stays there.
#include "client/kelvra_base/AlertBox.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "client/kelvra_worker/Languages.h"
#include "client/shell/AddUserDlg.h"
#include "client/shell/ClientStyle.h"
#include "client/shell/CloudSide.h"
#include "client/shell/MainWindow.h"
#include "client/shell/PhoneWindow.h"
#include "client/shell/SetPwdDlg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginInit.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/Screens.h"
#include "login/frame/SplashScreen.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/gesture/GestureVerifyDlg.h"
#include "login/local/LoginWt.h"
#include "login/local/PwdTipWt.h"
#include "login/local/UserPwdWt.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "tests/DataFolderTest.h"

#include <QAccessible>
#include <QtWidgets>

using namespace kelvra_client;
using namespace kelvra_data;
using namespace kelvra_login;
using namespace kelvra_worker;

namespace {

const QString user = "root", account = "13800000001", secret = "Unheard-of-57";
const QString phoneSecret = "Analytical1"; // of the phone's first account

/** Installed before any translation it is asked last: for what none of them knows. */
class Untranslated : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (*context != 'Q') // those are the toolkit's, whose translations need not be installed
            texts.insert(QString("%1: no translation of \"%2\"").arg(context, source));
        return {};
    }
    mutable QSet<QString> texts;
};

QString plain(const QString &text)
{
    const QString stripped = Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    return QString(stripped).remove(QChar::ObjectReplacementCharacter).trimmed();
}

QStringList all(const char *pattern, const QString &text)
{
    QStringList found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();)
        found << match.next().captured();
    found.sort();
    return found;
}

void press(QWidget *widget)
{
    QAccessible::queryAccessibleInterface(widget)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

} // namespace

class TestScreens : public DataFolderTest
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<int>("language");
        for (const Languages::Entry &entry : Languages::all())
            QTest::newRow(qPrintable(entry.code)) << int(entry.id);
    }

    void initTestCase()
    {
        QCoreApplication::installTranslator(&untranslated);
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        Store::_instance().setSuperUserReplaceable(true); // offers one way more
        QVERIFY(users().addSuperUser(superUser(user, secret)) && users().addSuperUserFromSaasUser(account));
        QVERIFY(UserAdmin::_instance().add("operator", "secret") == UserAdmin::Done);
        QVERIFY(users().updateUserLoginRecord(user, false));
        for (int event = int(AuditEvent::LoginSuccess); event <= int(AuditEvent::ReplaceSuperUser); ++event)
            AuditTrail::_instance().write(AuditEvent(event), user);
        SystemWorker::_instance().setSuperUserInfo(user, secret);
        cloud.open(at());
        ClientStyle::install(*qApp);
        static_cast<kelvra_base::ModuleInitialization &>(LoginInit::_instance()).init();
        enterScreens();
    }

    void cleanupTestCase()
    {
        SysLanguage::_instance().setLanguage(english, false);
        Store::_instance().close();
    }

    void init()
    {
        QFETCH_GLOBAL(int, language);
        SysLanguage::_instance().setLanguage(Language(language), false);
        code = Languages::find(Language(language))->code;
        faults.clear();
        untranslated.texts.clear();
    }

    void cleanup()
    {
        if (code != "en")
            faults += untranslated.texts;
        for (const QString &fault : qAsConst(faults))
            qWarning("%s", qPrintable(fault));
        QCOMPARE(faults.size(), 0);
    }

    void files()
    {
        static const QRegularExpression entry("(?s)<source>(.*?)</source>.*?<translation(.*?)>(.*?)</translation>");
        static const QRegularExpression form("\\s*</?numerusform>\\s*");
        const char marks[] = "%L?[0-9n]+|&lt;.*?&gt;|&amp;|^\\s+|\\s+$"; // placeholders, tags, accelerators, blanks
        const int plurals = code == "zh_CN" || code == "ja" ? 1 : code == "ru" ? 3 : 2;
        const QFileInfoList found = QDir(KELVRA_TRANSLATIONS).entryInfoList({"*_" + code + ".ts"});
        QCOMPARE(found.size(), code == "en" ? 0 : 2);
        for (const QFileInfo &file : found) {
            for (auto match = entry.globalMatch(readFile(file.filePath())); match.hasNext();) {
                const QStringList part = match.next().capturedTexts();
                const QStringList texts = part[3].split(form, Qt::SkipEmptyParts);
                bool good = part[2].isEmpty() && texts.size() == (part[1].contains("%n") ? plurals : 1);
                for (QString text : texts) {
                    if (part[1].endsWith(' ') && text.back() >= QChar(0x3000)) // whose glyphs bring their blank along
                        text += ' ';
                    good &= all(marks, text) == all(marks, part[1]);
                }
                if (!good)
                    faults << QString("\"%1\" has become \"%2\" %3").arg(part[1], part[3], part[2]);
            }
        }
    }

    // Before a login form has left a code on show.
    void phone()
    {
        const char context[] = "kelvra_client::PhoneWindow";
        PhoneWindow phone(*kelvra_saas::SaasSetup::simulation());
        visit(phone);
        look(phone, "networkSwitch", context, {"Network of the computer: off"});
        look(phone, "copyPhoneBt", context, {"Copied"});
        setShown(phone, {"smsHint", "scanBt"}, false);
        setShown(phone, {"lockRow", "refuseBt", "refuseRow", "confirmScanBt", "cancelScanBt", "copyCodeBt"}, true);
        say(phone, "smsCode", "123 456");
        look(phone, "accountLock", context, {"Locked, %1 left"}, "30:00");
        look(phone, "smsPhone", context, {"SMS to %1"}, account);
        look(phone, "smsLeft", context, {"%1 left", "expired"}, "5:00");
        look(phone, "codeLeft", context, {"%1 left"}, "5:00");
        look(phone, "smsText", "kelvra_saas::SmsCodes",
             {"[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on."}, "123456");
        look(phone, "codeText", context,
             {"The login window shows a code.", "Log in on the computer as %1? The computer waits for your answer.",
              "Confirmed. The computer logs in as %1.",
              "Cancelled. Click the arrows in the login window to get a new code.",
              "Refused by the cloud. Click the arrows in the login window to get a new code."},
             "Grace Hopper");
        look(phone, "copyCodeBt", context, {"Copied"});
        setShown(phone, {"confirmScanBt", "cancelScanBt"}, false);
        look(phone, "scanBt", context, {"Scan as %1", "Scan"}, "Grace Hopper");
    }

    void tabsAndLinksArePressed()
    {
        const auto window = login(NormalLogin);
        window->show();
        press(window->findChild<QWidget *>("saasUserTab"));
        QTRY_VERIFY(window->findChild<QWidget *>("saasPwdLoginPage")->isVisible());
        auto *link = window->findChild<QWidget *>("createUser");
        QSignalSpy events(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent);
        press(link);
        QTRY_COMPARE(events.size(), 1);
        QTest::keyClick(link, Qt::Key_Space);
        QCOMPARE(events.size(), 2);
    }

    void loginForm()
    {
        const auto window = login(NormalLogin);
        QWidget &form = *window->findChild<LoginWt *>();
        visit(form);
        look(form, "localLoginBt", "kelvra_login::NormalLoginWt", {"Locked, Wait:%1Sec."}, "1800");
        look(form, "loginBt", "kelvra_login::CloudPageParts", {"Logging in..."});
        look(form, "getVerificationCodeBt", "kelvra_login::SaasVerificationCodeLoginWt",
             {"60S", "%1S", "Get Verification Code"}, "60");
        look(form, "QRCodeTitle", "kelvra_login::QRCodeLoginPanel",
             {"QR Code Login Failure", "QR Code Invalid", "Get QR Code Failure", "Scanned, confirming",
              "Scanned, cancel login", "Illegal operation", "Illegal ip", "Check Status Failure"});
    }

    void loginPages()
    {
        for (const auto event :
             {LoginMethodSel, CreateSuperUser, SetSecretAnswer, ResetSuperUserPwd, VerifySecretAnswer, GestureLogin}) {
            const auto window = login(event);
            QWidget &page = *window->findChild<LoginWt *>();
            visit(page);
            for (const QString &question : DictDef::_instance().securityQuestions()) {
                if (event == VerifySecretAnswer)
                    say(page, "question_1", question);
            }
            if (event == GestureLogin)
                look(page, "errorLabel", "kelvra_login::GestureLoginWt", {"Failed:%1 times, Remaining:%2 times"}, "5");
        }
        for (const int strength : {PwdTipLength, PwdTipLikeName, PwdTipTooSimple, PwdTipKept}) {
            PwdTipWt tip(nullptr);
            tip.setStrength(ZCOMMON::PwdStrength(strength));
            look(tip);
        }
        SplashScreen splash;
        splash.slotSmoothProgress(99);
        look(splash);
    }

    void loginDialogs()
    {
        GestureVerifyDlg verify(nullptr);
        visit(verify);
        AddGesturePwdDlg add(nullptr);
        visit(add);
        look(add, "prompt", "kelvra_login::AddGesturePwdDlg",
             {"Second input gesture", "Too simple gesture:at least 4 points", "Successfully set gesture password"});
        GetbackPwdDlg getBack(nullptr);
        visit(getBack);
        const SuperUserInfo info = superUser(user, {});
        getBack.findChild<QLineEdit *>("answer_1")->setText(info.answer1);
        getBack.findChild<QLineEdit *>("answer_2")->setText(info.answer2);
        getBack.findChild<QLineEdit *>("answer_3")->setText(info.answer3);
        getBack.slotOperBtClicked();
        QVERIFY(getBack.findChild<QLabel *>("password")->isVisible());
        visit(getBack);
    }

    void mainWindow()
    {
        MainWindow window;
        window.resize(window.minimumSize());
        window.offerPhone(true);
        window.loadUsers();
        window.loadAuditLog();
        using Session = SessionInfo;
        for (const Session &session :
             {Session{user, LocalUser, Session::GestureMethod, {}},
              Session{account, CloudUser, Session::CloudMethod, {}},
              Session{"operator", LocalUser, Session::PasswordMethod, {}}, Session{"gone", LocalUser, -1, {}},
              Session{user, LocalUser, Session::PasswordMethod, {}}}) {
            const bool first = session.method == Session::GestureMethod;
            first ? users().updateUserGesture(user, "01234") : users().deleteUserGesture(user);
            QVERIFY(users().isUserConfigureGesture(user) == first && users().userAutoLoginCtrl(user, first));
            SystemWorker::_instance().setCurUserInfo(session.type, session.user, {}, 0, false);
            window.setSession(session);
            visit(window);
        }
        look(window, "setGestureBt", "kelvra_client::LocalUsersWt", {"Change gesture"});
        look(window, "auditCount", "kelvra_client::AuditLogWt", {"The newest %1 entries"}, "1000");
        look(window, "signInNote", "kelvra_client::SignInWt",
             {"The gesture password has been deleted.", "The gesture password could not be deleted.",
              "The gesture password has been verified.", "The gesture password was not verified.",
              "The automatic login could not be changed."});
    }

    void clientDialogs()
    {
        for (const auto title : {DictDef::OperationFailedTitle, DictDef::WarningTitle, DictDef::InformationTitle}) {
            kelvra_base::AlertBox box(nullptr, kelvra_base::AlertBox::Error, DictDef::_instance().alertTitle(title),
                                      UserAdmin::sentence(UserAdmin::NameNotTypable),
                                      kelvra_base::OkButton | kelvra_base::CancelButton);
            visit(box);
        }
        SetPwdDlg set("operator", nullptr);
        visit(set);
        AddUserDlg add(nullptr);
        visit(add);
        for (int answer = UserAdmin::Done; answer <= UserAdmin::NotStored; ++answer)
            say(add, "error", UserAdmin::sentence(UserAdmin::Answer(answer)));
        look(add, "error", "kelvra_client::NewPwdDlg", {"The two passwords are not the same."});
    }

private:
    /** Shows `screen` at its given size with every page of its stacks. */
    void look(QWidget &screen, void (TestScreens::*see)(QWidget &) = &TestScreens::measure)
    {
        screen.window()->show();
        (this->*see)(screen);
        for (auto *stack : screen.findChildren<QStackedWidget *>()) {
            const int shown = stack->currentIndex();
            for (int page = 0; page <= stack->count(); ++page) {
                stack->setCurrentIndex(page < stack->count() ? page : shown);
                (this->*see)(screen);
            }
        }
    }

    /** A first look, and a walk, which does not depend on the language. */
    void visit(QWidget &screen)
    {
        look(screen);
        if (code == "en")
            look(screen, &TestScreens::walk);
    }

    /** Lets the parts of that name say each of `sources` in turn, as other states of `screen` do. */
    void look(QWidget &screen, const char *name, const char *context, const std::vector<const char *> &sources,
              const QString &argument = {})
    {
        for (const char *source : sources)
            say(screen, name,
                QCoreApplication::translate(context, source).replace(QRegularExpression("%[0-9]"), argument));
    }

    void say(QWidget &screen, const char *name, const QString &text)
    {
        const auto found = screen.findChildren<QWidget *>(name);
        QVERIFY2(!found.isEmpty(), name);
        for (auto *widget : found) {
            QVERIFY(widget->setProperty("text", text));
            widget->show();
        }
        look(screen);
    }

    static void setShown(const QWidget &screen, const std::vector<const char *> &names, bool shown)
    {
        for (const char *name : names)
            screen.findChild<QWidget *>(name)->setVisible(shown);
    }

    /** Notes what is cut off. */
    void measure(QWidget &screen)
    {
        for (int turn = 0; turn < 3; ++turn) // a layout may ask the one around it
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (auto *widget : screen.findChildren<QWidget *>()) {
            if (!widget->isVisible())
                continue;
            if (const auto *label = qobject_cast<QLabel *>(widget))
                measureLabel(label);
            else if (const auto *edit = qobject_cast<QLineEdit *>(widget))
                measureEdit(edit);
            else if (const auto *table = qobject_cast<QTableView *>(widget))
                measureTable(table);
            else if (qobject_cast<QPushButton *>(widget) || qobject_cast<QCheckBox *>(widget))
                measureButton(static_cast<QAbstractButton *>(widget));
        }
        // A framed dialog paints its title, up to the cross.
        if (const auto *cross = screen.findChild<QPushButton *>("closeBt")) {
            QFont font = screen.font();
            font.setPixelSize(14);
            const int width = QFontMetrics(font).horizontalAdvance(screen.windowTitle());
            compare(&screen, screen.windowTitle(), width, cross->x() - 16 - 20);
        }
        if (!pictures.isEmpty())
            keep(screen);
    }

    /** Only the first look of each screen: the later ones have other states' texts in place of its own. */
    void keep(QWidget &screen)
    {
        QString name = screen.objectName();
        for (const auto *stack : screen.findChildren<QStackedWidget *>()) {
            if (stack->isVisible() && stack->currentWidget()) // the innermost one comes last
                name = stack->currentWidget()->objectName();
        }
        for (auto *tab : screen.findChildren<QPushButton *>(QRegularExpression("UserTab$")))
            tab->setChecked(name.startsWith("saas") == tab->objectName().startsWith("saas"));
        const QString path = QDir(pictures).filePath(code + '-' + name.section("__", -1) + ".png");
        QVERIFY2(QFile::exists(path) || screen.grab().save(path), qPrintable(path));
    }

    void measureLabel(const QLabel *label)
    {
        const bool wraps = label->wordWrap();
        const QString text = plain(label->text());
        compare(label, text, (wraps ? label->minimumSizeHint() : label->sizeHint()).width(), label->width());
        if (wraps)
            compare(label, text, label->heightForWidth(label->width()), label->height(), "height");
    }

    void measureButton(const QAbstractButton *button)
    {
        QStyleOptionButton option;
        option.initFrom(button);
        const bool box = qobject_cast<const QCheckBox *>(button);
        const auto contents = box ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonContents;
        const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + 4;
        compareText(button, button->text(), button->style()->subElementRect(contents, &option, button).width() - icon);
    }

    void measureEdit(const QLineEdit *edit)
    {
        QStyleOptionFrame option;
        option.initFrom(edit);
        const QMargins margins = edit->textMargins();
        int room = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).width();
        room -= margins.left() + margins.right() + 2 * 2; // it keeps two pixels of its own at either side
        for (const auto *action : edit->findChildren<QToolButton *>())
            room -= action->width();
        compareText(edit, edit->isReadOnly() ? edit->text() : edit->placeholderText(), room);
    }

    void measureTable(const QTableView *table)
    {
        const QAbstractItemView *items = table; // where the hint is public
        const QHeaderView *header = table->horizontalHeader();
        for (int column = 0; header->isVisible() && column < header->count(); ++column) {
            const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
            compare(header, title, header->sectionSizeHint(column), header->sectionSize(column));
            if (column < header->count() - 1) // the last one takes what is left
                compare(table, "below " + title, items->sizeHintForColumn(column), header->sectionSize(column));
        }
    }

    void compareText(const QWidget *widget, const QString &text, int room)
    {
        compare(widget, text, widget->fontMetrics().size(Qt::TextShowMnemonic, text).width(), room);
    }

    /** What is beyond the edge of a widget further out does not count as given. */
    void compare(const QWidget *widget, const QString &text, int needed, int given, const char *what = "width")
    {
        QRect seen = widget->rect();
        for (const QWidget *inner = widget; !inner->isWindow(); inner = inner->parentWidget())
            seen &= QRect(widget->mapFrom(inner->parentWidget(), QPoint()), inner->parentWidget()->size());
        given -= qMax(widget->width() - seen.width(), widget->height() - seen.height());
        if (!text.isEmpty() && needed > given)
            faults << QString("%1 %2 \"%3\" needs a %4 of %5 px, has %6 px")
                          .arg(widget->window()->objectName(), widget->objectName(), text, what)
                          .arg(needed)
                          .arg(given);
    }

    /** Notes what assistive technology does not find or had better not, and where Tab does not get. */
    void walk(QWidget &screen)
    {
        QWidget *window = screen.window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        for (auto *edit : window->findChildren<QLineEdit *>()) {
            if (edit->echoMode() == QLineEdit::Password)
                edit->setText(secret);
        }
        QSet<QWidget *> reached;
        for (QWidget *at = window->focusWidget(); at && !reached.contains(at); at = window->focusWidget()) {
            reached << at;
            QTest::keyClick(at, Qt::Key_Tab);
        }
        for (int eye = 0; eye < 2; ++eye) { // every password is heard shown and hidden
            for (auto *button : window->findChildren<QToolButton *>()) {
                if (qobject_cast<QLineEdit *>(button->parent()))
                    button->click();
            }
            for (auto *widget : window->findChildren<QWidget *>()) {
                if (widget->isVisible())
                    hear(widget, reached.contains(widget));
            }
        }
    }

    void hear(QWidget *widget, bool reached)
    {
        static const QSet<QString> focusless{"closeBt",    "phoneCloseBt", "defaultUserBt", "newUserBt",
                                             "saasUserBt", "gesturePanel", "languageBox",   "eye"};
        static const QSet<int> interactive{QAccessible::Button,       QAccessible::CheckBox, QAccessible::ComboBox,
                                           QAccessible::EditableText, QAccessible::Link,     QAccessible::Table,
                                           QAccessible::PageTab,      QAccessible::Canvas};
        auto *node = QAccessible::queryAccessibleInterface(widget);
        const QString name = qobject_cast<QLineEdit *>(widget->parent()) ? "eye" : widget->objectName();
        const auto expect = [&](bool fact, const char *otherwise) {
            if (!fact)
                faults << widget->window()->objectName() + ' ' + name + otherwise;
        };
        QString told = node->textInterface() ? node->textInterface()->text(0, 99) : QString();
        for (const auto text : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
            told += '\n' + node->text(text);
        expect(!told.contains(secret) && !told.contains(phoneSecret), " tells a password");
        const auto *edit = qobject_cast<QLineEdit *>(widget);
        // A field with a text interface has every typed character told in an event.
        if (edit && (edit->echoMode() == QLineEdit::Password || qobject_cast<UserPwdWt *>(edit->parent())))
            expect(node->state().passwordEdit && !node->textInterface(), " is no password field");
        const bool pressable = node->actionInterface() && node->actionInterface()->actionNames().contains("Press");
        if (qobject_cast<QLabel *>(widget) && widget->testAttribute(Qt::WA_SetCursor))
            expect(node->role() == QAccessible::Link && pressable, " is no link");
        if (!interactive.contains(node->role()))
            return;
        // A combo box gives its current text for its name on some systems.
        const auto naming = node->role() == QAccessible::ComboBox ? QAccessible::Description : QAccessible::Name;
        expect(!node->text(naming).isEmpty(), " has no name");
        const bool mayNot = widget->focusPolicy() == Qt::NoFocus && focusless.contains(name);
        expect(reached || mayNot || !widget->isEnabled(), " is not reached by Tab");
    }

    static UserData &users() { return UserData::_instance(); }

    static std::unique_ptr<LoginDlg> login(LoginEvent event)
    {
        auto dialog = std::make_unique<LoginDlg>(nullptr);
        emit LoginSignals::_instance().signalLoginEvent(event, {user});
        return dialog;
    }

    Untranslated untranslated;
    CloudSide cloud;
    QString code; // of the language in force
    const QString pictures = qEnvironmentVariable("KELVRA_TEST_PICTURES");
    QSet<QString> faults;
};

QTEST_MAIN(TestScreens)

#include "tst_screens.moc"
