<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>login failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>get back password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reset password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>create user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_base::AlertBox</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::AddUserDlg</name>
    <message>
        <source>Add user</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by cloud account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <comment>between details</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::ClientShell</name>
    <message>
        <source>The file %1 cannot be written; the client goes on without it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local user</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>simulated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QR code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>The data folder %1 cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1, but it does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data folder %1 cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The data folder %1 cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
