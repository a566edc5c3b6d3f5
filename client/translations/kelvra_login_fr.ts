<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>LoginMethodSelWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local default superuser is not available</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>NormalLoginWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserNameWt</name>
    <message>
        <source>UserNameWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
