#pragma once

#include <QString>

namespace kelvra_data {

/** The local superuser, with the three security questions that lead back in when the password is lost. */
struct SuperUserInfo
{
    QString userName;
    QString password;
    int role = 2; ///< UserRole value; 0 for a superuser created in the module
    int id = -1;  ///< the host's key of the record, -1 for one that is not stored
    QString displayName;
    QString remark;    ///< the module leaves it empty but for superuser creation's first page
    int question1 = 0; ///< ids from DictDef::securityQuestions
    int question2 = 0;
    int question3 = 0;
    QString answer1;
    QString answer2;
    QString answer3;
};

} // namespace kelvra_data
