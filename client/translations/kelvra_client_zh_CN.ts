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
    <name>kelvra_base::CommonDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
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
    <message>
        <source>by cloud account</source>
        <translation>使用云账号</translation>
    </message>
</context>
<context>
    <name>kelvra_client::ClientShell</name>
    <message>
        <source>The file %1 cannot be written; the client goes on without it.</source>
        <translation>文件 %1 无法写入；客户端将在没有该文件的情况下继续运行。</translation>
    </message>
    <message>
        <source>There are no fonts, so that no text can be shown. Install a font (on Debian the package fonts-dejavu-core).</source>
        <translation>没有任何字体，因此无法显示文字。请安装字体（Debian 中为软件包 fonts-dejavu-core）。</translation>
    </message>
    <message>
        <source>There is no default data folder: HOME has to be the full path of an existing folder, and XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir.</source>
        <translation>没有默认的数据文件夹：HOME 必须是现有文件夹的完整路径，XDG_DATA_HOME 如已设置也必须是完整路径。请更正，或用 --data-dir 指定文件夹。</translation>
    </message>
    <message>
        <source>A client is already running on the data folder %1 and has come to the front. Nobody was logged in and the password was not used: log in there, or quit that client and start again.</source>
        <translation>已有客户端在使用数据文件夹 %1，并已置于前台。没有登录任何用户，密码也未被使用：请在那里登录，或退出该客户端后重新启动。</translation>
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
    <message>
        <source>Set gesture</source>
        <translation>设置手势</translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation>删除手势</translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation>修改手势</translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation>确定删除 %1 的手势密码吗？</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>手势密码未能删除。</translation>
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
        <source>User</source>
        <translation>普通用户</translation>
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
    <message>
        <source>Simulated phone</source>
        <translation>模拟手机</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
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
    <name>kelvra_client::PhoneHandle</name>
    <message>
        <source>Open the simulated phone: something has arrived</source>
        <translation>打开模拟手机：有新内容</translation>
    </message>
    <message>
        <source>Open the simulated phone</source>
        <translation>打开模拟手机</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation>Nimbra 手机（模拟）</translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation>Nimbra 手机</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation>关闭手机</translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation>此手机上的账号</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>手机号</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation>编辑账号文件</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation>没有短信。请在登录窗口选择验证码登录，输入上面的手机号，然后获取验证码。</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>二维码</translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation>让云端拒绝此二维码</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>非法操作</translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation>非法 IP</translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation>电脑网络：已连接</translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation>电脑网络：已断开</translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation>断开后，客户端对云端的每个请求都会在几秒后失败。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation>以 %1 扫码</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>扫码</translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation>当前没有二维码。请在登录窗口选择二维码登录。</translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation>登录窗口正在显示二维码。</translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation>在电脑上以 %1 登录吗？电脑正在等待您的确认。</translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation>已确认，电脑正在以 %1 登录。</translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation>已取消。点击登录窗口中的箭头可获取新二维码。</translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation>已被云端拒绝。点击登录窗口中的箭头可获取新二维码。</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>已过期</translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation>已锁定，剩余 %1</translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation>没有可自动打开的编辑器，请自行编辑 %1。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation>发送至 %1 的短信</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>短信</translation>
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
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation>登录设置</translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation>手势密码</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>验证</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>set</source>
        <translation>已设置</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation>尚未设置手势密码。</translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation>只有本地用户才有手势密码，当前是云账号。</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation>请在下次用此账号登录时勾选“自动登录”。</translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation>确定删除您的手势密码吗？之后只能使用密码登录。</translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation>手势密码已删除。</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>手势密码未能删除。</translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation>手势密码验证通过。</translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation>手势密码未通过验证。</translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation>自动登录未能更改。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>A client of the account %2 is running on the data folder %1. Have it quit there, or name another folder with --data-dir.</source>
        <translation>账户 %2 的客户端正在使用数据文件夹 %1。请让其在那里退出，或用 --data-dir 指定另一个文件夹。</translation>
    </message>
    <message>
        <source>A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder with --data-dir.</source>
        <translation>计算机 %2 上的客户端正在使用数据文件夹 %1。请在那里退出，或用 --data-dir 指定另一个文件夹。</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but cannot be brought to the front, because another program has taken its name %3. Switch to the client&apos;s window, and end that program.</source>
        <translation>客户端已在使用数据文件夹 %1（进程 %2），但无法将其置于前台，因为其他程序占用了它的名称 %3。请切换到客户端的窗口，并结束该程序。</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its window; where it is frozen, end that process and start the client again.</source>
        <translation>客户端已在使用数据文件夹 %1（进程 %2），但没有响应。请切换到它的窗口；如果窗口没有反应，请结束该进程并重新启动客户端。</translation>
    </message>
    <message>
        <source>A second start cannot bring this client to the front, because another program has taken its name %1. End that program and start the client again.</source>
        <translation>再次启动时无法将此客户端置于前台，因为其他程序占用了它的名称 %1。请结束该程序并重新启动客户端。</translation>
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
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation>已设置</translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>手势</translation>
    </message>
</context>
<context>
    <name>kelvra_data::OwnerFolder</name>
    <message>
        <source>The data folder %1 cannot be created. Name a folder that you may write to with --data-dir.</source>
        <translation>无法创建数据文件夹 %1。请用 --data-dir 指定一个您可以写入的文件夹。</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder. Name another one with --data-dir.</source>
        <translation>数据文件夹 %1 不是文件夹。请用 --data-dir 指定另一个。</translation>
    </message>
    <message>
        <source>The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start the client as %2.</source>
        <translation>数据文件夹 %1 属于账户 %2。请用 --data-dir 指定您自己的文件夹，或以 %2 的身份启动客户端。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read. Give your account its rights back, or name another folder with --data-dir.</source>
        <translation>数据文件夹 %1 无法读取。请恢复您账户的权限，或用 --data-dir 指定另一个文件夹。</translation>
    </message>
    <message>
        <source>Other accounts can write to the data folder %1, so the client does not trust what is in it. Make sure that its files are yours and close it (%2), or name another folder with --data-dir.</source>
        <translation>其他账户可以写入数据文件夹 %1，因此客户端不信任其中的内容。请确认文件是您自己的并关闭其写入权限（%2），或用 --data-dir 指定另一个文件夹。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or name another folder with --data-dir.</source>
        <translation>数据文件夹 %1 不可写。请恢复您账户的权限、腾出磁盘空间，或用 --data-dir 指定另一个文件夹。</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
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
    <message>
        <source>The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the package libqt5sql5-sqlite).</source>
        <translation>缺少 Qt 的 SQLite 驱动程序。请重新安装客户端，或只安装该驱动程序（Debian 中为软件包 libqt5sql5-sqlite）。</translation>
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
    <name>kelvra_files::OrdinaryFile</name>
    <message>
        <source>The file %1 cannot be read; check its permissions.</source>
        <translation>文件 %1 无法读取；请检查其权限。</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes; correct it or delete it.</source>
        <translation>文件 %1 超过 %2 字节；请更正或删除该文件。</translation>
    </message>
    <message>
        <source>%1 is not a file but a folder, a pipe or a device; move it away.</source>
        <translation>%1 不是文件，而是文件夹、管道或设备；请将其移走。</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation>账号已锁定，距解锁还有（分钟）：%1</translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation>手机号码无效</translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation>云服务没有响应，请检查网络连接</translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation>模拟云服务无法使用文件 cloud_accounts.ini，请更正或删除该文件</translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation>该手机号码没有对应的账号</translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation>验证码错误，剩余尝试次数：%1</translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation>验证码已失效，请重新获取</translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation>尚未在手机上确认登录</translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation>二维码已失效</translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation>没有账号通过二维码登录</translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation>该账号没有保存自动登录</translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation>保存的登录已失效，请重新登录</translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation>该账号首次在本机登录，请使用验证码或二维码登录</translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation>密码错误，剩余尝试次数：%1</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>云服务拒绝了该请求（代码 %1，%2）</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation>文件 %1 含有非文本内容，请更正或删除。</translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation>文件 %2 的第 %1 行有误：%3。请更正该行或删除该文件。</translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation>文件 %2 中的账号 %1 没有密码。请更正或删除该文件。</translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation>文件 %1 中没有账号，请更正或删除。</translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation>手机号码为 11 位数字，且首位为 1</translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation>该手机号码重复出现</translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation>只能使用 [手机号码]、name=、password= 和注释</translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation>前面必须有方括号中的手机号码</translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation>密码至少 %1 个字符，且不含空格</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 重复出现</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation>【Nimbra】您的验证码为 %1，%2 分钟内有效，请勿告知他人。</translation>
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
