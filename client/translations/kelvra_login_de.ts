<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation>Gestenpasswort für die Anmeldung festlegen</translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation>Zeichnen Sie die Geste zum ersten Mal</translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation>Zeichnen Sie die Geste zum zweiten Mal</translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation>Geste zu einfach: mindestens 4 Punkte</translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation>Das Gestenpasswort wurde festgelegt</translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation>Gestenanmeldung einrichten</translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation>Die beiden eingegebenen Gesten stimmen nicht überein</translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation>Das Gestenpasswort ist zu einfach. Verbinden Sie mindestens 4 Punkte</translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation>Das Gestenpasswort konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation>Das Gestenpasswort konnte nicht hinzugefügt werden</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation>Telefonnummer</translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation>Ungültige Mobilnummer</translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation>Anmeldung läuft …</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation>Superuser anlegen</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Willkommen zur Anmeldung</translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation>Neuen lokalen Superuser anlegen</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Der Benutzername darf nicht leer sein oder nur aus Leerzeichen bestehen!</translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation>Dieser Benutzername ist bereits vergeben!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>Unzulässiges Passwort!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>Die beiden Passwörter stimmen nicht überein!</translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation>Name des Superusers</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Passwort bestätigen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation>Anmeldung per Geste</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Willkommen zur Anmeldung</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation>Mit Passwort anmelden</translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Falsche Geste. Zulässige Fehlversuche: %1, bisher: %2</translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation>Fehlversuche: %1, verbleibend: %2</translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation>Das Konto %1 existiert nicht</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation>Gestenfeld</translation>
    </message>
    <message>
        <source>Gesture pad</source>
        <translation>Gestenfeld</translation>
    </message>
    <message>
        <source>Drag the mouse over the dots to connect them</source>
        <translation>Verbinden Sie die Punkte, indem Sie mit gedrückter Maustaste darüberfahren</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation>Geste prüfen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation>Fragen beantworten oder</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;Zugangsdatei laden&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation>Abrufen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation>Passwort abrufen</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>Die Antworten konnten nicht bestätigt werden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation>Die Zugangsdaten konnten nicht exportiert werden</translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation>Die Zugangsdaten wurden exportiert. Mit ihnen können Sie das Passwort abrufen oder zurücksetzen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation>Standard-Superuser</translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation>Name: admin, Passwort: 468024, geringe Sicherheit</translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation>Neuer Superuser</translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation>Eigener Name und eigenes Passwort, hohe Sicherheit</translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation>Benutzer der Nimbra App</translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation>Anmelden per Telefonnummer oder QR-Code</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>LoginMethodSelWt</source>
        <translation>Anmeldeart wählen</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Willkommen zur Anmeldung</translation>
    </message>
    <message>
        <source>Local default superuser is not available</source>
        <translation>Der lokale Standard-Superuser ist nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation>Das Konto wurde für %1 Minuten gesperrt. Sie können es in der Nimbra App über „Passwort vergessen“ entsperren</translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation>Bisherige Fehlversuche: %1. In den nächsten %2 Sek. noch möglich: %3; danach wird das Konto für %4 Minuten gesperrt</translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation>Zugangsdatei auswählen</translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation>Die Zugangsdatei ist unzulässig</translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation>Die Zugangsdatei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation>Die Zugangsdatei ist ungültig</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>NormalLoginWt</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Willkommen zur Anmeldung</translation>
    </message>
    <message>
        <source>Local User</source>
        <translation>Lokaler Benutzer</translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation>Nimbra-Benutzer</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation>Vergessen?</translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation>Neuer Benutzer</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation>Automatische Anmeldung mit dem Nimbra-Konto fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation>Das Passwort darf nicht leer sein!</translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Benutzername oder Passwort falsch. Zulässige Fehlversuche: %1, bisher: %2</translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation>Gesperrt, noch %1 s</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Der Benutzername darf nicht leer sein oder nur aus Leerzeichen bestehen!</translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation>Der Benutzer existiert nicht!</translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation>Bitte wenden Sie sich an den Administrator, um das Passwort zu erhalten</translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation>Für das aktuelle Konto ist keine Anmeldung per Gestenpasswort eingerichtet</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation>Die Antwort darf nicht leer sein oder nur aus Leerzeichen bestehen!</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation>Passwortregeln</translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation>Mindestens zwei dieser Arten: Ziffern, Kleinbuchstaben, Großbuchstaben, Sonderzeichen</translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation>Passwortlänge: 8–16 Zeichen</translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation>Das Passwort darf weder vorwärts noch rückwärts dem Benutzernamen entsprechen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation>Anmeldung per QR-Code</translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation>Code mit der Nimbra App scannen</translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation>Kein QR-Code erhalten</translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation>Der QR-Code für die Anmeldung konnte nicht abgerufen werden: %1</translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation>QR-Code ungültig</translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation>Statusabfrage fehlgeschlagen</translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation>Der Status des QR-Codes konnte nicht abgefragt werden: %1</translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation>Gescannt, Bestätigung ausstehend</translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation>Gescannt, Anmeldung abgebrochen</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Ungültige Aktion</translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation>Ungültige IP</translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation>Anmeldung per QR-Code fehlgeschlagen</translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation>Das Ergebnis der QR-Code-Anmeldung konnte nicht abgefragt werden: %1</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>Refresh QR code</source>
        <translation>QR-Code erneuern</translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation>Passwort zurücksetzen</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Willkommen zur Anmeldung</translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation>Bitte legen Sie ein neues Passwort fest</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Der Benutzername darf nicht leer sein oder nur aus Leerzeichen bestehen!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>Unzulässiges Passwort!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>Die beiden Passwörter stimmen nicht überein!</translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation>Das Passwort von [%1] konnte nicht zurückgesetzt werden</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Passwort bestätigen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation>Cloud-Anmeldung per Passwort</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation>Ungültiges Passwort</translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation>Dieses Gerät gilt derzeit nicht als sicher. Bitte melden Sie sich mit einem Bestätigungscode an</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Anmeldung mit dem Nimbra-Konto fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation>Cloud-Anmeldung per QR-Code</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation>Das angemeldete Konto konnte nicht ermittelt werden: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation>Cloud-Anmeldung per PIN</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation>PIN anfordern</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60 s</translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation>Der Bestätigungscode wurde gesendet. Bitte sehen Sie auf Ihrem Mobiltelefon nach</translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation>Kein Bestätigungscode erhalten: ungültige Mobilnummer (%1)</translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation>Kein Bestätigungscode erhalten: %1</translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation>PIN anfordern</translation>
    </message>
    <message>
        <source>%1S</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Ungültiger Bestätigungscode</translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation>Anmeldung mit dem Nimbra-Konto fehlgeschlagen: ungültiges Konto</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Anmeldung mit dem Nimbra-Konto fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation>Sicherheitsfragen</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Antwort auf Frage 1 eingeben</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Antwort auf Frage 2 eingeben</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Antwort auf Frage 3 eingeben</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation>Sicherheitsfragen festlegen</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Passwortschutz</translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation>Bitte Sicherheitsfragen festlegen</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Antwort auf Frage 1 eingeben</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Antwort auf Frage 2 eingeben</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Antwort auf Frage 3 eingeben</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation>Der Superuser konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Question %1</source>
        <translation>Frage %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation>Systemdaten werden geladen …</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserNameWt</name>
    <message>
        <source>UserNameWt</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>Benutzername</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation>Sicherheitsfragen beantworten</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Passwortschutz</translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation>Fragen beantworten oder</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;Zugangsdatei laden&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Neuer Benutzer&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>Die Antworten konnten nicht bestätigt werden</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
</TS>
