#pragma once

#include "host/kelvra_data/SuperUserInfo.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_worker/CustomizeInfo.h"
#include "host/kelvra_worker/UserType.h"

#include <QDateTime>
#include <QMap>
#include <QPair>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>

/**
 * The host as the tests want it: it records every call of the module in order and answers what it has been told.
 * Calls of the data, worker and cloud library are recorded as "operation(argument,argument)".
 */
struct FakeHost
{
    struct User
    {
        QString password, gesture;
        int attribute = 0;
        bool superUser = false, hasRecord = false, autoLogin = false;
        QDateTime lastLogin;
    };

    struct AutoLoginCall
    {
        QString requestId, account;
        kelvra_saas::LoginWorker::AccountCallback answer;
    };

    template <typename Callback>
    struct QRCodeCall
    {
        QString requestId;
        Callback answer;
    };

    /** A call of a cloud page. Its answer tells of account 13912345678, with 3 errors in 600 s and 2 attempts left. */
    struct CloudCall
    {
        QString requestId;
        kelvra_saas::LoginWorker::ResponseCallback callback;

        void answer(int code) const { callback({requestId, code, 8, {}}); }
    };

    /** The one fake host of the program. */
    static FakeHost &get();
    /** Their ids are 0, 10 and so on, so that no index passes for one. */
    static QMap<int, QString> twelveQuestions();

    /** Back to the defaults below, with nothing recorded. */
    void reset() { *this = FakeHost(); }

    void record(const QString &operation, const QStringList &arguments);
    /** The recorded calls whose operation is one of `operations`, in order. */
    QStringList callsOf(const QStringList &operations) const;
    /** A user with a login record of `daysAgo` days ago. */
    User &rememberUser(const QString &name, const QString &password, int daysAgo = 1);

    QStringList calls;

    // Data library
    bool firstLogin = false, sameEnvironment = true, answersRight = false, credentialsValid = false;
    QMap<QString, User> users;
    QString lastLocalUser;
    bool lockKnown = true; // getLockInfo answers true
    bool locked = false;
    int lockSeconds = 0;
    bool updatesSucceed = true;        // updateLockInfo stores and answers true
    bool gestureUpdatesSucceed = true; // updateUserGesture stores, it and deleteUserGesture answer true
    bool addSuperUserSucceeds = true, resetUserPwdSucceeds = true;
    QString credentials; // what generateSuperUserCredentials answers
    kelvra_data::SuperUserInfo superUser, addedSuperUser;

    // Worker library
    bool loginSuccess = false;
    kelvra_worker::UserType lastUserType = kelvra_worker::LocalUser;
    QString currentUser;
    QMap<QString, QVariant> settings;
    kelvra_worker::CustomizeInfo customization;
    int language = 0;
    QMap<int, QString> securityQuestions = twelveQuestions(); // each retranslation marks the texts with a stroke
    QVector<QPair<QString, QString>> alerts;                  // title, text

    // Cloud library
    QString recentAccount;
    QVector<AutoLoginCall> autoLogins;
    QVector<CloudCall> cloudCalls;
    int resendSeconds = 0; // until another code may be asked for
    QVector<QRCodeCall<kelvra_saas::LoginWorker::QRCodeCallback>> qrCodeRequests;
    QVector<QRCodeCall<kelvra_saas::LoginWorker::QRCodeStatusCallback>> qrCodeStatusQueries;
    QVector<QRCodeCall<kelvra_saas::LoginWorker::ResponseCallback>> qrCodeResultQueries;

    // What would block
    QString chosenFile;
    std::function<void()> whileAlertIsOpen, whileFileDialogIsOpen, whileMessageBoxIsOpen;
    std::function<void()> whileCloudIsAsked; // for an answer from within the call
};
