#pragma once

#include "host/ZCommon/StyleDefs.h"

#include <QString>

class QLabel;
class QLineEdit;
class QWidget;

/**
 * @file
 * What the user name and the password field share: the looks of frame and text, and their handling.
 */

namespace kelvra_login {

/** Look of an input field; any other value is ignored. */
enum FieldState : int { FieldNormal = 0, FieldHover = 1, FieldFocused = 2 };

inline const QString frameNormalStyle =
    ZCOMMON::styleFramedWidget.arg(ZCOMMON::colorFieldBackground, ZCOMMON::colorBorder);
inline const QString frameHighlightedStyle =
    ZCOMMON::styleFramedWidget.arg(ZCOMMON::colorFieldBackground, ZCOMMON::colorAccent);
inline const QString frameDisabledStyle = ZCOMMON::styleFramedWidgetDisabled.arg(ZCOMMON::colorBorder);
inline const QString editDimStyle = ZCOMMON::styleLineEditDim.arg(ZCOMMON::colorFieldBackground);
inline const QString editBrightStyle = ZCOMMON::styleLineEditBright.arg(ZCOMMON::colorFieldBackground);
inline const QString editDisabledStyle = ZCOMMON::styleLineEditDisabled;

/** Sets a style sheet unless it is in force: setting one again would polish the whole field anew. */
void applyStyle(QWidget *widget, const QString &styleSheet);

/** Shows an icon in a label of fixed size, in its form for dense screens where the screen is one. */
void showIcon(QLabel *label, const QString &fileName);

/**
 * Puts the cursor in the field at fault and shows `text` as a tool tip at its top left corner. The tip lies over the
 * line edit, so it goes when the user types.
 */
void showFieldError(QWidget *field, const QString &text);

/** Gives the line edit's placeholder to assistive technology for its name. */
void nameAfterPlaceholder(QLineEdit *lineEdit);

/** Keeps what a re-translation of a field's form would take from its line edit. */
class FieldContent
{
public:
    /** Notes the text, and the placeholder where it is the owner's rather than the form's. */
    FieldContent(QLineEdit *lineEdit, bool keepPlaceholder);
    /** Puts back what has changed. */
    void restore() const;

private:
    QLineEdit *const lineEdit;
    const bool keepPlaceholder;
    const QString text;
    const QString placeholder;
};

} // namespace kelvra_login
