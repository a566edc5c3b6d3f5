<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation>请设置用于登录的手势密码</translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation>第一次绘制手势</translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation>第二次绘制手势</translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation>手势过于简单：至少连接 4 个点</translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation>手势密码设置成功</translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation>设置手势密码登录</translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation>两次绘制的手势密码不一致</translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation>手势密码过于简单，请至少连接 4 个点</translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation>手势密码修改失败</translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation>手势密码设置失败</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation>手机号</translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation>手机号不合法</translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation>正在登录...</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation>创建超级用户</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>欢迎登录</translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation>创建新的本地超级用户</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>用户名不能为空或全为空格！</translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation>用户名已存在！</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>密码不符合要求！</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>两次输入的密码不一致！</translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation>超级用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>确认密码</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation>手势登录</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>欢迎登录</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation>密码登录</translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>手势错误，最多允许失败 %1 次，现已失败 %2 次</translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation>已失败 %1 次，还可尝试 %2 次</translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation>账号 %1 不存在</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation>手势面板</translation>
    </message>
    <message>
        <source>Gesture pad</source>
        <translation>手势面板</translation>
    </message>
    <message>
        <source>Drag the mouse over the dots to connect them</source>
        <translation>按住鼠标拖动以连接各点</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation>手势密码验证</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation>请回答密保问题或</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;导入登录凭证&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation>找回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation>找回密码</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>密保答案验证失败</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation>导出登录凭证失败</translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation>登录凭证导出成功，您可以使用登录凭证找回或重置密码</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
    <message>
        <source>Language</source>
        <translation>语言</translation>
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
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation>答案不能为空或全为空格！</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation>密码规则</translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation>必须包含数字、小写字母、大写字母和特殊字符中的两种或两种以上</translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation>密码长度：8-16 位</translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation>密码不能与用户名或用户名的倒序相同</translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation>二维码登录</translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation>Nimbra App 扫码登录</translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation>获取二维码失败</translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation>获取登录二维码失败：%1</translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation>二维码已失效</translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation>查询扫码状态失败</translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation>查询登录二维码状态失败：%1</translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation>已扫码，等待手机确认</translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation>已扫码，登录已取消</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>非法操作</translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation>非法 IP 地址</translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation>二维码登录失败</translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation>查询二维码登录结果失败：%1</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>二维码</translation>
    </message>
    <message>
        <source>Refresh QR code</source>
        <translation>刷新二维码</translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation>重置密码</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>欢迎登录</translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation>请设置新密码</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>用户名不能为空或全为空格！</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>密码不符合要求！</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>两次输入的密码不一致！</translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation>重置 [%1] 的密码失败</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>确认密码</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation>云账号密码登录</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>验证码登录</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>扫码登录</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation>密码无效</translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation>当前为非安全终端，请使用验证码登录</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Nimbra 账号登录失败：%1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation>云账号扫码登录</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>验证码登录</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>密码登录</translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation>获取已登录账号失败：%1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation>云账号验证码登录</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>验证码</translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation>获取验证码</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>密码登录</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>扫码登录</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60 秒</translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation>验证码获取成功，请在手机上查收</translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation>验证码获取失败：手机号无效（%1）</translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation>验证码获取失败：%1</translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation>获取验证码</translation>
    </message>
    <message>
        <source>%1S</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>验证码无效</translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation>Nimbra 账号登录失败：账号无效</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Nimbra 账号登录失败：%1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation>密保问题</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>请输入问题 1 的答案</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>请输入问题 2 的答案</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>请输入问题 3 的答案</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation>设置密保问题</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>密码保护</translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation>请设置密保问题</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>请输入问题 1 的答案</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>请输入问题 2 的答案</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>请输入问题 3 的答案</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation>创建超级用户失败</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Question %1</source>
        <translation>问题 %1</translation>
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
    <message>
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation>验证密保问题</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>密码保护</translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation>请回答密保问题或</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;导入登录凭证&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;创建新用户&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>密保答案验证失败</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
</TS>
