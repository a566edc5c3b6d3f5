<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation>Задайте графический ключ для входа</translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation>Нарисуйте графический ключ</translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation>Нарисуйте его ещё раз</translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation>Слишком просто: нужно хотя бы 4 точки</translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation>Графический ключ задан</translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation>Вход по графическому ключу</translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation>Введённые графические ключи не совпадают</translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation>Слишком просто: нужно хотя бы 4 точки</translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation>Не удалось изменить графический ключ</translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation>Не удалось задать графический ключ</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation>Номер телефона</translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation>Недопустимый номер мобильного телефона</translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation>Выполняется вход...</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation>Создание суперпользователя</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation>Новый локальный суперпользователь</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Имя пользователя не может быть пустым или состоять из пробелов!</translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation>Такое имя пользователя уже существует!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>Недопустимый пароль!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>Пароли не совпадают!</translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation>Имя суперпользователя</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Повторите пароль</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation>Вход по графическому ключу</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation>Вход по паролю</translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Неверный графический ключ. Допускается ошибок: %1, уже допущено: %2</translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation>Ошибок: %1, осталось попыток: %2</translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation>Учётная запись %1 не существует</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation>Панель графического ключа</translation>
    </message>
    <message>
        <source>Gesture pad</source>
        <translation>Поле жеста</translation>
    </message>
    <message>
        <source>Drag the mouse over the dots to connect them</source>
        <translation>Проведите мышью по точкам, чтобы соединить их</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation>Проверка графического ключа</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation>Ответьте на вопросы или</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;загрузите файл&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation>Восстановление пароля</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>Ответы не прошли проверку</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation>Не удалось экспортировать файл учётных данных</translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation>Файл учётных данных сохранён. С его помощью можно восстановить или сбросить пароль</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation>Вход по умолчанию</translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation>Имя: admin, пароль: 468024, низкая безопасность</translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation>Новый суперпользователь</translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation>Свои имя и пароль, высокая безопасность</translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation>Вход через Nimbra App</translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation>По номеру телефона или по QR-коду</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>LoginMethodSelWt</source>
        <translation>Выбор способа входа</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Local default superuser is not available</source>
        <translation>Локальный суперпользователь по умолчанию недоступен</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation>Учётная запись заблокирована на %1 мин. Её можно разблокировать в Nimbra App с помощью функции «Забыли пароль?»</translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation>Ошибок: %1. Если в течение следующих %2 с число новых ошибок достигнет %3, учётная запись будет заблокирована на %4 мин.</translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation>Выберите файл учётных данных</translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation>Недопустимый файл учётных данных</translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation>Не удалось открыть файл учётных данных</translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation>Файл учётных данных недействителен</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>NormalLoginWt</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Local User</source>
        <translation>Локальный вход</translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation>Вход в Nimbra</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Жест</translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation>Забыли?</translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation>Новый пользователь</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation>Не удалось автоматически войти в учётную запись Nimbra: %1</translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation>Пароль не может быть пустым!</translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>Неверное имя пользователя или пароль. Допускается ошибок: %1, уже допущено: %2</translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation>Заблокировано, ждите %1 с</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Имя пользователя не может быть пустым или состоять из пробелов!</translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation>Пользователь не существует!</translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation>Обратитесь к администратору, чтобы получить пароль</translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation>Для текущей учётной записи не задан графический ключ</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation>Ответ не может быть пустым или состоять из пробелов!</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation>Требования к паролю</translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation>Не менее двух видов символов: цифры, строчные и прописные буквы, спецсимволы</translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation>Длина пароля: 8–16 символов</translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation>Пароль не может быть именем пользователя, в том числе записанным наоборот</translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation>Вход по QR-коду</translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation>Отсканируйте код в Nimbra App</translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation>QR-код не получен</translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation>Не удалось получить QR-код для входа: %1</translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation>QR-код недействителен</translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation>Не удалось проверить состояние</translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation>Не удалось проверить состояние QR-кода для входа: %1</translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation>Код отсканирован, подтвердите вход</translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation>Код отсканирован, вход отменён</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>Недопустимая операция</translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation>Недопустимый IP-адрес</translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation>Ошибка входа по QR-коду</translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation>Не удалось проверить результат входа по QR-коду: %1</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QR-код</translation>
    </message>
    <message>
        <source>Refresh QR code</source>
        <translation>Обновить QR-код</translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation>Сброс пароля</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation>Задайте новый пароль</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>Имя пользователя не может быть пустым или состоять из пробелов!</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>Недопустимый пароль!</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>Пароли не совпадают!</translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation>Не удалось сбросить пароль [%1]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Повторите пароль</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation>Вход в облако по паролю</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>SMS-код</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR-код</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation>Недопустимый пароль</translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation>Этот компьютер не является доверенным. Войдите с помощью кода из SMS</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Не удалось войти в учётную запись Nimbra: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation>Вход в облако по QR-коду</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>SMS-код</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation>Не удалось получить вошедшую учётную запись: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation>Вход в облако по SMS-коду</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>SMS-код</translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation>Получить код</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>Автовход</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QR-код</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60 с</translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation>Код отправлен. Проверьте SMS на своём мобильном телефоне</translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation>Не удалось получить код: недействительный номер мобильного телефона (%1)</translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation>Не удалось получить код: %1</translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation>Получить код</translation>
    </message>
    <message>
        <source>%1S</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>Недопустимый SMS-код</translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation>Не удалось войти в учётную запись Nimbra: недействительная учётная запись</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Не удалось войти в учётную запись Nimbra: %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation>Контрольные вопросы</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Введите ответ на вопрос 1</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Введите ответ на вопрос 2</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Введите ответ на вопрос 3</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation>Настройка контрольных вопросов</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Защита пароля</translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation>Задайте контрольные вопросы</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>Введите ответ на вопрос 1</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>Введите ответ на вопрос 2</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>Введите ответ на вопрос 3</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation>Не удалось создать суперпользователя</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Question %1</source>
        <translation>Вопрос %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation>Загрузка данных системы...</translation>
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
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>Имя пользователя</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Показать пароль</translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation>Проверка контрольных вопросов</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Защита пароля</translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation>Ответьте на вопросы или</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;загрузите файл&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Новый пользователь&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>Ответы не прошли проверку</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
</TS>
