<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation>успешный вход</translation>
    </message>
    <message>
        <source>login failure</source>
        <translation>ошибка входа</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>блокировка</translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation>установка жеста</translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation>смена жеста</translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation>удаление жеста</translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation>включение автовхода</translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation>отключение автовхода</translation>
    </message>
    <message>
        <source>get back password</source>
        <translation>восстановление пароля</translation>
    </message>
    <message>
        <source>reset password</source>
        <translation>сброс пароля</translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation>экспорт учётных данных</translation>
    </message>
    <message>
        <source>create user</source>
        <translation>создание пользователя</translation>
    </message>
    <message>
        <source>add user</source>
        <translation>новый пользователь</translation>
    </message>
    <message>
        <source>remove user</source>
        <translation>удаление пользователя</translation>
    </message>
    <message>
        <source>set password</source>
        <translation>установка пароля</translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation>замена суперпольз.</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation>Ошибка операции</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation>Кто был вашим любимым учителем?</translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation>Как зовут вашу мать?</translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation>Как зовут вашего отца?</translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation>В каком городе вы родились?</translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation>Какой была ваша первая школа?</translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation>Как зовут вашего друга детства?</translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation>Как звали вашего первого питомца?</translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation>Какая ваша любимая книга?</translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation>Какой ваш любимый фильм?</translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation>Какое ваше любимое блюдо?</translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation>Какой марки была первая машина?</translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation>Какой была ваша первая работа?</translation>
    </message>
</context>
<context>
    <name>kelvra_base::AlertBox</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation>Включён Caps Lock</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CommonDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AddUserDlg</name>
    <message>
        <source>Add user</source>
        <translation>Новый пользователь</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation>Журнал аудита</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Записей: %1</translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation>Последние записи: %1</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation>Записей пока нет.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Событие</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation>по жесту</translation>
    </message>
    <message>
        <source>by password</source>
        <translation>по паролю</translation>
    </message>
    <message>
        <source>by cloud account</source>
        <translation>через облачную учётную запись</translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation>далее автоматический вход</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>на %1 с</translation>
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
        <translation>Не удаётся записать файл %1; клиент продолжит работу без него.</translation>
    </message>
    <message>
        <source>There are no fonts, so that no text can be shown. Install a font (on Debian the package fonts-dejavu-core).</source>
        <translation>Нет ни одного шрифта, поэтому текст показать нельзя. Установите шрифт (в Debian — пакет fonts-dejavu-core).</translation>
    </message>
    <message>
        <source>There is no default data folder: HOME has to be the full path of an existing folder, and XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir.</source>
        <translation>Папка данных по умолчанию отсутствует: HOME должна содержать полный путь к существующей папке, а XDG_DATA_HOME, если задана, — полный путь. Исправьте их или укажите папку с помощью --data-dir.</translation>
    </message>
    <message>
        <source>A client is already running on the data folder %1 and has come to the front. Nobody was logged in and the password was not used: log in there, or quit that client and start again.</source>
        <translation>Клиент уже запущен с папкой данных %1 и выведен на передний план. Вход не выполнен, пароль не использован: войдите там или закройте тот клиент и запустите снова.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation>Пользователи</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>Задать пароль</translation>
    </message>
    <message>
        <source>Set gesture</source>
        <translation>Задать жест</translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation>Удалить жест</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation>Сменить жест</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation>Локальными пользователями управляет суперпользователь этого клиента.</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation>Локальными пользователями управляет суперпользователь. Чтобы добавить или удалить пользователя либо получить новый пароль, обратитесь к %1.</translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation>Других локальных пользователей пока нет. Добавленный пользователь сможет входить со своим именем и паролем.</translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation>Удалить графический ключ пользователя %1?</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>Не удалось удалить графический ключ.</translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation>Удалить пользователя %1? Его пароль и графический ключ также будут удалены.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation>Клиент Kelvra</translation>
    </message>
    <message>
        <source>Simulated phone</source>
        <translation>Имитация телефона</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>Текущий пользователь</translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation>Способ входа</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Время входа</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Учётная запись</translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation>Сменить пользователя</translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation>Восстановить пароль</translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation>Экспорт учётных данных</translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation>Суперпользователь</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation>Пользователь удалён</translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation>Облачная учётная запись</translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation>Локальный вход, по паролю</translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation>Локальный вход, по жесту</translation>
    </message>
    <message>
        <source>Local user</source>
        <translation>Локальный вход</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Новый пароль</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Повторите пароль</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Пароли не совпадают.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneHandle</name>
    <message>
        <source>Open the simulated phone: something has arrived</source>
        <translation>Открыть имитацию телефона: пришло новое</translation>
    </message>
    <message>
        <source>Open the simulated phone</source>
        <translation>Открыть имитацию телефона</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation>Телефон Nimbra (имитация)</translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation>Телефон Nimbra</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>имитация</translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation>Закрыть телефон</translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation>Учётная запись в этом телефоне</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копия</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Снять</translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation>Изменить файл</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation>Сообщений нет. В окне входа выберите «SMS-код», введите указанный выше номер и нажмите «Получить код».</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QR-код</translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation>Отклонить этот код от имени облака</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Запрет операции</translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation>Запрет IP</translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation>Сеть компьютера: вкл.</translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation>Сеть компьютера: выкл.</translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation>Когда сеть выключена, любой запрос клиента к облаку через несколько секунд завершается ошибкой.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation>Сканировать как %1</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Сканировать</translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation>SMS на %1</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation>Код не показан. В окне входа выберите «QR-код».</translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation>Окно входа показывает код.</translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation>Войти на компьютере как %1? Компьютер ждёт вашего ответа.</translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation>Подтверждено. Компьютер входит как %1.</translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation>Отменено. Чтобы получить новый код, нажмите стрелки в окне входа.</translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation>Отклонено облаком. Чтобы получить новый код, нажмите стрелки в окне входа.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>осталось %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>истёк</translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation>Блокировка: ещё %1</translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation>Редактор не открылся автоматически; измените файл %1.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation>Новый пароль пользователя</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation>Вход в систему</translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation>Графический ключ</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Тест</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>set</source>
        <translation>задан</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>не задан</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Сменить</translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation>Графический ключ не задан.</translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation>Графический ключ бывает только у локальных пользователей; это облачная учётная запись.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Включён</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Выключен</translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation>При следующем входе с этой учётной записью отметьте «Автовход».</translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation>Удалить ваш графический ключ? После этого вход будет возможен только по паролю.</translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation>Графический ключ удалён.</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>Не удалось удалить графический ключ.</translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation>Графический ключ проверен.</translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation>Графический ключ не прошёл проверку.</translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation>Не удалось изменить автовход.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>A client of the account %2 is running on the data folder %1. Have it quit there, or name another folder with --data-dir.</source>
        <translation>Клиент учётной записи %2 работает с папкой данных %1. Попросите закрыть его там или укажите другую папку с помощью --data-dir.</translation>
    </message>
    <message>
        <source>A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder with --data-dir.</source>
        <translation>Клиент на компьютере %2 работает с папкой данных %1. Закройте его там или укажите другую папку с помощью --data-dir.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but cannot be brought to the front, because another program has taken its name %3. Switch to the client&apos;s window, and end that program.</source>
        <translation>Клиент уже запущен с папкой данных %1 (процесс %2), но его нельзя вывести на передний план: его имя %3 занято другой программой. Перейдите в окно клиента и завершите эту программу.</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its window; where it is frozen, end that process and start the client again.</source>
        <translation>Клиент уже запущен с папкой данных %1 (процесс %2), но не отвечает. Перейдите в его окно; если оно зависло, завершите этот процесс и запустите клиент снова.</translation>
    </message>
    <message>
        <source>A second start cannot bring this client to the front, because another program has taken its name %1. End that program and start the client again.</source>
        <translation>Повторный запуск не сможет вывести этот клиент на передний план: его имя %1 занято другой программой. Завершите эту программу и запустите клиент снова.</translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source>on</source>
        <translation>вкл.</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выкл.</translation>
    </message>
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation>задан</translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation>не задан</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Last login</source>
        <translation>Прошлый вход</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Жест</translation>
    </message>
</context>
<context>
    <name>kelvra_data::OwnerFolder</name>
    <message>
        <source>The data folder %1 cannot be created. Name a folder that you may write to with --data-dir.</source>
        <translation>Не удаётся создать папку данных %1. Укажите с помощью --data-dir папку, в которую вам разрешена запись.</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder. Name another one with --data-dir.</source>
        <translation>Указанный путь к папке данных %1 не является папкой. Укажите другую с помощью --data-dir.</translation>
    </message>
    <message>
        <source>The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start the client as %2.</source>
        <translation>Папка данных %1 принадлежит учётной записи %2. Укажите собственную папку с помощью --data-dir или запустите клиент от имени %2.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read. Give your account its rights back, or name another folder with --data-dir.</source>
        <translation>Не удаётся прочитать папку данных %1. Верните права своей учётной записи или укажите другую папку с помощью --data-dir.</translation>
    </message>
    <message>
        <source>Other accounts can write to the data folder %1, so the client does not trust what is in it. Make sure that its files are yours and close it (%2), or name another folder with --data-dir.</source>
        <translation>Другие учётные записи могут записывать в папку данных %1, поэтому клиент не доверяет её содержимому. Убедитесь, что файлы ваши, и закройте её (%2) или укажите другую папку с помощью --data-dir.</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or name another folder with --data-dir.</source>
        <translation>Запись в папку данных %1 невозможна. Верните права своей учётной записи, освободите место на диске или укажите другую папку с помощью --data-dir.</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation>Не удаётся открыть базу данных %1.</translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation>Не удаётся прочитать базу данных %1; возможно, её использует другая программа.</translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation>База данных %1 повреждена.</translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation>База данных %1 принадлежит другой программе.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation>База данных %1 записана более новой версией этой программы.</translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation>Файл ключа %1 отсутствует; без него базу данных открыть нельзя.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation>Не удаётся записать файл ключа %1.</translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation>Файл ключа %1 повреждён: его размер не равен %2 байт.</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation>Не удаётся прочитать файл ключа %1.</translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation>Файл ключа не подходит к базе данных в той же папке.</translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation>Запись в базу данных невозможна.</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the package libqt5sql5-sqlite).</source>
        <translation>Отсутствует драйвер SQLite для Qt. Переустановите клиент или только этот драйвер (в Debian — пакет libqt5sql5-sqlite).</translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation>Имя пользователя не должно содержать пробелы и управляющие символы.</translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation>Длина имени пользователя не должна превышать %1 симв.</translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation>Это имя пользователя уже занято.</translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation>Введите пароль.</translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation>Пароль не должен содержать пробелы и управляющие символы.</translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation>Длина пароля не должна превышать %1 симв.</translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation>Этот пользователь больше не существует.</translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation>Не удалось сохранить изменение.</translation>
    </message>
</context>
<context>
    <name>kelvra_files::OrdinaryFile</name>
    <message>
        <source>The file %1 cannot be read; check its permissions.</source>
        <translation>Не удаётся прочитать файл %1; проверьте права доступа к нему.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes; correct it or delete it.</source>
        <translation>Размер файла %1 превышает %2 байт; исправьте или удалите его.</translation>
    </message>
    <message>
        <source>%1 is not a file but a folder, a pipe or a device; move it away.</source>
        <translation>%1 — не файл, а папка, канал или устройство; переместите этот объект в другое место.</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation>Учётная запись заблокирована; до разблокировки осталось минут: %1</translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation>Недействительный номер мобильного телефона</translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation>Облачная служба не отвечает; проверьте подключение к сети</translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation>Имитация облака не может использовать свой файл cloud_accounts.ini; исправьте или удалите его</translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation>Учётной записи с этим номером мобильного телефона нет</translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation>Неверный SMS-код; осталось попыток: %1</translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation>SMS-код больше не действителен; получите новый</translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation>Вход не подтверждён на телефоне</translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation>QR-код больше не действителен</translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation>По QR-коду не вошла ни одна учётная запись</translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation>Для этой учётной записи автовход не сохранён</translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation>Сохранённый вход больше не действителен; войдите ещё раз</translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation>Вход с этого компьютера выполняется впервые; используйте SMS-код или QR-код</translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation>Неверный пароль; осталось попыток: %1</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>Облачная служба отклонила запрос (код %1, %2)</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation>Файл %1 содержит не только текст; исправьте или удалите его.</translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation>Строка %1 файла %2 содержит ошибку: %3. Исправьте её или удалите файл.</translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation>У учётной записи %1 в файле %2 нет пароля. Исправьте её или удалите файл.</translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation>В файле %1 нет учётных записей; исправьте или удалите его.</translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation>номер телефона состоит из одиннадцати цифр, первая из них — 1</translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation>этот номер телефона указан дважды</translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation>допускаются только [номер телефона], name=, password= и комментарии</translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation>сначала должен идти номер телефона в скобках</translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation>в пароле должно быть не менее %1 симв. и ни одного пробела</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 указано дважды</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation>[Nimbra] %1 — ваш код подтверждения. Он действителен %2 мин.; никому его не сообщайте.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation>Не удаётся записать журнал аудита; события не сохраняются.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation>Файл %1 повреждён; исправьте или удалите его.</translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation>Недопустимое значение %1 в файле %2; исправьте или удалите его.</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation>Не удаётся записать настройки в %1; изменения действуют до закрытия клиента.</translation>
    </message>
</context>
</TS>
