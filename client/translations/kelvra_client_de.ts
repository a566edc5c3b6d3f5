<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation>Anmeldung erfolgreich</translation>
    </message>
    <message>
        <source>login failure</source>
        <translation>Anmeldung gescheitert</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>Sperre</translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation>Geste hinzugefügt</translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation>Geste geändert</translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation>Geste gelöscht</translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation>Auto-Anmeldung ein</translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation>Auto-Anmeldung aus</translation>
    </message>
    <message>
        <source>get back password</source>
        <translation>Passwort abgerufen</translation>
    </message>
    <message>
        <source>reset password</source>
        <translation>Passwort zurückgesetzt</translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation>Zugangsdaten exportiert</translation>
    </message>
    <message>
        <source>create user</source>
        <translation>Benutzer angelegt</translation>
    </message>
    <message>
        <source>add user</source>
        <translation>Benutzer hinzugefügt</translation>
    </message>
    <message>
        <source>remove user</source>
        <translation>Benutzer entfernt</translation>
    </message>
    <message>
        <source>set password</source>
        <translation>Passwort geändert</translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation>Superuser ersetzt</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation>Vorgang fehlgeschlagen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation>Wer war Ihre liebste Lehrkraft?</translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation>Wie heißt Ihre Mutter?</translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation>Wie heißt Ihr Vater?</translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation>In welchem Ort sind Sie geboren?</translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation>Welche war Ihre erste Schule?</translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation>Wer war Ihr bester Kindheitsfreund?</translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation>Wie hieß Ihr erstes Haustier?</translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation>Was ist Ihr Lieblingsbuch?</translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation>Was ist Ihr Lieblingsfilm?</translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation>Was ist Ihr Lieblingsgericht?</translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation>Welche Marke hatte Ihr erstes Auto?</translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation>Was war Ihre erste Arbeitsstelle?</translation>
    </message>
</context>
<context>
    <name>kelvra_base::AlertBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation>Die Feststelltaste ist aktiviert</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CommonDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AddUserDlg</name>
    <message>
        <source>Add user</source>
        <translation>Benutzer hinzufügen</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation>Audit-Protokoll</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Einträge: %1</translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation>Die neuesten %1 Einträge</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation>Es wurde noch nichts aufgezeichnet.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation>per Geste</translation>
    </message>
    <message>
        <source>by password</source>
        <translation>per Passwort</translation>
    </message>
    <message>
        <source>by cloud account</source>
        <translation>per Cloud-Konto</translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation>künftig automatische Anmeldung</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>für %1 Sekunden</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between details</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>kelvra_client::ClientShell</name>
    <message>
        <source>The file %1 cannot be written; the client goes on without it.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden; der Client arbeitet ohne sie weiter.</translation>
    </message>
    <message>
        <source>There are no fonts, so that no text can be shown. Install a font (on Debian the package fonts-dejavu-core).</source>
        <translation>Es gibt keine Schriftarten, sodass kein Text angezeigt werden kann. Installieren Sie eine Schriftart (unter Debian das Paket fonts-dejavu-core).</translation>
    </message>
    <message>
        <source>There is no default data folder: HOME has to be the full path of an existing folder, and XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir.</source>
        <translation>Es gibt keinen voreingestellten Datenordner: HOME muss der vollständige Pfad eines vorhandenen Ordners sein und XDG_DATA_HOME, falls gesetzt, ein vollständiger Pfad. Berichtigen Sie das, oder nennen Sie mit --data-dir einen Ordner.</translation>
    </message>
    <message>
        <source>A client is already running on the data folder %1 and has come to the front. Nobody was logged in and the password was not used: log in there, or quit that client and start again.</source>
        <translation>Ein Client läuft bereits mit dem Datenordner %1 und ist in den Vordergrund gekommen. Niemand wurde angemeldet, und das Passwort wurde nicht verwendet: Melden Sie sich dort an, oder beenden Sie jenen Client und starten Sie erneut.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation>Lokale Benutzer</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Set gesture</source>
        <translation>Geste setzen</translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation>Geste löschen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation>Geste ändern</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation>Lokale Benutzer werden vom Superuser dieses Clients verwaltet.</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation>Lokale Benutzer werden vom Superuser verwaltet. Wenden Sie sich an %1, um Benutzer hinzufügen oder entfernen zu lassen oder ein neues Passwort zu erhalten.</translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation>Es gibt noch keine weiteren lokalen Benutzer. Wen Sie hinzufügen, der kann sich mit eigenem Namen und Passwort anmelden.</translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation>Das Gestenpasswort von %1 löschen?</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>Das Gestenpasswort konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation>Benutzer %1 entfernen? Passwort und Geste werden ebenfalls gelöscht.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation>Kelvra-Client</translation>
    </message>
    <message>
        <source>Simulated phone</source>
        <translation>Simuliertes Telefon</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>Aktueller Benutzer</translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation>Anmeldeart</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Angemeldet seit</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation>Benutzer wechseln</translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation>Passwort abrufen</translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation>Zugangsdaten exportieren</translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation>Superuser</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation>Dieser Benutzer wurde entfernt</translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation>Cloud-Konto</translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation>Lokaler Benutzer, per Passwort</translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation>Lokaler Benutzer, per Geste</translation>
    </message>
    <message>
        <source>Local user</source>
        <translation>Lokaler Benutzer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Passwort bestätigen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Die beiden Passwörter stimmen nicht überein.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneHandle</name>
    <message>
        <source>Open the simulated phone: something has arrived</source>
        <translation>Simuliertes Telefon öffnen: Es ist etwas eingetroffen</translation>
    </message>
    <message>
        <source>Open the simulated phone</source>
        <translation>Simuliertes Telefon öffnen</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation>Nimbra-Telefon (simuliert)</translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation>Nimbra-Telefon</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simuliert</translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation>Telefon schließen</translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation>Konto auf diesem Telefon</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation>Konten bearbeiten</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation>Keine Nachricht. Wählen Sie im Anmeldefenster „PIN“, geben Sie die obige Nummer ein und klicken Sie auf „PIN anfordern“.</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation>Diesen Code von der Cloud ablehnen lassen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Ungültige Aktion</translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation>Ungültige IP</translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation>Netzwerk des Computers: ein</translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation>Netzwerk des Computers: aus</translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation>Wenn aus, scheitert jede Anfrage des Clients an die Cloud nach einigen Sekunden.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation>Als %1 scannen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation>SMS an %1</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation>Kein Code zu sehen. Wählen Sie im Anmeldefenster „QR-Code“.</translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation>Das Anmeldefenster zeigt einen Code.</translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation>Am Computer als %1 anmelden? Der Computer wartet auf Ihre Antwort.</translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation>Bestätigt. Der Computer meldet sich als %1 an.</translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation>Abgebrochen. Klicken Sie im Anmeldefenster auf die Pfeile, um einen neuen Code zu erhalten.</translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation>Von der Cloud abgelehnt. Klicken Sie im Anmeldefenster auf die Pfeile, um einen neuen Code zu erhalten.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>abgelaufen</translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation>Gesperrt, noch %1</translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation>Es öffnet sich kein Editor; bearbeiten Sie %1.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation>Passwort ändern</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation>Gestenpasswort</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Auto-Anmeldung</translation>
    </message>
    <message>
        <source>set</source>
        <translation>festgelegt</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht festgelegt</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation>Es ist kein Gestenpasswort festgelegt.</translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation>Nur lokale Benutzer haben ein Gestenpasswort; dies ist ein Cloud-Konto.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation>Wählen Sie „Auto-Anmeldung“, wenn Sie sich das nächste Mal mit diesem Konto anmelden.</translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation>Ihr Gestenpasswort löschen? Danach melden Sie sich nur noch mit Ihrem Passwort an.</translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation>Das Gestenpasswort wurde gelöscht.</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>Das Gestenpasswort konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation>Das Gestenpasswort wurde bestätigt.</translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation>Das Gestenpasswort wurde nicht bestätigt.</translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation>Die automatische Anmeldung konnte nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>A client of the account %2 is running on the data folder %1. Have it quit there, or name another folder with --data-dir.</source>
        <translation>Ein Client des Kontos %2 läuft mit dem Datenordner %1. Lassen Sie ihn dort beenden, oder nennen Sie mit --data-dir einen anderen Ordner.</translation>
    </message>
    <message>
        <source>A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder with --data-dir.</source>
        <translation>Ein Client auf dem Computer %2 läuft mit dem Datenordner %1. Beenden Sie ihn dort, oder nennen Sie mit --data-dir einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but cannot be brought to the front, because another program has taken its name %3. Switch to the client&apos;s window, and end that program.</source>
        <translation>Der Client läuft bereits mit dem Datenordner %1 (Prozess %2), kann aber nicht in den Vordergrund geholt werden, weil ein anderes Programm seinen Namen %3 belegt. Wechseln Sie zum Fenster des Clients, und beenden Sie das andere Programm.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its window; where it is frozen, end that process and start the client again.</source>
        <translation>Der Client läuft bereits mit dem Datenordner %1 (Prozess %2), antwortet aber nicht. Wechseln Sie zu seinem Fenster; reagiert es nicht, beenden Sie diesen Prozess und starten Sie den Client erneut.</translation>
    </message>
    <message>
        <source>A second start cannot bring this client to the front, because another program has taken its name %1. End that program and start the client again.</source>
        <translation>Ein zweiter Start kann diesen Client nicht in den Vordergrund holen, weil ein anderes Programm seinen Namen %1 belegt. Beenden Sie dieses Programm und starten Sie den Client erneut.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>off</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation>festgelegt</translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation>nicht festgelegt</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Last login</source>
        <translation>Letzter Zugriff</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Geste</translation>
    </message>
</context>
<context>
    <name>kelvra_data::OwnerFolder</name>
    <message>
        <source>The data folder %1 cannot be created. Name a folder that you may write to with --data-dir.</source>
        <translation>Der Datenordner %1 kann nicht angelegt werden. Nennen Sie mit --data-dir einen Ordner, in den Sie schreiben dürfen.</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder. Name another one with --data-dir.</source>
        <translation>Der Datenordner %1 ist kein Ordner. Nennen Sie mit --data-dir einen anderen.</translation>
    </message>
    <message>
        <source>The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start the client as %2.</source>
        <translation>Der Datenordner %1 gehört dem Konto %2. Nennen Sie mit --data-dir einen eigenen Ordner, oder starten Sie den Client als %2.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read. Give your account its rights back, or name another folder with --data-dir.</source>
        <translation>Der Datenordner %1 kann nicht gelesen werden. Geben Sie Ihrem Konto die Rechte zurück, oder nennen Sie mit --data-dir einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Other accounts can write to the data folder %1, so the client does not trust what is in it. Make sure that its files are yours and close it (%2), or name another folder with --data-dir.</source>
        <translation>Andere Konten können in den Datenordner %1 schreiben; der Client vertraut deshalb seinem Inhalt nicht. Vergewissern Sie sich, dass die Dateien von Ihnen sind, und schließen Sie ihn (%2), oder nennen Sie mit --data-dir einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or name another folder with --data-dir.</source>
        <translation>In den Datenordner %1 kann nicht geschrieben werden. Geben Sie Ihrem Konto die Rechte zurück, schaffen Sie Platz auf dem Datenträger, oder nennen Sie mit --data-dir einen anderen Ordner.</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation>Die Datenbank %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation>Die Datenbank %1 kann nicht gelesen werden; möglicherweise verwendet sie ein anderes Programm.</translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation>Die Datenbank %1 ist beschädigt.</translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation>Die Datenbank %1 gehört zu einem anderen Programm.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation>Die Datenbank %1 wurde von einer neueren Version dieses Programms geschrieben.</translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation>Die Schlüsseldatei %1 fehlt; ohne sie kann die Datenbank nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation>Die Schlüsseldatei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation>Die Schlüsseldatei %1 ist beschädigt: Sie ist nicht %2 Byte groß.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation>Die Schlüsseldatei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation>Die Schlüsseldatei gehört nicht zur Datenbank im selben Ordner.</translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation>In die Datenbank kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the package libqt5sql5-sqlite).</source>
        <translation>Der SQLite-Treiber von Qt fehlt. Installieren Sie den Client neu oder nur diesen Treiber (unter Debian das Paket libqt5sql5-sqlite).</translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation>Bitte geben Sie einen Benutzernamen ein.</translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation>Der Benutzername darf keine Leer- oder Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation>Der Benutzername darf nicht länger als %1 Zeichen sein.</translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation>Dieser Benutzername ist bereits vergeben.</translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation>Bitte geben Sie ein Passwort ein.</translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation>Das Passwort darf keine Leer- oder Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation>Das Passwort darf nicht länger als %1 Zeichen sein.</translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation>Diesen Benutzer gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation>Die Änderung konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>kelvra_files::OrdinaryFile</name>
    <message>
        <source>The file %1 cannot be read; check its permissions.</source>
        <translation>Die Datei %1 kann nicht gelesen werden; prüfen Sie ihre Zugriffsrechte.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes; correct it or delete it.</source>
        <translation>Die Datei %1 hat mehr als %2 Bytes; korrigieren oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>%1 is not a file but a folder, a pipe or a device; move it away.</source>
        <translation>%1 ist keine Datei, sondern ein Ordner, eine Pipe oder ein Gerät; verschieben Sie das Objekt an einen anderen Ort.</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation>Das Konto ist gesperrt; Minuten bis zur Entsperrung: %1</translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation>Die Mobilnummer ist ungültig</translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation>Der Cloud-Dienst antwortet nicht; prüfen Sie die Netzwerkverbindung</translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation>Die simulierte Cloud kann ihre Datei cloud_accounts.ini nicht verwenden; korrigieren oder löschen Sie die Datei</translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation>Es gibt kein Konto mit dieser Mobilnummer</translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation>Der Bestätigungscode ist falsch; verbleibende Versuche: %1</translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation>Der Bestätigungscode ist nicht mehr gültig; fordern Sie einen neuen an</translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation>Die Anmeldung wurde am Telefon nicht bestätigt</translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation>Der QR-Code ist nicht mehr gültig</translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation>Es hat sich kein Konto per QR-Code angemeldet</translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation>Für dieses Konto ist keine automatische Anmeldung gespeichert</translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation>Die gespeicherte Anmeldung ist nicht mehr gültig; melden Sie sich erneut an</translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation>Dieser Computer ist für das Konto neu; melden Sie sich per Bestätigungscode oder QR-Code an</translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation>Das Passwort ist falsch; verbleibende Versuche: %1</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>Der Cloud-Dienst hat die Anfrage abgelehnt (Code %1, %2)</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation>Die Datei %1 enthält etwas anderes als Text; korrigieren oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation>Zeile %1 der Datei %2 ist fehlerhaft: %3. Korrigieren Sie sie oder löschen Sie die Datei.</translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation>Das Konto %1 in der Datei %2 hat kein Passwort. Korrigieren Sie es oder löschen Sie die Datei.</translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation>Die Datei %1 enthält kein Konto; korrigieren oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation>eine Telefonnummer hat elf Ziffern, die erste davon ist 1</translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation>diese Telefonnummer kommt doppelt vor</translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation>bekannt sind nur [Telefonnummer], name=, password= und Kommentare</translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation>zuerst muss eine Telefonnummer in eckigen Klammern stehen</translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation>ein Passwort hat mindestens %1 Zeichen und keine Leerzeichen</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 kommt doppelt vor</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation>[Nimbra] %1 ist Ihr Bestätigungscode. Er gilt %2 Minuten; geben Sie ihn nicht weiter.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation>Das Audit-Protokoll kann nicht geschrieben werden; Ereignisse werden nicht aufgezeichnet.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation>Die Datei %1 ist beschädigt; korrigieren oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation>Der Wert von %1 in der Datei %2 ist fehlerhaft; korrigieren oder löschen Sie ihn.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation>Einstellungen können nicht in %1 gespeichert werden; Änderungen gelten bis zum Ende des Clients.</translation>
    </message>
</context>
</TS>
