<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation>connexion réussie</translation>
    </message>
    <message>
        <source>login failure</source>
        <translation>échec de la connexion</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>verrouillage</translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation>geste ajouté</translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation>geste modifié</translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation>geste supprimé</translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation>connexion auto activée</translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation>connexion auto annulée</translation>
    </message>
    <message>
        <source>get back password</source>
        <translation>mot de passe récupéré</translation>
    </message>
    <message>
        <source>reset password</source>
        <translation>mot de passe réinitialisé</translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation>identifiants exportés</translation>
    </message>
    <message>
        <source>create user</source>
        <translation>utilisateur créé</translation>
    </message>
    <message>
        <source>add user</source>
        <translation>utilisateur ajouté</translation>
    </message>
    <message>
        <source>remove user</source>
        <translation>utilisateur supprimé</translation>
    </message>
    <message>
        <source>set password</source>
        <translation>mot de passe modifié</translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation>superutilisateur remplacé</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation>Échec de l’opération</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation>Quel était votre professeur préféré&#xa0;?</translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation>Comment s’appelle votre mère&#xa0;?</translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation>Comment s’appelle votre père&#xa0;?</translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation>Quelle est votre ville de naissance&#xa0;?</translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation>Quelle a été votre première école&#xa0;?</translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation>Votre meilleur(e) ami(e) d’enfance&#xa0;?</translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation>Nom de votre premier animal&#xa0;?</translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation>Quel est votre livre préféré&#xa0;?</translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation>Quel est votre film préféré&#xa0;?</translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation>Quel est votre plat préféré&#xa0;?</translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation>Marque de votre première voiture&#xa0;?</translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation>Quel a été votre premier emploi&#xa0;?</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation>La touche Verr. Maj est activée</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CommonDialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AddUserDlg</name>
    <message>
        <source>Add user</source>
        <translation>Ajouter un utilisateur</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation>Journal d’audit</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Entrées&#xa0;: %1</translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation>Les %1 entrées les plus récentes</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation>Rien n’a encore été enregistré.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation>par geste</translation>
    </message>
    <message>
        <source>by password</source>
        <translation>par mot de passe</translation>
    </message>
    <message>
        <source>by cloud account</source>
        <translation>par compte cloud</translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation>connexion automatique désormais</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>pendant %1 secondes</translation>
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
        <translation>Impossible d’écrire le fichier %1&#xa0;; le client continue sans lui.</translation>
    </message>
    <message>
        <source>There are no fonts, so that no text can be shown. Install a font (on Debian the package fonts-dejavu-core).</source>
        <translation>Il n’y a aucune police, si bien qu’aucun texte ne peut être affiché. Installez une police (sous Debian, le paquet fonts-dejavu-core).</translation>
    </message>
    <message>
        <source>There is no default data folder: HOME has to be the full path of an existing folder, and XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir.</source>
        <translation>Il n’y a pas de dossier de données par défaut&#xa0;: HOME doit être le chemin complet d’un dossier existant et XDG_DATA_HOME, si elle est définie, un chemin complet. Corrigez-les, ou indiquez un dossier avec --data-dir.</translation>
    </message>
    <message>
        <source>A client is already running on the data folder %1 and has come to the front. Nobody was logged in and the password was not used: log in there, or quit that client and start again.</source>
        <translation>Un client fonctionne déjà avec le dossier de données %1 et est passé au premier plan. Personne n’a été connecté et le mot de passe n’a pas été utilisé&#xa0;: connectez-vous là-bas, ou quittez ce client et recommencez.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation>Utilisateurs locaux</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Set gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation>Effacer le geste</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation>Les utilisateurs locaux sont gérés par le superutilisateur de ce client.</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation>Les utilisateurs locaux sont gérés par le superutilisateur. Demandez à %1 d’ajouter ou de supprimer un utilisateur, ou de vous attribuer un nouveau mot de passe.</translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation>Il n’y a pas encore d’autres utilisateurs locaux. Ajoutez-en un&#xa0;: il pourra se connecter avec son propre nom et son mot de passe.</translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation>Supprimer le mot de passe gestuel de %1&#xa0;?</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>Le mot de passe gestuel n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation>Supprimer l’utilisateur %1&#xa0;? Son mot de passe et son geste seront également supprimés.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation>Client Kelvra</translation>
    </message>
    <message>
        <source>Simulated phone</source>
        <translation>Téléphone simulé</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>Utilisateur actuel</translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation>Mode de connexion</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Connecté depuis</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation>Changer d’utilisateur</translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation>Récupérer le mot de passe</translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation>Exporter les identifiants</translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation>Superutilisateur</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation>Cet utilisateur a été supprimé</translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation>Compte cloud</translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation>Utilisateur local, par mot de passe</translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation>Utilisateur local, par geste</translation>
    </message>
    <message>
        <source>Local user</source>
        <translation>Utilisateur local</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Les deux mots de passe ne sont pas identiques.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneHandle</name>
    <message>
        <source>Open the simulated phone: something has arrived</source>
        <translation>Ouvrir le téléphone simulé&#xa0;: quelque chose est arrivé</translation>
    </message>
    <message>
        <source>Open the simulated phone</source>
        <translation>Ouvrir le téléphone simulé</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation>Téléphone Nimbra (simulé)</translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation>Téléphone Nimbra</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulé</translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation>Fermer le téléphone</translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation>Compte sur ce téléphone</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>MDP</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation>Éditer les comptes</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation>Aucun message. Choisissez «&#xa0;PIN&#xa0;» dans la fenêtre de connexion, saisissez le numéro ci-dessus et cliquez sur «&#xa0;Obtenir le PIN&#xa0;».</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>Code QR</translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation>Faire refuser ce code par le cloud</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Action interdite</translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation>IP interdite</translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation>Réseau de l’ordinateur&#xa0;: activé</translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation>Réseau de l’ordinateur&#xa0;: désactivé</translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation>S’il est désactivé, toute demande du client au cloud échoue au bout de quelques secondes.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation>Scanner comme %1</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scanner</translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation>SMS au %1</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation>Aucun code affiché. Choisissez «&#xa0;QR&#xa0;» dans la fenêtre de connexion.</translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation>La fenêtre de connexion affiche un code.</translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation>Se connecter à l’ordinateur en tant que %1&#xa0;? L’ordinateur attend votre réponse.</translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation>Confirmé. L’ordinateur se connecte en tant que %1.</translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation>Annulé. Cliquez sur les flèches de la fenêtre de connexion pour obtenir un nouveau code.</translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation>Refusé par le cloud. Cliquez sur les flèches de la fenêtre de connexion pour obtenir un nouveau code.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>expiré</translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation>Verrouillé&#xa0;: %1</translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation>Aucun éditeur ne s’ouvre&#xa0;; modifiez %1.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation>Modifier le mot de passe</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation>Mot de passe gestuel</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Définir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>set</source>
        <translation>défini</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non défini</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation>Aucun mot de passe gestuel n’est défini.</translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation>Seuls les utilisateurs locaux ont un mot de passe gestuel&#xa0;; ceci est un compte cloud.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manuelle</translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation>Cochez «&#xa0;Connexion auto&#xa0;» la prochaine fois que vous vous connecterez avec ce compte.</translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation>Supprimer votre mot de passe gestuel&#xa0;? Vous ne pourrez ensuite vous connecter qu’avec votre mot de passe.</translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation>Le mot de passe gestuel a été supprimé.</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>Le mot de passe gestuel n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation>Le mot de passe gestuel a été vérifié.</translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation>Le mot de passe gestuel n’a pas été vérifié.</translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation>La connexion automatique n’a pas pu être modifiée.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>A client of the account %2 is running on the data folder %1. Have it quit there, or name another folder with --data-dir.</source>
        <translation>Un client du compte %2 fonctionne avec le dossier de données %1. Faites-le quitter là-bas, ou indiquez un autre dossier avec --data-dir.</translation>
    </message>
    <message>
        <source>A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder with --data-dir.</source>
        <translation>Un client de l’ordinateur %2 fonctionne avec le dossier de données %1. Quittez-le là-bas, ou indiquez un autre dossier avec --data-dir.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but cannot be brought to the front, because another program has taken its name %3. Switch to the client&apos;s window, and end that program.</source>
        <translation>Le client fonctionne déjà avec le dossier de données %1 (processus %2), mais il ne peut pas être amené au premier plan, car un autre programme a pris son nom %3. Passez à la fenêtre du client et arrêtez ce programme.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its window; where it is frozen, end that process and start the client again.</source>
        <translation>Le client fonctionne déjà avec le dossier de données %1 (processus %2), mais il ne répond pas. Passez à sa fenêtre&#xa0;; si elle est figée, arrêtez ce processus et redémarrez le client.</translation>
    </message>
    <message>
        <source>A second start cannot bring this client to the front, because another program has taken its name %1. End that program and start the client again.</source>
        <translation>Un second démarrage ne peut pas amener ce client au premier plan, car un autre programme a pris son nom %1. Arrêtez ce programme et redémarrez le client.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>on</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>off</source>
        <translation>non</translation>
    </message>
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation>défini</translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation>non défini</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Last login</source>
        <translation>Dernier accès</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Automatique</translation>
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
        <translation>Impossible de créer le dossier de données %1. Indiquez avec --data-dir un dossier dans lequel vous pouvez écrire.</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder. Name another one with --data-dir.</source>
        <translation>Le dossier de données %1 n’est pas un dossier. Indiquez-en un autre avec --data-dir.</translation>
    </message>
    <message>
        <source>The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start the client as %2.</source>
        <translation>Le dossier de données %1 appartient au compte %2. Indiquez avec --data-dir un dossier à vous, ou démarrez le client en tant que %2.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read. Give your account its rights back, or name another folder with --data-dir.</source>
        <translation>Impossible de lire le dossier de données %1. Rendez ses droits à votre compte, ou indiquez un autre dossier avec --data-dir.</translation>
    </message>
    <message>
        <source>Other accounts can write to the data folder %1, so the client does not trust what is in it. Make sure that its files are yours and close it (%2), or name another folder with --data-dir.</source>
        <translation>D’autres comptes peuvent écrire dans le dossier de données %1&#xa0;; le client ne se fie donc pas à son contenu. Assurez-vous que les fichiers sont les vôtres et fermez-le (%2), ou indiquez un autre dossier avec --data-dir.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or name another folder with --data-dir.</source>
        <translation>Impossible d’écrire dans le dossier de données %1. Rendez ses droits à votre compte, libérez de la place sur le disque, ou indiquez un autre dossier avec --data-dir.</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation>Impossible d’ouvrir la base de données %1.</translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation>Impossible de lire la base de données %1&#xa0;; un autre programme l’utilise peut-être.</translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation>La base de données %1 est endommagée.</translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation>La base de données %1 appartient à un autre programme.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation>La base de données %1 a été écrite par une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation>Le fichier de clé %1 est introuvable&#xa0;; sans lui, la base de données ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation>Impossible d’écrire le fichier de clé %1.</translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation>Le fichier de clé %1 est endommagé&#xa0;: il ne compte pas %2 octets.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation>Impossible de lire le fichier de clé %1.</translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation>Le fichier de clé ne correspond pas à la base de données du même dossier.</translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation>Impossible d’écrire dans la base de données.</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the package libqt5sql5-sqlite).</source>
        <translation>Le pilote SQLite de Qt est introuvable. Réinstallez le client, ou ce pilote seul (sous Debian, le paquet libqt5sql5-sqlite).</translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation>Veuillez saisir un nom d’utilisateur.</translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation>Le nom d’utilisateur ne doit contenir ni espaces ni caractères de contrôle.</translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation>Le nom d’utilisateur ne doit pas dépasser %1 caractères.</translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation>Ce nom d’utilisateur est déjà utilisé.</translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation>Veuillez saisir un mot de passe.</translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation>Le mot de passe ne doit contenir ni espaces ni caractères de contrôle.</translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation>Le mot de passe ne doit pas dépasser %1 caractères.</translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation>Cet utilisateur n’existe plus.</translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation>La modification n’a pas pu être enregistrée.</translation>
    </message>
</context>
<context>
    <name>kelvra_files::OrdinaryFile</name>
    <message>
        <source>The file %1 cannot be read; check its permissions.</source>
        <translation>Impossible de lire le fichier %1&#xa0;; vérifiez ses droits d’accès.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes; correct it or delete it.</source>
        <translation>Le fichier %1 dépasse %2 octets&#xa0;; corrigez-le ou supprimez-le.</translation>
    </message>
    <message>
        <source>%1 is not a file but a folder, a pipe or a device; move it away.</source>
        <translation>%1 n’est pas un fichier, mais un dossier, un tube ou un périphérique&#xa0;; déplacez-le ailleurs.</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation>Le compte est verrouillé&#xa0;; minutes avant le déverrouillage&#xa0;: %1</translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation>Le numéro de mobile n’est pas valide</translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation>Le service cloud ne répond pas&#xa0;; vérifiez la connexion réseau</translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation>Le cloud simulé ne peut pas utiliser son fichier cloud_accounts.ini&#xa0;; corrigez ou supprimez le fichier</translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation>Aucun compte ne correspond à ce numéro de mobile</translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation>Le code de vérification est incorrect&#xa0;; essais restants&#xa0;: %1</translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation>Le code de vérification n’est plus valide&#xa0;; demandez-en un nouveau</translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation>La connexion n’a pas été confirmée sur le téléphone</translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation>Le code QR n’est plus valide</translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation>Aucun compte ne s’est connecté par code QR</translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation>Aucune connexion automatique n’est enregistrée pour ce compte</translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation>La connexion enregistrée n’est plus valide&#xa0;; connectez-vous à nouveau</translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation>Cet ordinateur est nouveau pour le compte&#xa0;; connectez-vous par code de vérification ou par code QR</translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation>Le mot de passe est incorrect&#xa0;; essais restants&#xa0;: %1</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>Le service cloud a refusé la demande (code %1, %2)</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation>Le fichier %1 contient autre chose que du texte&#xa0;; corrigez-le ou supprimez-le.</translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation>La ligne %1 du fichier %2 est incorrecte&#xa0;: %3. Corrigez-la ou supprimez le fichier.</translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation>Le compte %1 du fichier %2 n’a pas de mot de passe. Corrigez-le ou supprimez le fichier.</translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation>Le fichier %1 ne contient aucun compte&#xa0;; corrigez-le ou supprimez-le.</translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation>un numéro de téléphone compte onze chiffres, dont le premier est 1</translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation>ce numéro de téléphone figure deux fois</translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation>seuls [numéro de téléphone], name=, password= et les commentaires sont reconnus</translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation>un numéro de téléphone entre crochets doit figurer en premier</translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation>un mot de passe compte au moins %1 caractères, sans espace</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 figure deux fois</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation>[Nimbra] %1 est votre code de vérification. Il est valable %2 minutes&#xa0;; ne le communiquez à personne.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation>Impossible d’écrire le journal d’audit&#xa0;; les événements ne sont pas enregistrés.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation>Le fichier %1 est endommagé&#xa0;; corrigez-le ou supprimez-le.</translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation>La valeur de %1 dans le fichier %2 est incorrecte&#xa0;; corrigez-la ou supprimez-la.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation>Impossible d’enregistrer les paramètres dans %1&#xa0;; les modifications ne durent que jusqu’à la fermeture du client.</translation>
    </message>
</context>
</TS>
