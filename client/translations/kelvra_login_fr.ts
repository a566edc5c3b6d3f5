<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation>Définissez votre mot de passe gestuel</translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation>Tracez le geste une première fois</translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation>Tracez le geste une seconde fois</translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation>Geste trop simple&#xa0;: 4 points au minimum</translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation>Le mot de passe gestuel est défini</translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation>Ajouter la connexion par geste</translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation>Les deux gestes saisis ne sont pas identiques</translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation>Le mot de passe gestuel est trop simple. Vous devez relier au moins 4 points</translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation>Échec de la modification du mot de passe gestuel</translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation>Échec de l’ajout du mot de passe gestuel</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation>Numéro de téléphone</translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation>Numéro de mobile non valide</translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation>Connexion en cours…</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation>Créer un superutilisateur</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation>Créez un superutilisateur local</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Le nom d’utilisateur ne peut pas être vide ni composé uniquement d’espaces&#xa0;!</translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation>Ce nom d’utilisateur existe déjà&#xa0;!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>Mot de passe non autorisé&#xa0;!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>Les deux mots de passe ne sont pas identiques&#xa0;!</translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation>Nom du superutilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmer le mot de passe</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation>Connexion par geste</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation>Utiliser le mot de passe</translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Geste incorrect. Échecs autorisés&#xa0;: %1, échecs à ce jour&#xa0;: %2</translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation>Échecs&#xa0;: %1, essais restants&#xa0;: %2</translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation>Le compte %1 n’existe pas</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation>Zone de geste</translation>
    </message>
    <message>
        <source>Gesture pad</source>
        <translation>Pavé gestuel</translation>
    </message>
    <message>
        <source>Drag the mouse over the dots to connect them</source>
        <translation>Faites glisser la souris sur les points pour les relier</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation>Vérification du geste</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation>Répondez ou</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;importez les identifiants&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation>Récupérer le mot de passe</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>Les réponses n’ont pas pu être vérifiées</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation>Échec de l’exportation des identifiants</translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation>Les identifiants ont été exportés. Ils vous permettent de récupérer ou de réinitialiser le mot de passe</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation>Superutilisateur par défaut</translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation>Nom&#xa0;: admin, mot de passe&#xa0;: 468024, sécurité faible</translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation>Nouveau superutilisateur</translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation>Nom et mot de passe personnels, sécurité élevée</translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation>Utilisateur Nimbra App</translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation>Connexion par numéro de téléphone ou code QR</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>LoginMethodSelWt</source>
        <translation>Choix du mode de connexion</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Local default superuser is not available</source>
        <translation>Le superutilisateur local par défaut n’est pas disponible</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation>Le compte est verrouillé pendant %1 minutes. Vous pouvez le déverrouiller dans Nimbra App avec la fonction «&#xa0;Mot de passe oublié&#xa0;»</translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation>Erreurs à ce jour&#xa0;: %1. Essais restants dans les %2 s à venir&#xa0;: %3&#xa0;; ensuite, le compte sera verrouillé pendant %4 minutes</translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation>Sélectionner le fichier d’identifiants</translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation>Le fichier d’identifiants n’est pas conforme</translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation>Échec de l’ouverture du fichier d’identifiants</translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation>Le fichier d’identifiants n’est pas valide</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>NormalLoginWt</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Local User</source>
        <translation>Utilisateur local</translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation>Utilisateur Nimbra</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation>Oublié&#xa0;?</translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation>Nouvel utilisateur</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation>Échec de la connexion automatique au compte Nimbra&#xa0;: %1</translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation>Le mot de passe ne peut pas être vide&#xa0;!</translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Nom d’utilisateur ou mot de passe incorrect. Échecs autorisés&#xa0;: %1, échecs à ce jour&#xa0;: %2</translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation>Verrouillé, attendez %1 s</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Le nom d’utilisateur ne peut pas être vide ni composé uniquement d’espaces&#xa0;!</translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation>L’utilisateur n’existe pas&#xa0;!</translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation>Veuillez contacter l’administrateur pour obtenir le mot de passe</translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation>La connexion par mot de passe gestuel n’est pas configurée pour le compte actuel</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation>La réponse ne peut pas être vide ni composée uniquement d’espaces&#xa0;!</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation>Règles du mot de passe</translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation>Combinez au moins deux types&#xa0;: chiffres, minuscules, majuscules et caractères spéciaux</translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation>Longueur du mot de passe&#xa0;: 8 à 16</translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation>Le mot de passe ne peut être ni le nom d’utilisateur ni celui-ci à l’envers</translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation>Connexion par code QR</translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation>Scannez le code avec Nimbra App</translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation>Échec d’obtention du code QR</translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation>Échec de l’obtention du code QR de connexion&#xa0;: %1</translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation>Code QR non valide</translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation>Échec de la vérification de l’état</translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation>Échec de la vérification de l’état du code QR&#xa0;: %1</translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation>Scanné, en attente de confirmation</translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation>Scanné, connexion annulée</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Action interdite</translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation>IP interdite</translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation>Échec de la connexion par code QR</translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation>Échec de la vérification du résultat de la connexion par code QR&#xa0;: %1</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>Code QR</translation>
    </message>
    <message>
        <source>Refresh QR code</source>
        <translation>Actualiser le code QR</translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation>Réinitialiser le mot de passe</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation>Définissez un nouveau mot de passe</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Le nom d’utilisateur ne peut pas être vide ni composé uniquement d’espaces&#xa0;!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>Mot de passe non autorisé&#xa0;!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>Les deux mots de passe ne sont pas identiques&#xa0;!</translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation>Échec de la réinitialisation du mot de passe de [%1]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmer le mot de passe</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation>Connexion cloud par mot de passe</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation>Mot de passe non valide</translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation>Cet appareil n’est actuellement pas considéré comme sûr. Veuillez vous connecter avec un code de vérification</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Échec de la connexion au compte Nimbra&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation>Connexion cloud par code QR</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation>Échec de l’obtention du compte connecté&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation>Connexion cloud par PIN</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation>Obtenir le PIN</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60 s</translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation>Le code de vérification a été envoyé. Veuillez le consulter sur votre téléphone mobile</translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation>Échec de l’obtention du code de vérification&#xa0;: numéro de mobile non valide (%1)</translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation>Échec de l’obtention du code de vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation>Obtenir le PIN</translation>
    </message>
    <message>
        <source>%1S</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Code de vérification non valide</translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation>Échec de la connexion au compte Nimbra&#xa0;: compte non valide</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Échec de la connexion au compte Nimbra&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation>Questions de sécurité</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Saisissez la réponse à la question 1</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Saisissez la réponse à la question 2</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Saisissez la réponse à la question 3</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation>Définir les questions de sécurité</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protection du mot de passe</translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation>Définissez les questions de sécurité</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Saisissez la réponse à la question 1</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Saisissez la réponse à la question 2</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Saisissez la réponse à la question 3</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation>Échec de la création du superutilisateur</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Question %1</source>
        <translation>Question %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation>Chargement des données du système…</translation>
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
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation>Répondre aux questions de sécurité</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protection du mot de passe</translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation>Répondez ou</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;importez les identifiants&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Nouvel utilisateur&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>Les réponses n’ont pas pu être vérifiées</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
</TS>
