#include "login/superuser/PageParts.h"

#include "login/local/FieldStyle.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

namespace kelvra_login {

bool readAnswers(const std::array<QLineEdit *, 3> &fields, SecretAnswers &answers)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        answers[i] = fields[i]->text().trimmed();
        if (answers[i].isEmpty()) {
            showFieldError(fields[i], QCoreApplication::translate("kelvra_login::PageParts",
                                                                  "answer can not be empty or be all blank!"));
            return false;
        }
    }
    return true;
}

bool clickOnEnter(QWidget *page, QPushButton *button, QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !page->isVisible())
        return true;
    event->accept();
    const QPointer<QWidget> self(page);
    if (!event->isAutoRepeat())
        emit button->clicked();
    return self;
}

bool isLeftPress(const QEvent *event)
{
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    return press && static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
}

} // namespace kelvra_login
