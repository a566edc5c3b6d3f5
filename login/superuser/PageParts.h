#pragma once

#include <QString>

#include <array>

class QEvent;
class QKeyEvent;
class QLineEdit;
class QPushButton;
class QWidget;

/**
 * @file
 * What the pages of superuser creation and recovery share.
 */

namespace kelvra_login {

/** The answers to the three security questions, trimmed. */
using SecretAnswers = std::array<QString, 3>;

/** Reads the answers; false, with a tip at the first field that is empty or blank, when one is missing. */
bool readAnswers(const std::array<QLineEdit *, 3> &fields, SecretAnswers &answers);

/**
 * Return and Enter click the page's main button, once for each press of the key, while the page is visible. The
 * click may cost the page its life: false when it is gone.
 */
bool clickOnEnter(QWidget *page, QPushButton *button, QKeyEvent *event);

/** Whether the left mouse button goes down; the second press of a double click counts like any other. */
bool isLeftPress(const QEvent *event);

} // namespace kelvra_login
