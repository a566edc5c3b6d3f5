#include "login/local/LoginWt.h"

#include "host/kelvra_base/ComboBox.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "login/local/ScreenTable.h"
#include "ui_LoginWt.h"

#include <QEvent>
#include <QListWidget>
#include <QPainter>
#include <QPointer>
#include <QShortcut>

using kelvra_base::ComboBox;
using kelvra_worker::SysLanguage;

namespace kelvra_login {

namespace {

constexpr int languageBoxWidth = 175;
constexpr int languageBoxHeight = 24;
constexpr int languageBoxRight = 45; // from the box's right edge to the widget's
constexpr int languageBoxTop = 8;

} // namespace

LoginWt::LoginWt(QWidget *parent)
    : ZWidget(parent)
    , ui(std::make_unique<Form<Ui::LoginWt>>())
    , backdrop(QStringLiteral(":/login_images/images/img_bg_login.png"))
{
    ui->setupUi(this);
    createLanguageBox();
    ui->handlers.connect(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent, this, &LoginWt::slotLoginEvent);
    ui->handlers.connect(&LoginSignals::_instance(), &LoginSignals::signalPwdStrength, this, &LoginWt::slotPwdStrength);
}

LoginWt::~LoginWt() = default;

void LoginWt::createLanguageBox()
{
    languageBox = new ComboBox(this);
    languageBox->setObjectName(QStringLiteral("languageBox"));
    languageBox->setFixedSize(languageBoxWidth, languageBoxHeight);
    languageBox->setFocusPolicy(Qt::NoFocus);
    languageBox->setStyleSheet(QStringLiteral("QComboBox::drop-down{margin-top:5px;}"));
    languageBox->getListWt()->setStyleSheet(
        QStringLiteral("QListWidget{border:0px;} QListWidget::item{min-height:24px;}"));

    const QMap<int, QString> names = SysLanguage::_instance().getLanguageNames();
    for (auto name = names.constBegin(); name != names.constEnd(); ++name)
        languageBox->addItem(name.value(), name.key());
    nameLanguageBox();
    languageBox->setCurrentText(names.value(SysLanguage::_instance().getLanguage()));

    // The box takes no focus.
    auto *boxKey = new QShortcut(QKeySequence(QStringLiteral("Alt+L")), this);
    ui->handlers.connect(boxKey, &QShortcut::activated, languageBox, &QComboBox::showPopup);

    // Only now: filling the box is no choice of the user's.
    ui->handlers.connect(languageBox, QOverload<int>::of(&QComboBox::currentIndexChanged), [this](int index) {
        const int id = languageBox->itemData(index).toInt();
        SysLanguage::_instance().setLanguage(static_cast<kelvra_worker::Language>(id), true);
    });
}

void LoginWt::nameLanguageBox()
{
    languageBox->setAccessibleName(tr("Language"));
    // On some systems a combo box gives its current text for its name.
    languageBox->setAccessibleDescription(languageBox->accessibleName());
}

QWidget *LoginWt::screen(LoginEvent event) const
{
    const auto index = pageIndex.constFind(event);
    return index == pageIndex.constEnd() ? nullptr : ui->stackedWidget->widget(*index);
}

void LoginWt::slotLoginEvent(LoginEvent event, QStringList params)
{
    const ScreenTable::Screen *entry = ScreenTable::find(event);
    // A screen may log a user in while it is made or shown, and whoever hears of that may delete the dialog.
    const QPointer<LoginWt> self(this);
    if (!pageIndex.contains(event)) {
        if (!entry)
            return;
        QWidget *created = entry->create(params, ui->stackedWidget);
        if (!self)
            return;
        if (event == CreateSuperUser)
            created->installEventFilter(this);
        pageIndex.insert(event, ui->stackedWidget->count());
        ui->stackedWidget->addWidget(created);
    }
    ui->stackedWidget->setCurrentIndex(pageIndex.value(event));

    if (self && entry && entry->afterShowing)
        entry->afterShowing(*this, params);
}

void LoginWt::slotPwdStrength(ZCOMMON::PwdStrength strength, bool visible, QPoint globalPos)
{
    // Without a creation screen the look-up itself enters index 0, and a later creation event shows that screen.
    const QWidget *creation = ui->stackedWidget->widget(pageIndex[CreateSuperUser]);
    const ScreenTable::Tip *entry = ScreenTable::findTip();
    if (!creation || !creation->isVisible() || !entry)
        return;

    if (!tip)
        tip = entry->create(this);
    tip->setVisible(visible);
    if (visible)
        tip->raise();
    entry->setStrength(tip, strength);
    const QPoint pos = mapFromGlobal(globalPos);
    tip->move(pos.x() - tip->width(), static_cast<int>(pos.y() - tip->height() * 0.5));
}

bool LoginWt::eventFilter(QObject *watched, QEvent *event)
{
    if (tip && event->type() == QEvent::Hide && watched == screen(CreateSuperUser))
        tip->hide();
    return ZWidget::eventFilter(watched, event);
}

void LoginWt::resizeEvent(QResizeEvent *event)
{
    languageBox->move(width() - languageBoxRight - languageBox->width(), languageBoxTop);
    ZWidget::resizeEvent(event);
}

void LoginWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        nameLanguageBox();
    }
    ZWidget::changeEvent(event);
}

void LoginWt::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setPen(Qt::NoPen);
        backdrop.paint(&painter, rect());
    }
    ZWidget::paintEvent(event);
}

} // namespace kelvra_login
