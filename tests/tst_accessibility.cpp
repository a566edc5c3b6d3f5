#include "TestTools.h"
#include "login/cloud/QRCodeLoginPanel.h"
#include "login/local/UserPwdWt.h"

#include <QAccessible>

using namespace kelvra_login;

namespace {

/** What assistive technology is told of a widget: role, name, key, actions, and what is special about its state. */
QString told(QWidget *widget)
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
    const QAccessible::State state = face->state();
    QStringList words{QVariant::fromValue(face->role()).toString(), face->text(QAccessible::Name),
                      face->text(QAccessible::Accelerator), face->actionInterface()->actionNames().join('+')};
    for (const auto &[is, word] : {std::pair(state.checkStateMixed, "mixed"), {state.checked, "checked"}})
        words << (is ? word : "");
    return words.join(' ').simplified();
}

} // namespace

/** A host's dialog with widgets of its own and one of the module's. */
class TestAccessibility : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        auto *dialog = new QDialog;
        (new QRCodeLoginPanel(dialog))->setObjectName("panel");
        (new UserPwdWt(dialog))->setObjectName("field");
        open(dialog);
    }

    void hostsWidgetsKeepTheirFaces_data()
    {
        QTest::addColumn<QString>("parent");
        for (const char *parent : {"", "panel", "field"})
            QTest::newRow(qPrintable(QString("beside or in: ") + parent)) << parent;
    }

    void hostsWidgetsKeepTheirFaces()
    {
        QFETCH(QString, parent);
        QWidget *outer = parent.isEmpty() ? window.data() : child(parent);
        QRadioButton radio("&Local", outer);
        QCOMPARE(told(&radio), QString("RadioButton Local Alt+L Toggle+SetFocus"));
        QCheckBox box("&Some", outer);
        box.setTristate();
        box.setCheckState(Qt::PartiallyChecked);
        QCOMPARE(told(&box), QString("CheckBox Some Alt+S Toggle+SetFocus mixed checked"));
        QToolButton split(outer);
        split.setCheckable(true);
        split.setText("View");
        split.setMenu(new QMenu(&split));
        split.setPopupMode(QToolButton::MenuButtonPopup);
        QCOMPARE(told(&split), QString("ButtonMenu View ShowMenu+ShowMenu+SetFocus"));
        QPushButton tab("Tab", outer);
        tab.setCheckable(true);
        tab.setProperty("page_tab", true);
        QCOMPARE(told(&tab), QString("CheckBox Tab Toggle+SetFocus"));
        QLineEdit hidden(outer->window());
        hidden.setEchoMode(QLineEdit::Password);
        QVERIFY(QAccessible::queryAccessibleInterface(&hidden)->textInterface());
    }

    void eyeDoesWhenToggledWhatItDoesWhenClicked()
    {
        QWidget *eye = edit("field")->findChild<QToolButton *>();
        QCOMPARE(told(eye), QString("CheckBox Show password Toggle"));
        QAccessible::queryAccessibleInterface(eye)->actionInterface()->doAction("Toggle");
        QTRY_COMPARE(edit("field")->echoMode(), QLineEdit::Normal);
    }
};

QTEST_MAIN(TestAccessibility)

#include "tst_accessibility.moc"
