<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>登录</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation>使用默认超级用户</translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation>用户名：admin 密码：468024，安全性低</translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation>创建新的超级用户</translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation>自定义用户名和密码，安全性高</translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation>使用 Nimbra App 账号登录</translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation>通过手机号或扫描二维码登录</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>Local default superuser is not available</source>
        <translation>本地默认超级用户不可用</translation>
    </message>
    <message>
        <source>LoginMethodSelWt</source>
        <translation>选择登录方式</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>欢迎登录</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation>该账号已被锁定 %1 分钟，您可以通过 Nimbra App 的“忘记密码”功能解锁</translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation>当前已错误 %1 次，在接下来的 %2 秒内，如果再错误 %3 次，该账号将被锁定 %4 分钟</translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation>选择登录凭证</translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation>登录凭证文件不合法</translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation>无法打开登录凭证文件</translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation>登录凭证文件无效</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation>登录</translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation>Nimbra 账号自动登录失败：%1</translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation>密码不能为空！</translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>用户名或密码错误，最多允许失败 %1 次，现已失败 %2 次</translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation>已锁定，请等待 %1 秒</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>用户名不能为空或全为空格！</translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation>用户不存在！</translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation>请联系管理员获取密码</translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation>当前账号未设置手势密码登录</translation>
    </message>
    <message>
        <source>NormalLoginWt</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>欢迎登录</translation>
    </message>
    <message>
        <source>Local User</source>
        <translation>本地用户</translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation>Nimbra 用户</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>手势登录</translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation>忘记密码？</translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation>创建新用户</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation>正在加载系统数据...</translation>
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
        <translation>用户名</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>用户名</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>password</source>
        <translation>密码</translation>
    </message>
</context>
</TS>
