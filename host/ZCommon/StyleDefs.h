#pragma once

#include <QString>

/**
 * @file
 * Colours and style sheet templates shared by the client's modules. Each library that includes this header
 * builds its own constants when it is loaded; they are plain texts, so it does not matter whose are used.
 */

namespace ZCOMMON {

inline const QString colorFieldBackground = QStringLiteral("#0e1623"); ///< ground of input fields
inline const QString colorAccent = QStringLiteral("#2c7dce");          ///< focused field, main buttons, links
inline const QString colorBorder = QStringLiteral("#323e58");          ///< frame of fields and dialogs at rest
inline const QString colorSuccess = QStringLiteral("#00cf8b");         ///< what is kept or has succeeded
inline const QString colorError = QStringLiteral("#dc4d4d");           ///< what has failed
inline const QString colorBright = QStringLiteral("#ffffff");          ///< text under the pointer or checked

/** Framed widget: %1 background, %2 border colour. */
inline const QString styleFramedWidget =
    QStringLiteral("QWidget{background-color: %1;border:1px solid %2;border-radius:3px}");

/** Framed widget that is disabled: %1 border colour. */
inline const QString styleFramedWidgetDisabled =
    QStringLiteral("QWidget{background-color: #253141;border:1px solid %1;border-radius:3px}");

/** Label without a frame: %1 text colour. */
inline const QString styleLabel =
    QStringLiteral("QLabel{color:%1;border:0px;font-size:13px;font-family:microsoft yahei}");

/** Line edit inside a framed widget, dim text: %1 background. */
inline const QString styleLineEditDim =
    QStringLiteral("QLineEdit{color:#858fa2;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
                   "background-color: %1;}");

/** Line edit inside a framed widget, bright text: %1 background. */
inline const QString styleLineEditBright =
    QStringLiteral("QLineEdit{color:#ccd3dd;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
                   "background-color: %1;}");

/** Line edit inside a framed widget that is disabled. */
inline const QString styleLineEditDisabled =
    QStringLiteral("QLineEdit{color:#858fa2;border:0px;font-size:13px;font-family:microsoft yahei;padding-left:0px; "
                   "background-color:#253141;}");

} // namespace ZCOMMON
