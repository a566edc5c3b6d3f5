#include "client/shell/TourSuperUser.h"

#include "client/shell/TourParts.h"

#include <QStringList>

namespace kelvra_client {

using namespace tour;

namespace {

const QString name = QStringLiteral("Harbour7");
const QString nameReversed = QStringLiteral("7ruobraH");
const QString password = QStringLiteral("Copper-kettle-5");
const QString passwordAfterAnswers = QStringLiteral("Silver-anchor-6");
const QString passwordAfterFile = QStringLiteral("Amber-window-9");
const QStringList answers = {QStringLiteral("Grindstone"), QStringLiteral("Lighthouse"), QStringLiteral("Herring")};
const QStringList wrongAnswers = {answers.at(0), answers.at(1), QStringLiteral("Mackerel")};
const QString credentialsFile = QStringLiteral("login-credentials.dat");
const QString otherFile = QStringLiteral("own/kelvra.key");

// Acts

Acts fillPasswords(const QString &pwd, const QString &confirmation)
{
    return fill("inputPwdWt/pwd", pwd) + fill("confirmPwdWt/pwd", confirmation);
}

Acts fillAnswers(const QStringList &texts)
{
    return fill("answer_1", texts.at(0)) + fill("answer_2", texts.at(1)) + fill("answer_3", texts.at(2));
}

// Looks

const QString page = QStringLiteral("{label_2}");
const QString rules = QStringLiteral("rules: {tooSimpleFlag} {lessThan8Flag} {similarToNameFlag}");
const QString rulesHidden = QStringLiteral("rules: not shown not shown not shown");
const QString ruleKept(QChar(0x221a));
const QString ruleBroken(QChar(0x00b7));
const QString newUser =
    QStringLiteral("name: {userWt/userName}, password: {inputPwdWt/pwd}, confirmation: {confirmPwdWt/pwd}");
const QString questions = QStringLiteral("{question_1} | {question_2} | {question_3}");
const QString questionTexts =
    QStringLiteral("Who was your favourite teacher? | Which was your first school? | What is your favourite film?");
const QString chosenTexts =
    QStringLiteral("What is your mother's name? | Which was your first school? | What is your favourite film?");
const QString chineseTexts =
    QStringLiteral("您最喜欢的老师叫什么名字？ | 您就读的第一所学校叫什么？ | 您最喜欢的电影是哪一部？");
const QString given = QStringLiteral("{answer_1}, {answer_2}, {answer_3}");
const QString noAnswers = QStringLiteral("nothing, nothing, nothing");
const QString emptyAnswer = QStringLiteral("answer can not be empty or be all blank!");
const QString wrong = QStringLiteral("verify user answers failed");
const QString dialog = QStringLiteral("password: {pwdWt/password}, buttons: {operBt}, {cancelBt}");
const QString asking = QStringLiteral("password: not shown, buttons: Get Back, Cancel");
const QString shown = QStringLiteral("password: %1, buttons: Copy, not shown");
const QString audit = QStringLiteral("{auditTable}");
const QString fileName = QStringLiteral("{fileNameEdit}");
const QString resetPage = QStringLiteral("{label_2}, {userWt/userName}, {loginBt}");
const QString loggedIn = name + QStringLiteral(", Local user"); // neither by password nor by gesture
const QString byPassword = loggedIn + QStringLiteral(", by password");

QString rulesText(bool varied, bool longEnough, bool unlikeName)
{
    const auto mark = [](bool kept) { return kept ? ruleKept : ruleBroken; };
    return QStringLiteral("rules: %1 %2 %3").arg(mark(varied), mark(longEnough), mark(unlikeName));
}

// Stages

QVector<TourStep> creation()
{
    const QString pwd = QStringLiteral("inputPwdWt/pwd");
    return {
        step("start on an empty data folder", makeRoom("newUserBt"), methods, is(methodTexts)),
        step("click \"Create New Superuser\"", click("newUserBt"), page + "; " + rules,
             is("Create a new local superuser; " + rulesHidden), "create-superuser"),
        step("click \"Create\"", click("createBt"), tip, is("User name can not be empty or be all blank!")),
        step("enter a name and a short password", fill("userWt/userName", name) + fill(pwd, "abc"), rules,
             is(rulesText(false, false, true)), "password-too-short"),
        step("enter a long one of one kind of characters", fill(pwd, "abcdefghij"), rules,
             is(rulesText(false, true, true)), "password-too-simple"),
        step("enter the name", fill(pwd, name), rules, is(rulesText(true, true, false))),
        step("enter the name backwards", fill(pwd, nameReversed), rules, is(rulesText(true, true, false)),
             "password-like-name"),
        step("click \"Create\"", click("createBt"), tip + "; " + rules,
             is("Illegal password!; " + rulesText(true, true, false)), "illegal-password"),
        step("enter a good one", fill(pwd, password), rules, is(rulesText(true, true, true)), "password-good"),
        step("confirm another and press Enter", fill("confirmPwdWt/pwd", nameReversed) + press(Qt::Key_Return), tip,
             is("The two passwords are not the same!"), "passwords-differ"),
        step("confirm the good one and press Enter", fill("confirmPwdWt/pwd", password) + press(Qt::Key_Return),
             page + "; " + rules, is("Please set the security question; " + rulesHidden)),
    };
}

QVector<TourStep> securityQuestions()
{
    return {
        step("look at the questions", look, questions, is(questionTexts), "security-questions"),
        step("click \"Login\"", click("loginBt"), tip, is(emptyAnswer), "empty-answer"),
        step("click the first question", makeRoom("question_1") + click("question_1"), list,
             is("rows: 12, the first: Who was your favourite teacher?"), "question-list"),
        step("choose the second one with the keys", press(Qt::Key_Down) + press(Qt::Key_Return), questions,
             is(chosenTexts)),
        step("click the arrow at the top", click("backBt"), newUser,
             is(QStringLiteral("name: %1, password: 15 hidden characters, confirmation: 15 hidden characters")
                    .arg(name))),
        step("choose \"Automatic Logon\" and click \"Create\"", click("autoLogin") + click("createBt"), questions,
             is(chosenTexts)),
        step("answer the questions", fillAnswers(answers), given, is(answers.join(", ")), "security-answers"),
        step("choose 简体中文", click("languageBox") + press(Qt::Key_Down) + press(Qt::Key_Return),
             questions + "; " + given, is(chineseTexts + "; " + noAnswers), "security-questions-chinese"),
        step("choose English", click("languageBox") + press(Qt::Key_Up) + press(Qt::Key_Return), questions,
             is(questionTexts)),
        step("answer the questions and click \"Login\"", fillAnswers(answers) + click("loginBt"),
             session + ", {currentRole}, {autoLogin}", is(loggedIn + ", Superuser, Automatic"), "own-superuser"),
    };
}

QVector<TourStep> retrieval()
{
    const QString dialogName = QStringLiteral("{addUserDlg/userName}");
    const QString whole = questions + "; " + dialog;
    return {
        step("click \"Get back password\"", click("getbackPwdBt"), whole, is(questionTexts + "; " + asking),
             "get-back-password"),
        step("press Enter", press(Qt::Key_Return), tip, is(emptyAnswer)),
        step("enter a wrong answer and press Enter", fillAnswers(wrongAnswers) + press(Qt::Key_Return), alert,
             is(wrong), "get-back-password-refused"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + given, is("not shown; " + wrongAnswers.join(", "))),
        step("click \"Cancel\"", click("cancelBt"), page + "; " + audit,
             like("not shown; .* / create user / Harbour7 /")),
        step("click \"Get back password\" again", click("getbackPwdBt"), given, is(noAnswers)),
        step("enter the right answers and click \"Get Back\"", fillAnswers(answers) + click("operBt"),
             dialog + "; " + given, is(shown.arg(password) + "; " + answers.join(", ")), "password-got-back"),
        step("click \"Copy\" and the cross", click("operBt") + click("closeBt"), dialog + "; " + audit,
             like("password: not shown, .* / get back password / .*"), "get-back-password-audit"),
        // The password leaves the clipboard with the dialog.
        step("click \"Add user\" and paste", click("addUserBt") + press(Qt::Key_V, Qt::ControlModifier), dialogName,
             is("nothing")),
        step("press Escape", press(Qt::Key_Escape), dialogName, is("not shown")),
    };
}

QVector<TourStep> exportedCredentials()
{
    return {
        step("click \"Export login credentials\"", click("exportCredentialsBt"), fileName, is(credentialsFile)),
        step("enter where to save and press Enter", chooseFile(credentialsFile), alert,
             is("Export login credentials success, you can get back or reset password using login credentials"),
             "credentials-exported"),
        step("click \"OK\"", click("alertBox/okBt"), alert + "; " + audit,
             like("not shown; .* / export login credentials / .*")),
        step("click \"Get back password\" and \"import Credentials\"",
             click("getbackPwdBt") + click("importCredentialsBt"), fileName, is("nothing"), "select-credentials"),
        step("choose the saved file", chooseFile(credentialsFile), dialog, is(shown.arg(password))),
        step("press Escape", press(Qt::Key_Escape), dialog, is("password: not shown, buttons: not shown, not shown")),
        quit("click \"Quit\"", click("quitBt")),
    };
}

TourStep forgot(const QString &picture = QString())
{
    // The name stands there already. Typed again it would log the user in two seconds later, whatever is shown then.
    return step("click \"Forgot?\"", click("forgetPwd"), page + "; " + questions + "; " + given,
                is("Please answer questions or; " + questionTexts + "; " + noAnswers), picture);
}

/** Leaves the reset page for the main window. */
TourStep logInWith(const QString &newPassword)
{
    return step("enter another password twice and press Enter",
                fillPasswords(newPassword, newPassword) + press(Qt::Key_Return), session + "; " + rules,
                is(loggedIn + "; " + rulesHidden));
}

QVector<TourStep> resetByAnswers()
{
    return {
        step("start again", look, session, is(byPassword)),
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(name, "nothing"))),
        forgot("forgot-questions"),
        step("click \"OK\"", click("okBt"), tip, is(emptyAnswer)),
        step("enter a wrong answer and press Enter", fillAnswers(wrongAnswers) + press(Qt::Key_Return), alert,
             is(wrong), "wrong-answers"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + given, is("not shown; " + wrongAnswers.join(", "))),
        step("enter the right answers and click \"OK\"", fillAnswers(answers) + click("okBt"), resetPage,
             is("Please reset a new password, " + name + ", Login"), "reset-password"),
        step("enter the name backwards twice and press Enter",
             fillPasswords(nameReversed, nameReversed) + press(Qt::Key_Return), tip + "; " + rules,
             is("Illegal password!; " + rulesHidden), "reset-refused"),
        logInWith(passwordAfterAnswers),
        step("look at the audit log", look, audit, like(".* / reset password / Harbour7 /"), "password-reset"),
    };
}

QVector<TourStep> resetByFile()
{
    return {
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(name, "nothing"))),
        forgot(),
        step("click the arrow at the top", click("backBt"), form, is(formText(name, "nothing"))),
        forgot(),
        step("click \"import Credentials\" and choose another file",
             click("importCredentialsBt") + chooseFile(otherFile), alert, is("Login credentials file is illegal"),
             "wrong-credentials"),
        step("press Enter", press(Qt::Key_Return), alert, is("not shown")),
        step("click \"import Credentials\" and choose the saved file",
             click("importCredentialsBt") + chooseFile(credentialsFile), resetPage,
             is("Please reset a new password, " + name + ", Login")),
        logInWith(passwordAfterFile),
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(name, "nothing"))),
        step("enter the newest password and press Enter",
             fill("localPwdWt/pwd", passwordAfterFile) + press(Qt::Key_Return), session, is(byPassword)),
        quit("click \"Quit\"", click("quitBt")),
    };
}

} // namespace

QVector<TourStage> TourSuperUser::stages()
{
    const QString own = QStringLiteral("own");
    return {{own, creation() + securityQuestions() + retrieval() + exportedCredentials()},
            {own, resetByAnswers() + resetByFile()}};
}

} // namespace kelvra_client
