<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation>登录成功</translation>
    </message>
    <message>
        <source>login failure</source>
        <translation>登录失败</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation>设置手势密码</translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation>修改手势密码</translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation>删除手势密码</translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation>开启自动登录</translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation>关闭自动登录</translation>
    </message>
    <message>
        <source>get back password</source>
        <translation>找回密码</translation>
    </message>
    <message>
        <source>reset password</source>
        <translation>重置密码</translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation>导出登录凭证</translation>
    </message>
    <message>
        <source>create user</source>
        <translation>创建用户</translation>
    </message>
    <message>
        <source>add user</source>
        <translation>添加用户</translation>
    </message>
    <message>
        <source>remove user</source>
        <translation>删除用户</translation>
    </message>
    <message>
        <source>set password</source>
        <translation>设置密码</translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation>超级用户被替换</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation>操作失败</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation>您最喜欢的老师叫什么名字？</translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation>您母亲的姓名是什么？</translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation>您父亲的姓名是什么？</translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation>您出生在哪个城市？</translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation>您就读的第一所学校叫什么？</translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation>您儿时最好的朋友叫什么名字？</translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation>您的第一只宠物叫什么名字？</translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation>您最喜欢的书是哪一本？</translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation>您最喜欢的电影是哪一部？</translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation>您最喜欢的菜是什么？</translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation>您的第一辆车是什么品牌？</translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation>您的第一份工作是什么？</translation>
    </message>
</context>
<context>
    <name>kelvra_base::AlertBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation>大写锁定已开启</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AddUserDlg</name>
    <message>
        <source>Add user</source>
        <translation>添加用户</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation>操作日志</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>记录数：%1</translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation>最新的 %1 条记录</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation>尚无记录。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation>手势登录</translation>
    </message>
    <message>
        <source>by password</source>
        <translation>密码登录</translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation>今后自动登录</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between details</comment>
        <translation>，</translation>
    </message>
</context>
<context>
    <name>kelvra_client::ClientShell</name>
    <message>
        <source>The file %1 cannot be written; the client goes on without it.</source>
        <translation>文件 %1 无法写入；客户端将在没有该文件的情况下继续运行。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation>本地用户</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>添加用户</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>设置密码</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation>本地用户由超级用户管理。如需添加或删除用户，或更换您的密码，请联系 %1。</translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation>还没有其他本地用户。添加后，他们即可用自己的用户名和密码登录。</translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation>要删除用户 %1 吗？其密码和手势将一并删除。</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation>本地用户由本客户端的超级用户管理。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation>Kelvra 客户端</translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation>切换用户</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>当前用户</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>登录时间</translation>
    </message>
    <message>
        <source>Next login on this computer</source>
        <translation>下次在本机登录</translation>
    </message>
    <message>
        <source>User</source>
        <translation>普通用户</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动登录</translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation>云账号</translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation>本地用户（密码登录）</translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation>本地用户（手势登录）</translation>
    </message>
    <message>
        <source>Local user</source>
        <translation>本地用户</translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation>登录方式</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation>超级用户</translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation>该用户已被删除</translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation>找回密码</translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation>导出登录凭证</translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新密码</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>确认密码</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>两次输入的密码不一致。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation>设置密码</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>The data folder %1 cannot be written to.</source>
        <translation>数据文件夹 %1 不可写。</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1, but it does not answer.</source>
        <translation>客户端已在使用数据文件夹 %1，但没有响应。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be created.</source>
        <translation>无法创建数据文件夹 %1。</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder.</source>
        <translation>数据文件夹 %1 不是文件夹。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read.</source>
        <translation>数据文件夹 %1 无法读取。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation>从未</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Last login</source>
        <translation>上次登录</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>自动登录</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The data folder %1 cannot be created.</source>
        <translation>无法创建数据文件夹 %1。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to.</source>
        <translation>数据文件夹 %1 不可写。</translation>
    </message>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation>无法打开数据库 %1。</translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation>无法读取数据库 %1，可能有其他程序正在使用它。</translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation>数据库 %1 已损坏。</translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation>数据库 %1 属于其他程序。</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation>数据库 %1 由本程序的更新版本写入。</translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation>缺少密钥文件 %1，没有它无法打开数据库。</translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation>无法写入密钥文件 %1。</translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation>密钥文件 %1 已损坏：其长度不是 %2 字节。</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation>无法读取密钥文件 %1。</translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation>密钥文件与同一文件夹中的数据库不匹配。</translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation>无法写入数据库。</translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation>用户名不能包含空格或控制字符。</translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation>用户名不能超过 %1 个字符。</translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation>该用户名已被使用。</translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation>请输入密码。</translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation>密码不能包含空格或控制字符。</translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation>密码不能超过 %1 个字符。</translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation>该用户已不存在。</translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation>无法保存更改。</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The cloud service is not available in this installation</source>
        <translation>本安装未提供云服务</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>云服务拒绝了该请求（代码 %1，%2）</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation>无法写入操作日志，之后的事件将不被记录。</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>文件 %1 无法读取。</translation>
    </message>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation>文件 %1 已损坏；请更正或删除该文件。</translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation>文件 %2 中 %1 的值无效；请更正或删除该值。</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation>无法将设置写入 %1；更改仅在客户端退出前有效。</translation>
    </message>
</context>
</TS>
