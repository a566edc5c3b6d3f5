#include "login/common/AccessibleFaces.h"

#include "login/common/AccessibleLink.h"
#include "login/common/AccessibleMethod.h"
#include "login/common/AccessiblePad.h"
#include "login/common/AccessiblePassword.h"
#include "login/common/AccessibleToggle.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace kelvra_login {

namespace {

bool isInPasswordField(const QObject *object)
{
    return object->parent() && object->parent()->inherits("kelvra_login::UserPwdWt");
}

// The host's line edit may have buttons of its own.
bool isEye(const QAbstractButton *button)
{
    const auto *tool = qobject_cast<const QToolButton *>(button);
    return tool && tool->parent() && isInPasswordField(tool->parent()) && tool->defaultAction() &&
           tool->defaultAction()->objectName() == QLatin1String("eye");
}

bool isTab(const QAbstractButton *button)
{
    if (!button->property("page_tab").toBool())
        return false;
    const QObject *outer = button->parent();
    while (outer && !outer->inherits("kelvra_login::NormalLoginWt"))
        outer = outer->parent();
    return outer;
}

// Asked for each class of an object, the derived ones first.
QAccessibleInterface *faceOf(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (className == QLatin1String("kelvra_login::GesturePanel"))
        return new AccessiblePad(widget);
    if (className == QLatin1String("kelvra_login::LinkLabel"))
        return new AccessibleLink(static_cast<QLabel *>(widget));
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        return isInPasswordField(edit) ? new AccessiblePassword(edit) : nullptr;
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (className == QLatin1String("kelvra_login::LoginMethodBt"))
        return new AccessibleMethod(button);
    if (button && isTab(button))
        return new AccessibleToggle(button, QAccessible::PageTab);
    return button && isEye(button) ? new AccessibleToggle(button, QAccessible::CheckBox) : nullptr;
}

/** Goes when the module is unloaded: there is no function to ask from then on. */
struct Removal
{
    Removal() = default;
    ~Removal() { QAccessible::removeFactory(faceOf); }
    Q_DISABLE_COPY(Removal)
};

} // namespace

void AccessibleFaces::install()
{
    QAccessible::installFactory(faceOf); // enters it once
    // Made after the toolkit's list of factories, so that it goes before that.
    static const Removal removal;
}

} // namespace kelvra_login
