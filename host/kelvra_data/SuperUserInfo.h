#pragma once

#include <QString>

namespace kelvra_data {

/** The local superuser, with the three security questions that lead back in when the password is lost. */
struct SuperUserInfo
{
    QString userName;    ///< empty in a fresh record: there is no superuser
    QString password;    ///< in the clear; never written or logged by the module
    int role = 2;        ///< UserRole value; 0 for a superuser created in the module
    int id = -1;         ///< the host's key of the record, -1 for one that is not stored
    QString displayName; ///< not used by the module
    QString remark;      ///< empty in what the module hands to UserData::addSuperUser
    int question1 = 0;   ///< id in DictDef::securityQuestions
    int question2 = 0;   ///< the same; may equal question1
    int question3 = 0;   ///< the same; may equal either
    QString answer1;     ///< to question1, trimmed, in the clear
    QString answer2;     ///< to question2
    QString answer3;     ///< to question3
};

} // namespace kelvra_data
