#include "client/shell/PasswordEdit.h"

#include <QAccessibleWidget>

namespace kelvra_client {

namespace {

class Face : public QAccessibleWidget
{
public:
    explicit Face(QWidget *edit)
        : QAccessibleWidget(edit, QAccessible::EditableText)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.passwordEdit = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value)
            return QAccessibleWidget::text(kind);
        return QString(static_cast<QLineEdit *>(widget())->text().size(), QLatin1Char('*'));
    }
};

QAccessibleInterface *faceOf(const QString &, QObject *object)
{
    auto *edit = qobject_cast<PasswordEdit *>(object);
    return edit ? new Face(edit) : nullptr;
}

} // namespace

PasswordEdit::PasswordEdit(QWidget *parent)
    : QLineEdit(parent)
{
    QAccessible::installFactory(faceOf);
    setEchoMode(Password);
}

PasswordEdit::~PasswordEdit() = default;

} // namespace kelvra_client
