<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation>sesión iniciada</translation>
    </message>
    <message>
        <source>login failure</source>
        <translation>inicio de sesión fallido</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>bloqueo</translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation>gesto añadido</translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation>gesto cambiado</translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation>gesto eliminado</translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation>inicio auto. activado</translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation>inicio auto. anulado</translation>
    </message>
    <message>
        <source>get back password</source>
        <translation>contraseña recuperada</translation>
    </message>
    <message>
        <source>reset password</source>
        <translation>contraseña restablecida</translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation>credenciales exportadas</translation>
    </message>
    <message>
        <source>create user</source>
        <translation>usuario creado</translation>
    </message>
    <message>
        <source>add user</source>
        <translation>usuario añadido</translation>
    </message>
    <message>
        <source>remove user</source>
        <translation>usuario eliminado</translation>
    </message>
    <message>
        <source>set password</source>
        <translation>contraseña cambiada</translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation>superusuario sustituido</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation>Error en la operación</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation>¿Quién fue su profesor favorito?</translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation>¿Cómo se llama su madre?</translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation>¿Cómo se llama su padre?</translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation>¿En qué localidad nació?</translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation>¿Cuál fue su primer colegio?</translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation>¿Su mejor amigo de la infancia?</translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation>¿Nombre de su primera mascota?</translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation>¿Cuál es su libro favorito?</translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation>¿Cuál es su película favorita?</translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation>¿Cuál es su plato favorito?</translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation>¿De qué marca fue su primer coche?</translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation>¿Cuál fue su primer trabajo?</translation>
    </message>
</context>
<context>
    <name>kelvra_base::AlertBox</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation>Bloq Mayús está activado</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CommonDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AddUserDlg</name>
    <message>
        <source>Add user</source>
        <translation>Añadir usuario</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation>Registro de auditoría</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Entradas: %1</translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation>Las %1 entradas más recientes</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation>Aún no se ha registrado nada.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation>con gesto</translation>
    </message>
    <message>
        <source>by password</source>
        <translation>con contraseña</translation>
    </message>
    <message>
        <source>by cloud account</source>
        <translation>con cuenta en la nube</translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation>inicio automático a partir de ahora</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>durante %1 segundos</translation>
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
        <translation>No se puede escribir el archivo %1; el cliente continúa sin él.</translation>
    </message>
    <message>
        <source>There are no fonts, so that no text can be shown. Install a font (on Debian the package fonts-dejavu-core).</source>
        <translation>No hay fuentes, por lo que no se puede mostrar ningún texto. Instale una fuente (en Debian, el paquete fonts-dejavu-core).</translation>
    </message>
    <message>
        <source>There is no default data folder: HOME has to be the full path of an existing folder, and XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir.</source>
        <translation>No hay carpeta de datos predeterminada: HOME debe ser la ruta completa de una carpeta existente y XDG_DATA_HOME, si está definida, una ruta completa. Corríjalas o indique una carpeta con --data-dir.</translation>
    </message>
    <message>
        <source>A client is already running on the data folder %1 and has come to the front. Nobody was logged in and the password was not used: log in there, or quit that client and start again.</source>
        <translation>Ya se está ejecutando un cliente con la carpeta de datos %1 y ha pasado al frente. No se ha iniciado la sesión de nadie y no se ha utilizado la contraseña: inicie sesión allí, o cierre ese cliente y vuelva a empezar.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation>Usuarios locales</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Set gesture</source>
        <translation>Definir gesto</translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation>Borrar gesto</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation>Cambiar gesto</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation>Los usuarios locales los gestiona el superusuario de este cliente.</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation>Los usuarios locales los gestiona el superusuario. Pida a %1 que añada o elimine un usuario, o que le asigne una nueva contraseña.</translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation>Aún no hay otros usuarios locales. Añada uno y podrá iniciar sesión con su propio nombre y contraseña.</translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation>¿Eliminar la contraseña gestual de %1?</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>No se ha podido eliminar la contraseña gestual.</translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation>¿Eliminar el usuario %1? También se eliminarán su contraseña y su gesto.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation>Cliente Kelvra</translation>
    </message>
    <message>
        <source>Simulated phone</source>
        <translation>Teléfono simulado</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>Usuario actual</translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation>Modo de acceso</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Sesión desde</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation>Cambiar de usuario</translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation>Recuperar contraseña</translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation>Exportar credenciales</translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation>Superusuario</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation>Este usuario se ha eliminado</translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation>Cuenta en la nube</translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation>Usuario local, con contraseña</translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation>Usuario local, con gesto</translation>
    </message>
    <message>
        <source>Local user</source>
        <translation>Usuario local</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nueva contraseña</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Confirmar contraseña</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Las dos contraseñas no coinciden.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneHandle</name>
    <message>
        <source>Open the simulated phone: something has arrived</source>
        <translation>Abrir el teléfono simulado: ha llegado algo</translation>
    </message>
    <message>
        <source>Open the simulated phone</source>
        <translation>Abrir el teléfono simulado</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation>Teléfono Nimbra (simulado)</translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation>Teléfono Nimbra</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulado</translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation>Cerrar el teléfono</translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation>Cuenta en este teléfono</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation>Editar cuentas</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation>Ningún mensaje. Elija “PIN” en la ventana de inicio de sesión, escriba el número anterior y haga clic en “Obtener PIN”.</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>Código QR</translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation>Hacer que la nube rechace este código</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Acción no válida</translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation>IP no válida</translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation>Red del ordenador: activada</translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation>Red del ordenador: desactivada</translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation>Si está desactivada, todo lo que el cliente pida a la nube fallará a los pocos segundos.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>no hay</translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation>Escanear como %1</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Escanear</translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation>SMS a %1</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation>Ningún código visible. Elija “QR” en la ventana de inicio de sesión.</translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation>La ventana de inicio de sesión muestra un código.</translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation>¿Iniciar sesión en el ordenador como %1? El ordenador espera su respuesta.</translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation>Confirmado. El ordenador inicia sesión como %1.</translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation>Cancelado. Haga clic en las flechas de la ventana de inicio de sesión para obtener un código nuevo.</translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation>Rechazado por la nube. Haga clic en las flechas de la ventana de inicio de sesión para obtener un código nuevo.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>caducado</translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation>Bloqueada: %1</translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation>No se abre ningún editor; edite %1.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation>Cambiar contraseña</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation>Contraseña gestual</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Definir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Inicio automático</translation>
    </message>
    <message>
        <source>set</source>
        <translation>definida</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>no definida</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation>No hay ninguna contraseña gestual definida.</translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation>Solo los usuarios locales tienen contraseña gestual; esta es una cuenta en la nube.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation>Marque “Inicio automático” la próxima vez que inicie sesión con esta cuenta.</translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation>¿Eliminar su contraseña gestual? Después solo podrá iniciar sesión con su contraseña.</translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation>La contraseña gestual se ha eliminado.</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>No se ha podido eliminar la contraseña gestual.</translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation>La contraseña gestual se ha verificado.</translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation>La contraseña gestual no se ha verificado.</translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation>No se ha podido cambiar el inicio automático.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>A client of the account %2 is running on the data folder %1. Have it quit there, or name another folder with --data-dir.</source>
        <translation>Un cliente de la cuenta %2 se está ejecutando con la carpeta de datos %1. Pida que lo cierren allí o indique otra carpeta con --data-dir.</translation>
    </message>
    <message>
        <source>A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder with --data-dir.</source>
        <translation>Un cliente del equipo %2 se está ejecutando con la carpeta de datos %1. Ciérrelo allí o indique otra carpeta con --data-dir.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but cannot be brought to the front, because another program has taken its name %3. Switch to the client&apos;s window, and end that program.</source>
        <translation>El cliente ya se está ejecutando con la carpeta de datos %1 (proceso %2), pero no se puede traer al frente porque otro programa ocupa su nombre %3. Cambie a la ventana del cliente y cierre ese programa.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its window; where it is frozen, end that process and start the client again.</source>
        <translation>El cliente ya se está ejecutando con la carpeta de datos %1 (proceso %2), pero no responde. Cambie a su ventana; si está bloqueada, finalice ese proceso y vuelva a iniciar el cliente.</translation>
    </message>
    <message>
        <source>A second start cannot bring this client to the front, because another program has taken its name %1. End that program and start the client again.</source>
        <translation>Un segundo inicio no puede traer este cliente al frente porque otro programa ocupa su nombre %1. Cierre ese programa y vuelva a iniciar el cliente.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no</translation>
    </message>
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation>definido</translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation>no definido</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Last login</source>
        <translation>Último acceso</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Gesto</translation>
    </message>
</context>
<context>
    <name>kelvra_data::OwnerFolder</name>
    <message>
        <source>The data folder %1 cannot be created. Name a folder that you may write to with --data-dir.</source>
        <translation>No se puede crear la carpeta de datos %1. Indique con --data-dir una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder. Name another one with --data-dir.</source>
        <translation>La carpeta de datos %1 no es una carpeta. Indique otra con --data-dir.</translation>
    </message>
    <message>
        <source>The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start the client as %2.</source>
        <translation>La carpeta de datos %1 pertenece a la cuenta %2. Indique una carpeta propia con --data-dir o inicie el cliente como %2.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read. Give your account its rights back, or name another folder with --data-dir.</source>
        <translation>No se puede leer la carpeta de datos %1. Devuelva los permisos a su cuenta o indique otra carpeta con --data-dir.</translation>
    </message>
    <message>
        <source>Other accounts can write to the data folder %1, so the client does not trust what is in it. Make sure that its files are yours and close it (%2), or name another folder with --data-dir.</source>
        <translation>Otras cuentas pueden escribir en la carpeta de datos %1, por lo que el cliente no confía en su contenido. Compruebe que los archivos son suyos y ciérrela (%2), o indique otra carpeta con --data-dir.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or name another folder with --data-dir.</source>
        <translation>No se puede escribir en la carpeta de datos %1. Devuelva los permisos a su cuenta, libere espacio en el disco o indique otra carpeta con --data-dir.</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation>No se puede abrir la base de datos %1.</translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation>No se puede leer la base de datos %1; es posible que otro programa la esté utilizando.</translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation>La base de datos %1 está dañada.</translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation>La base de datos %1 pertenece a otro programa.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation>La base de datos %1 se creó con una versión más reciente de este programa.</translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation>Falta el archivo de clave %1; sin él no se puede abrir la base de datos.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation>No se puede escribir el archivo de clave %1.</translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation>El archivo de clave %1 está dañado: no tiene %2 bytes.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation>No se puede leer el archivo de clave %1.</translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation>El archivo de clave no corresponde a la base de datos de la misma carpeta.</translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation>No se puede escribir en la base de datos.</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the package libqt5sql5-sqlite).</source>
        <translation>Falta el controlador SQLite de Qt. Vuelva a instalar el cliente o solo este controlador (en Debian, el paquete libqt5sql5-sqlite).</translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation>Escriba un nombre de usuario.</translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation>El nombre de usuario no puede contener espacios ni caracteres de control.</translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation>El nombre de usuario no puede tener más de %1 caracteres.</translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation>Este nombre de usuario ya está en uso.</translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation>Escriba una contraseña.</translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation>La contraseña no puede contener espacios ni caracteres de control.</translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation>La contraseña no puede tener más de %1 caracteres.</translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation>Este usuario ya no existe.</translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation>No se ha podido guardar el cambio.</translation>
    </message>
</context>
<context>
    <name>kelvra_files::OrdinaryFile</name>
    <message>
        <source>The file %1 cannot be read; check its permissions.</source>
        <translation>No se puede leer el archivo %1; compruebe sus permisos.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes; correct it or delete it.</source>
        <translation>El archivo %1 tiene más de %2 bytes; corríjalo o elimínelo.</translation>
    </message>
    <message>
        <source>%1 is not a file but a folder, a pipe or a device; move it away.</source>
        <translation>%1 no es un archivo, sino una carpeta, una tubería o un dispositivo; muévalo a otro lugar.</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation>La cuenta está bloqueada; minutos hasta el desbloqueo: %1</translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation>El número de móvil no es válido</translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation>El servicio en la nube no responde; compruebe la conexión de red</translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation>La nube simulada no puede utilizar su archivo cloud_accounts.ini; corrija o elimine el archivo</translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation>No hay ninguna cuenta con este número de móvil</translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation>El código de verificación es incorrecto; intentos restantes: %1</translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation>El código de verificación ya no es válido; solicite uno nuevo</translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation>El inicio de sesión no se ha confirmado en el teléfono</translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation>El código QR ya no es válido</translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation>Ninguna cuenta ha iniciado sesión con código QR</translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation>No hay ningún inicio automático guardado para esta cuenta</translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation>El inicio de sesión guardado ya no es válido; vuelva a iniciar sesión</translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation>Este ordenador es nuevo para la cuenta; inicie sesión con un código de verificación o un código QR</translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation>La contraseña es incorrecta; intentos restantes: %1</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>El servicio en la nube ha rechazado la solicitud (código %1, %2)</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation>El archivo %1 contiene algo que no es texto; corríjalo o elimínelo.</translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation>La línea %1 del archivo %2 no es válida: %3. Corríjala o elimine el archivo.</translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation>La cuenta %1 del archivo %2 no tiene contraseña. Corríjala o elimine el archivo.</translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation>El archivo %1 no contiene ninguna cuenta; corríjalo o elimínelo.</translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation>un número de teléfono tiene once dígitos y el primero es 1</translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation>este número de teléfono aparece dos veces</translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation>solo se admiten [número de teléfono], name=, password= y comentarios</translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation>primero debe aparecer un número de teléfono entre corchetes</translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation>una contraseña tiene al menos %1 caracteres y ningún espacio</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 aparece dos veces</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation>[Nimbra] %1 es su código de verificación. Es válido durante %2 minutos; no lo comparta.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation>No se puede escribir el registro de auditoría; los eventos no quedan registrados.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation>El archivo %1 está dañado; corríjalo o elimínelo.</translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation>El valor de %1 en el archivo %2 no es válido; corríjalo o elimínelo.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation>No se puede guardar la configuración en %1; los cambios durarán hasta que se cierre el cliente.</translation>
    </message>
</context>
</TS>
