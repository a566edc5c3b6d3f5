#pragma once

#include "client/shell/TourScript.h"

#include <QPoint>
#include <Qt>

/** What the stages of the tour are put together from. */
namespace kelvra_client::tour {

using Acts = QVector<TourStep::Act>;
using Check = TourStep::Check;

constexpr int noAutoLoginMs = 800; // a login that happens by itself does so after half a second
constexpr int nothingMs = 400;     // for what must have no effect

// Steps

TourStep step(const QString &did, const Acts &acts, const QString &lookAt, const Check &check,
              const QString &picture = QString(), int holdsMs = 0);
/** A step that ends the program. */
TourStep quit(const QString &did, const Acts &acts);

// Acts

inline const Acts look;

Acts click(const QString &path);
Acts moveTo(const QString &path);
/** Draws a gesture, given as the numbers of its dots. */
Acts draw(const QString &gesture);
/** Takes the window to the left, so that what pops up at its right has room on a small screen. */
Acts makeRoom(const QString &path);
Acts minimize(const QString &path);
Acts press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/** Types over what a field holds. */
Acts fill(const QString &path, const QString &text);
/** In a file dialog: names a file beside the stage's data folder, or in it ("folder/file"), and presses Enter. */
Acts chooseFile(const QString &name);
Acts startAgain();

// Checks

Check is(const QString &expected);
/** The whole must match. */
Check like(const QString &pattern);
bool changed(const QString &seen, const QString &before);

// Looks

inline const QString methods = QStringLiteral("{label}; {defaultUserBt/title}; {newUserBt/title}; {saasUserBt/title}");
inline const QString methodTexts =
    QStringLiteral("Welcome to login; Use Default Superuser; Create New Superuser; Login Nimbra App User");
inline const QString form =
    QStringLiteral("name: {localUserWt/userName}, password: {localPwdWt/pwd}, button: {localLoginBt}");
inline const QString alert = QStringLiteral("{alertBox/text}");
inline const QString tip = QStringLiteral("{qtooltip_label}");
inline const QString list = QStringLiteral("{QComboBoxPrivateContainer/QListWidget}");
inline const QString session = QStringLiteral("{currentUser}, {loginMethod}");

/** What `form` gives while nobody is locked out. */
QString formText(const QString &name, const QString &password);

} // namespace kelvra_client::tour
