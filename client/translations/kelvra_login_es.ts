<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation>Defina su contraseña gestual de acceso</translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation>Dibuje el gesto por primera vez</translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation>Dibuje el gesto por segunda vez</translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation>Gesto demasiado simple: mínimo 4 puntos</translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation>Contraseña gestual definida</translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation>Añadir inicio de sesión con gesto</translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation>Los dos gestos introducidos no coinciden</translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation>La contraseña gestual es demasiado simple. Debe unir al menos 4 puntos</translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation>No se ha podido cambiar la contraseña gestual</translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation>No se ha podido añadir la contraseña gestual</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation>Número de teléfono</translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation>Número de móvil no válido</translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation>Crear superusuario</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation>Cree un nuevo superusuario local</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>¡El nombre de usuario no puede estar vacío ni contener solo espacios!</translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation>¡El nombre de usuario ya existe!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>¡Contraseña no permitida!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>¡Las dos contraseñas no coinciden!</translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation>Nombre del superusuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmar contraseña</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation>Inicio de sesión con gesto</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation>Usar contraseña</translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Gesto incorrecto. Intentos fallidos permitidos: %1; hasta ahora: %2</translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation>Intentos fallidos: %1, restantes: %2</translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation>La cuenta %1 no existe</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation>Panel de gestos</translation>
    </message>
    <message>
        <source>Gesture pad</source>
        <translation>Panel de gestos</translation>
    </message>
    <message>
        <source>Drag the mouse over the dots to connect them</source>
        <translation>Arrastre el ratón sobre los puntos para unirlos</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation>Verificar gesto</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation>Responda o</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;importe las credenciales&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation>Recuperar contraseña</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>No se han podido verificar las respuestas</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation>No se han podido exportar las credenciales</translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation>Las credenciales se han exportado. Con ellas puede recuperar o restablecer la contraseña</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation>Superusuario por defecto</translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation>Usuario: admin, contraseña: 468024, seguridad baja</translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation>Nuevo superusuario</translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation>Usuario y contraseña propios, seguridad alta</translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation>Usuario de Nimbra App</translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation>Iniciar sesión con número de teléfono o código QR</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>LoginMethodSelWt</source>
        <translation>Elegir el modo de acceso</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Local default superuser is not available</source>
        <translation>El superusuario local por defecto no está disponible</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation>La cuenta se ha bloqueado durante %1 minutos. Puede desbloquearla en Nimbra App con la opción de contraseña olvidada</translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation>Errores hasta ahora: %1. Intentos restantes en los próximos %2 s: %3; después, la cuenta se bloqueará durante %4 minutos</translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation>Seleccionar el archivo de credenciales</translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation>El archivo de credenciales no es admisible</translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation>No se ha podido abrir el archivo de credenciales</translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation>El archivo de credenciales no es válido</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>NormalLoginWt</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Local User</source>
        <translation>Usuario local</translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation>Usuario Nimbra</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Gesto</translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation>¿La olvidó?</translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation>Crear usuario</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation>No se ha podido iniciar sesión automáticamente con la cuenta Nimbra: %1</translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation>¡La contraseña no puede estar vacía!</translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Nombre de usuario o contraseña incorrectos. Intentos fallidos permitidos: %1; hasta ahora: %2</translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation>Bloqueado, espere %1 s</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>¡El nombre de usuario no puede estar vacío ni contener solo espacios!</translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation>¡El usuario no existe!</translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation>Póngase en contacto con el administrador para obtener la contraseña</translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation>La cuenta actual no tiene configurado el inicio de sesión con contraseña gestual</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation>¡La respuesta no puede estar vacía ni contener solo espacios!</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation>Reglas de la contraseña</translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation>Combine al menos dos de estos tipos: números, minúsculas, mayúsculas y caracteres especiales</translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation>Longitud de la contraseña: 8-16</translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation>La contraseña no puede ser igual al nombre de usuario ni a su inverso</translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation>Inicio de sesión con código QR</translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation>Escanee el código con Nimbra App</translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation>No se ha obtenido el código QR</translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation>No se ha podido obtener el código QR de inicio de sesión: %1</translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation>Código QR no válido</translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation>Error al consultar el estado</translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation>No se ha podido consultar el estado del código QR: %1</translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation>Escaneado, pendiente de confirmar</translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation>Escaneado, inicio cancelado</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Acción no válida</translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation>IP no válida</translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation>Error al iniciar sesión con QR</translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation>No se ha podido consultar el resultado del inicio de sesión con código QR: %1</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>Código QR</translation>
    </message>
    <message>
        <source>Refresh QR code</source>
        <translation>Actualizar código QR</translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation>Restablecer contraseña</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation>Establezca una nueva contraseña</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>¡El nombre de usuario no puede estar vacío ni contener solo espacios!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>¡Contraseña no permitida!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>¡Las dos contraseñas no coinciden!</translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation>No se ha podido restablecer la contraseña de [%1]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmar contraseña</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation>Acceso a la nube con contraseña</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
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
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation>Contraseña no válida</translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation>Este equipo no se considera seguro por ahora. Inicie sesión con un código de verificación</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>No se ha podido iniciar sesión con la cuenta Nimbra: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation>Acceso a la nube con código QR</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation>No se ha podido obtener la cuenta con la sesión iniciada: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation>Acceso a la nube con PIN</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation>Obtener PIN</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60 s</translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation>El código de verificación se ha enviado. Consúltelo en su teléfono móvil</translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation>No se ha podido obtener el código de verificación: número de móvil no válido (%1)</translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation>No se ha podido obtener el código de verificación: %1</translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation>Obtener PIN</translation>
    </message>
    <message>
        <source>%1S</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Código de verificación no válido</translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation>No se ha podido iniciar sesión con la cuenta Nimbra: cuenta no válida</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>No se ha podido iniciar sesión con la cuenta Nimbra: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation>Preguntas de seguridad</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Escriba la respuesta a la pregunta 1</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Escriba la respuesta a la pregunta 2</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Escriba la respuesta a la pregunta 3</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation>Definir las preguntas de seguridad</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protección de la contraseña</translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation>Defina las preguntas de seguridad</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Escriba la respuesta a la pregunta 1</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Escriba la respuesta a la pregunta 2</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Escriba la respuesta a la pregunta 3</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation>No se ha podido crear el superusuario</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Question %1</source>
        <translation>Pregunta %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation>Cargando los datos del sistema…</translation>
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
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>Nombre de usuario</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar contraseña</translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation>Responder a las preguntas de seguridad</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protección de la contraseña</translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation>Responda o</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;importe las credenciales&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Crear usuario&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>No se han podido verificar las respuestas</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
</TS>
