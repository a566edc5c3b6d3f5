<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AuditEvent</name>
    <message>
        <source>login success</source>
        <translation>ログイン成功</translation>
    </message>
    <message>
        <source>login failure</source>
        <translation>ログイン失敗</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>add gesture</source>
        <translation>ジェスチャーの設定</translation>
    </message>
    <message>
        <source>update gesture</source>
        <translation>ジェスチャーの変更</translation>
    </message>
    <message>
        <source>delete gesture</source>
        <translation>ジェスチャーの削除</translation>
    </message>
    <message>
        <source>open automatic login</source>
        <translation>自動ログインの有効化</translation>
    </message>
    <message>
        <source>cancel automatic login</source>
        <translation>自動ログインの無効化</translation>
    </message>
    <message>
        <source>get back password</source>
        <translation>パスワードの再取得</translation>
    </message>
    <message>
        <source>reset password</source>
        <translation>パスワードの再設定</translation>
    </message>
    <message>
        <source>export login credentials</source>
        <translation>認証情報のエクスポート</translation>
    </message>
    <message>
        <source>create user</source>
        <translation>ユーザーの作成</translation>
    </message>
    <message>
        <source>add user</source>
        <translation>ユーザーの追加</translation>
    </message>
    <message>
        <source>remove user</source>
        <translation>ユーザーの削除</translation>
    </message>
    <message>
        <source>set password</source>
        <translation>パスワードの設定</translation>
    </message>
    <message>
        <source>superuser replaced</source>
        <translation>スーパーユーザーの交代</translation>
    </message>
</context>
<context>
    <name>DictDef</name>
    <message>
        <source>Operation failed</source>
        <translation>操作の失敗</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Who was your favourite teacher?</source>
        <translation>好きだった先生の名前は？</translation>
    </message>
    <message>
        <source>What is your mother&apos;s name?</source>
        <translation>お母様の名前は？</translation>
    </message>
    <message>
        <source>What is your father&apos;s name?</source>
        <translation>お父様の名前は？</translation>
    </message>
    <message>
        <source>In which town were you born?</source>
        <translation>生まれた町は？</translation>
    </message>
    <message>
        <source>Which was your first school?</source>
        <translation>最初に通った学校は？</translation>
    </message>
    <message>
        <source>Who was your best childhood friend?</source>
        <translation>子供の頃の親友の名前は？</translation>
    </message>
    <message>
        <source>What was your first pet&apos;s name?</source>
        <translation>最初のペットの名前は？</translation>
    </message>
    <message>
        <source>What is your favourite book?</source>
        <translation>好きな本は？</translation>
    </message>
    <message>
        <source>What is your favourite film?</source>
        <translation>好きな映画は？</translation>
    </message>
    <message>
        <source>What is your favourite dish?</source>
        <translation>好きな料理は？</translation>
    </message>
    <message>
        <source>What make was your first car?</source>
        <translation>最初の車のメーカーは？</translation>
    </message>
    <message>
        <source>What was your first job?</source>
        <translation>最初の仕事は？</translation>
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
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CapsLockToolTipHandler</name>
    <message>
        <source>Caps Lock is on</source>
        <translation>Caps Lock がオンです</translation>
    </message>
</context>
<context>
    <name>kelvra_base::CommonDialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
        <translation>ユーザーの追加</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditLogWt</name>
    <message>
        <source>Audit log</source>
        <translation>監査ログ</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>件数：%1</translation>
    </message>
    <message>
        <source>The newest %1 entries</source>
        <translation>最新の%1件</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet.</source>
        <translation>記録はまだありません。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::AuditModel</name>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>by gesture</source>
        <translation>ジェスチャー</translation>
    </message>
    <message>
        <source>by password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>by cloud account</source>
        <translation>クラウドアカウント</translation>
    </message>
    <message>
        <source>automatic login from now on</source>
        <translation>次回から自動ログイン</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>%1秒間</translation>
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
        <translation>ファイル %1 に書き込めません。このファイルなしで続行します。</translation>
    </message>
    <message>
        <source>There are no fonts, so that no text can be shown. Install a font (on Debian the package fonts-dejavu-core).</source>
        <translation>フォントがないため、文字を表示できません。フォントをインストールしてください（Debian ではパッケージ fonts-dejavu-core）。</translation>
    </message>
    <message>
        <source>There is no default data folder: HOME has to be the full path of an existing folder, and XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir.</source>
        <translation>既定のデータフォルダーがありません。HOME は既存のフォルダーの完全なパス、XDG_DATA_HOME は設定されている場合は完全なパスでなければなりません。修正するか、--data-dir でフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>A client is already running on the data folder %1 and has come to the front. Nobody was logged in and the password was not used: log in there, or quit that client and start again.</source>
        <translation>クライアントはデータフォルダー %1 で既に実行中で、前面に表示されました。誰もログインしておらず、パスワードは使用されていません。そちらでログインするか、そのクライアントを終了してから起動し直してください。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::LocalUsersWt</name>
    <message>
        <source>Local users</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>パスワード設定</translation>
    </message>
    <message>
        <source>Set gesture</source>
        <translation>ジェスチャー設定</translation>
    </message>
    <message>
        <source>Delete gesture</source>
        <translation>ジェスチャー削除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Change gesture</source>
        <translation>ジェスチャー変更</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser of this client.</source>
        <translation>ローカルユーザーは、このクライアントのスーパーユーザーが管理します。</translation>
    </message>
    <message>
        <source>Local users are managed by the superuser. Ask %1 to add or remove a user, or to give you a new password.</source>
        <translation>ローカルユーザーはスーパーユーザーが管理します。ユーザーの追加や削除、新しいパスワードの発行は %1 に依頼してください。</translation>
    </message>
    <message>
        <source>There are no other local users yet. Add one, and they can log in with their own name and password.</source>
        <translation>他のローカルユーザーはまだいません。追加すると、そのユーザーは自分のユーザー名とパスワードでログインできます。</translation>
    </message>
    <message>
        <source>Delete the gesture password of %1?</source>
        <translation>%1 のジェスチャーパスワードを削除しますか？</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>ジェスチャーパスワードを削除できませんでした。</translation>
    </message>
    <message>
        <source>Remove the user %1? Their password and their gesture are deleted with them.</source>
        <translation>ユーザー %1 を削除しますか？ パスワードとジェスチャーパスワードも削除されます。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::MainWindow</name>
    <message>
        <source>Kelvra Client</source>
        <translation>Kelvra クライアント</translation>
    </message>
    <message>
        <source>Simulated phone</source>
        <translation>模擬電話機</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>現在のユーザー</translation>
    </message>
    <message>
        <source>Logged in with</source>
        <translation>ログイン方法</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>ログイン日時</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Switch user</source>
        <translation>ユーザーの切り替え</translation>
    </message>
    <message>
        <source>Get back password</source>
        <translation>パスワードを再取得</translation>
    </message>
    <message>
        <source>Export login credentials</source>
        <translation>認証情報のエクスポート</translation>
    </message>
    <message>
        <source>Superuser</source>
        <translation>スーパーユーザー</translation>
    </message>
    <message>
        <source>User</source>
        <translation>一般ユーザー</translation>
    </message>
    <message>
        <source>This user has been removed</source>
        <translation>このユーザーは削除されました</translation>
    </message>
    <message>
        <source>Cloud account</source>
        <translation>クラウドアカウント</translation>
    </message>
    <message>
        <source>Local user, by password</source>
        <translation>ローカルユーザー、パスワード</translation>
    </message>
    <message>
        <source>Local user, by gesture</source>
        <translation>ローカルユーザー、ジェスチャー</translation>
    </message>
    <message>
        <source>Local user</source>
        <translation>ローカルユーザー</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
</context>
<context>
    <name>kelvra_client::NewPwdDlg</name>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新しいパスワード</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>パスワード（確認）</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>パスワードが一致しません。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneHandle</name>
    <message>
        <source>Open the simulated phone: something has arrived</source>
        <translation>模擬電話機を開く：新着があります</translation>
    </message>
    <message>
        <source>Open the simulated phone</source>
        <translation>模擬電話機を開く</translation>
    </message>
</context>
<context>
    <name>kelvra_client::PhoneWindow</name>
    <message>
        <source>Nimbra phone (simulated)</source>
        <translation>Nimbra 電話機（模擬）</translation>
    </message>
    <message>
        <source>Nimbra phone</source>
        <translation>Nimbra 電話機</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>模擬</translation>
    </message>
    <message>
        <source>Close the phone</source>
        <translation>電話機を閉じる</translation>
    </message>
    <message>
        <source>Account on this phone</source>
        <translation>この電話機のアカウント</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>ロック解除</translation>
    </message>
    <message>
        <source>Edit accounts file</source>
        <translation>ファイルを編集</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>No message. Choose PIN in the login window, enter the number above and click “Get PIN”.</source>
        <translation>メッセージはありません。ログイン画面で「認証コード」を選び、上の番号を入力して「コードを取得」をクリックしてください。</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QRコード</translation>
    </message>
    <message>
        <source>Let the cloud refuse this code</source>
        <translation>このコードをクラウドに拒否させる</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>不正な操作</translation>
    </message>
    <message>
        <source>Illegal IP</source>
        <translation>不正なIP</translation>
    </message>
    <message>
        <source>Network of the computer: on</source>
        <translation>コンピューターの通信：オン</translation>
    </message>
    <message>
        <source>Network of the computer: off</source>
        <translation>コンピューターの通信：オフ</translation>
    </message>
    <message>
        <source>Off, whatever the client asks the cloud for fails after a few seconds.</source>
        <translation>オフの間、クライアントからクラウドへの要求はすべて数秒後に失敗します。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Scan as %1</source>
        <translation>%1 としてスキャン</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>SMS to %1</source>
        <translation>%1 宛てのSMS</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>No code on show. Choose QR Code in the login window.</source>
        <translation>コードは表示されていません。ログイン画面で「QRコード」を選んでください。</translation>
    </message>
    <message>
        <source>The login window shows a code.</source>
        <translation>ログイン画面にコードが表示されています。</translation>
    </message>
    <message>
        <source>Log in on the computer as %1? The computer waits for your answer.</source>
        <translation>コンピューターに %1 としてログインしますか？ コンピューターは応答を待っています。</translation>
    </message>
    <message>
        <source>Confirmed. The computer logs in as %1.</source>
        <translation>確認しました。コンピューターは %1 としてログインします。</translation>
    </message>
    <message>
        <source>Cancelled. Click the arrows in the login window to get a new code.</source>
        <translation>キャンセルしました。新しいコードを取得するには、ログイン画面の矢印をクリックしてください。</translation>
    </message>
    <message>
        <source>Refused by the cloud. Click the arrows in the login window to get a new code.</source>
        <translation>クラウドが拒否しました。新しいコードを取得するには、ログイン画面の矢印をクリックしてください。</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>期限切れ</translation>
    </message>
    <message>
        <source>Locked, %1 left</source>
        <translation>ロック中、残り %1</translation>
    </message>
    <message>
        <source>No editor opens by itself; edit %1.</source>
        <translation>エディターを自動で開けません。%1 を直接編集してください。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SetPwdDlg</name>
    <message>
        <source>Set password</source>
        <translation>パスワードの設定</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SignInWt</name>
    <message>
        <source>Sign-in</source>
        <translation>ログイン設定</translation>
    </message>
    <message>
        <source>Gesture password</source>
        <translation>ジェスチャーパスワード</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>set</source>
        <translation>設定済み</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>No gesture password has been set.</source>
        <translation>ジェスチャーパスワードは設定されていません。</translation>
    </message>
    <message>
        <source>Only local users have a gesture password; this is a cloud account.</source>
        <translation>ジェスチャーパスワードはローカルユーザー専用です。これはクラウドアカウントです。</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Choose “Automatic Logon” when you log in with this account the next time.</source>
        <translation>次回このアカウントでログインするときに「自動ログイン」を選択してください。</translation>
    </message>
    <message>
        <source>Delete your gesture password? You then log in with your password only.</source>
        <translation>ジェスチャーパスワードを削除しますか？ 以後はパスワードでのみログインできます。</translation>
    </message>
    <message>
        <source>The gesture password has been deleted.</source>
        <translation>ジェスチャーパスワードを削除しました。</translation>
    </message>
    <message>
        <source>The gesture password could not be deleted.</source>
        <translation>ジェスチャーパスワードを削除できませんでした。</translation>
    </message>
    <message>
        <source>The gesture password has been verified.</source>
        <translation>ジェスチャーパスワードを確認しました。</translation>
    </message>
    <message>
        <source>The gesture password was not verified.</source>
        <translation>ジェスチャーパスワードを確認できませんでした。</translation>
    </message>
    <message>
        <source>The automatic login could not be changed.</source>
        <translation>自動ログインを変更できませんでした。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::SingleInstance</name>
    <message>
        <source>A client of the account %2 is running on the data folder %1. Have it quit there, or name another folder with --data-dir.</source>
        <translation>アカウント %2 のクライアントがデータフォルダー %1 で実行中です。そちらで終了してもらうか、--data-dir で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder with --data-dir.</source>
        <translation>コンピューター %2 のクライアントがデータフォルダー %1 で実行中です。そちらで終了するか、--data-dir で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but cannot be brought to the front, because another program has taken its name %3. Switch to the client&apos;s window, and end that program.</source>
        <translation>クライアントはデータフォルダー %1 で既に実行中ですが（プロセス %2）、別のプログラムが名前 %3 を使用しているため、前面に表示できません。クライアントのウィンドウに切り替え、そのプログラムを終了してください。</translation>
    </message>
    <message>
        <source>The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its window; where it is frozen, end that process and start the client again.</source>
        <translation>クライアントはデータフォルダー %1 で既に実行中ですが（プロセス %2）、応答がありません。そのウィンドウに切り替えてください。動かない場合は、そのプロセスを終了してクライアントを起動し直してください。</translation>
    </message>
    <message>
        <source>A second start cannot bring this client to the front, because another program has taken its name %1. End that program and start the client again.</source>
        <translation>別のプログラムが名前 %1 を使用しているため、再度起動してもこのクライアントを前面に表示できません。そのプログラムを終了し、クライアントを起動し直してください。</translation>
    </message>
</context>
<context>
    <name>kelvra_client::UsersModel</name>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>set</source>
        <comment>gesture</comment>
        <translation>設定済み</translation>
    </message>
    <message>
        <source>not set</source>
        <comment>gesture</comment>
        <translation>未設定</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Last login</source>
        <translation>最終ログイン</translation>
    </message>
    <message>
        <source>Automatic login</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>ジェスチャー</translation>
    </message>
</context>
<context>
    <name>kelvra_data::OwnerFolder</name>
    <message>
        <source>The data folder %1 cannot be created. Name a folder that you may write to with --data-dir.</source>
        <translation>データフォルダー %1 を作成できません。書き込みできるフォルダーを --data-dir で指定してください。</translation>
    </message>
    <message>
        <source>The data folder %1 is not a folder. Name another one with --data-dir.</source>
        <translation>データフォルダー %1 はフォルダーではありません。--data-dir で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The data folder %1 belongs to the account %2. Name a folder of your own with --data-dir, or start the client as %2.</source>
        <translation>データフォルダー %1 はアカウント %2 のものです。--data-dir で自分のフォルダーを指定するか、%2 としてクライアントを起動してください。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be read. Give your account its rights back, or name another folder with --data-dir.</source>
        <translation>データフォルダー %1 を読み込めません。アカウントに権限を戻すか、--data-dir で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Other accounts can write to the data folder %1, so the client does not trust what is in it. Make sure that its files are yours and close it (%2), or name another folder with --data-dir.</source>
        <translation>ほかのアカウントがデータフォルダー %1 に書き込めるため、その内容は信頼できません。ファイルが自分のものであることを確認して閉じるか（%2）、--data-dir で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The data folder %1 cannot be written to. Give your account its rights back or make room on the disk, or name another folder with --data-dir.</source>
        <translation>データフォルダー %1 に書き込めません。アカウントに権限を戻すか、ディスクの空きを増やすか、--data-dir で別のフォルダーを指定してください。</translation>
    </message>
</context>
<context>
    <name>kelvra_data::Store</name>
    <message>
        <source>The database %1 cannot be opened.</source>
        <translation>データベース %1 を開けません。</translation>
    </message>
    <message>
        <source>The database %1 cannot be read; another program may be using it.</source>
        <translation>データベース %1 を読み込めません。別のプログラムが使用している可能性があります。</translation>
    </message>
    <message>
        <source>The database %1 is damaged.</source>
        <translation>データベース %1 は破損しています。</translation>
    </message>
    <message>
        <source>The database %1 belongs to another program.</source>
        <translation>データベース %1 は別のプログラムのものです。</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer version of this program.</source>
        <translation>データベース %1 は、このプログラムの新しいバージョンで書き込まれています。</translation>
    </message>
    <message>
        <source>The key file %1 is missing; the database cannot be opened without it.</source>
        <translation>キーファイル %1 がありません。このファイルがないとデータベースを開けません。</translation>
    </message>
    <message>
        <source>The key file %1 cannot be written.</source>
        <translation>キーファイル %1 に書き込めません。</translation>
    </message>
    <message>
        <source>The key file %1 is damaged: it does not have %2 bytes.</source>
        <translation>キーファイル %1 は破損しています：サイズが%2バイトではありません。</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read.</source>
        <translation>キーファイル %1 を読み込めません。</translation>
    </message>
    <message>
        <source>The key file does not belong to the database beside it.</source>
        <translation>キーファイルが同じフォルダーのデータベースと一致しません。</translation>
    </message>
    <message>
        <source>The database cannot be written to.</source>
        <translation>データベースに書き込めません。</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the package libqt5sql5-sqlite).</source>
        <translation>Qt の SQLite ドライバーがありません。クライアントを再インストールするか、このドライバーだけをインストールしてください（Debian ではパッケージ libqt5sql5-sqlite）。</translation>
    </message>
</context>
<context>
    <name>kelvra_data::UserAdmin</name>
    <message>
        <source>Please enter a user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>The user name must not contain spaces or control characters.</source>
        <translation>ユーザー名に空白や制御文字は使用できません。</translation>
    </message>
    <message>
        <source>The user name must not be longer than %1 characters.</source>
        <translation>ユーザー名は%1文字以内で入力してください。</translation>
    </message>
    <message>
        <source>This user name is already in use.</source>
        <translation>このユーザー名は既に使用されています。</translation>
    </message>
    <message>
        <source>Please enter a password.</source>
        <translation>パスワードを入力してください。</translation>
    </message>
    <message>
        <source>The password must not contain spaces or control characters.</source>
        <translation>パスワードに空白や制御文字は使用できません。</translation>
    </message>
    <message>
        <source>The password must not be longer than %1 characters.</source>
        <translation>パスワードは%1文字以内で入力してください。</translation>
    </message>
    <message>
        <source>This user no longer exists.</source>
        <translation>このユーザーはもう存在しません。</translation>
    </message>
    <message>
        <source>The change could not be stored.</source>
        <translation>変更を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>kelvra_files::OrdinaryFile</name>
    <message>
        <source>The file %1 cannot be read; check its permissions.</source>
        <translation>ファイル %1 を読み込めません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes; correct it or delete it.</source>
        <translation>ファイル %1 は %2 バイトを超えています。修正するか削除してください。</translation>
    </message>
    <message>
        <source>%1 is not a file but a folder, a pipe or a device; move it away.</source>
        <translation>%1 はファイルではなく、フォルダー、パイプ、またはデバイスです。別の場所に移動してください。</translation>
    </message>
</context>
<context>
    <name>kelvra_saas</name>
    <message>
        <source>The account is locked; minutes until it is unlocked: %1</source>
        <translation>アカウントがロックされています（解除まで%1分）</translation>
    </message>
    <message>
        <source>The mobile phone number is not valid</source>
        <translation>携帯電話番号が無効です</translation>
    </message>
    <message>
        <source>The cloud service does not answer; check the network connection</source>
        <translation>クラウドサービスが応答しません。ネットワーク接続を確認してください</translation>
    </message>
    <message>
        <source>The simulated cloud cannot use its file cloud_accounts.ini; correct the file or delete it</source>
        <translation>模擬クラウドがファイル cloud_accounts.ini を使用できません。ファイルを修正するか削除してください</translation>
    </message>
    <message>
        <source>There is no account with this mobile phone number</source>
        <translation>この携帯電話番号のアカウントはありません</translation>
    </message>
    <message>
        <source>The verification code is wrong; attempts left: %1</source>
        <translation>認証コードが正しくありません（残り%1回）</translation>
    </message>
    <message>
        <source>The verification code is no longer valid; get a new one</source>
        <translation>認証コードの有効期限が切れています。新しいコードを取得してください</translation>
    </message>
    <message>
        <source>The login has not been confirmed on the phone</source>
        <translation>電話機でログインが確認されていません</translation>
    </message>
    <message>
        <source>The QR code is no longer valid</source>
        <translation>QRコードの有効期限が切れています</translation>
    </message>
    <message>
        <source>No account has logged in by QR code</source>
        <translation>QRコードでログインしたアカウントはありません</translation>
    </message>
    <message>
        <source>No automatic login is stored for this account</source>
        <translation>このアカウントの自動ログイン情報は保存されていません</translation>
    </message>
    <message>
        <source>The stored login is no longer valid; log in once more</source>
        <translation>保存されたログイン情報は無効になりました。もう一度ログインしてください</translation>
    </message>
    <message>
        <source>This computer is new to the account; log in by verification code or QR code</source>
        <translation>このコンピューターからの初めてのログインです。認証コードまたはQRコードでログインしてください</translation>
    </message>
    <message>
        <source>The password is wrong; attempts left: %1</source>
        <translation>パスワードが正しくありません（残り%1回）</translation>
    </message>
    <message>
        <source>The cloud service has refused the request (code %1, %2)</source>
        <translation>クラウドサービスが要求を拒否しました（コード %1、%2）</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::AccountsFile</name>
    <message>
        <source>The file %1 holds something else than text; correct it or delete it.</source>
        <translation>ファイル %1 にテキスト以外の内容が含まれています。修正するか削除してください。</translation>
    </message>
    <message>
        <source>Line %1 of the file %2 makes no sense: %3. Correct it or delete the file.</source>
        <translation>ファイル %2 の%1行目が正しくありません：%3。行を修正するか、ファイルを削除してください。</translation>
    </message>
    <message>
        <source>The account %1 in the file %2 has no password. Correct it or delete the file.</source>
        <translation>ファイル %2 のアカウント %1 にパスワードがありません。修正するか、ファイルを削除してください。</translation>
    </message>
    <message>
        <source>The file %1 holds no account; correct it or delete it.</source>
        <translation>ファイル %1 にアカウントがありません。修正するか削除してください。</translation>
    </message>
    <message>
        <source>a phone number has eleven digits, the first of them 1</source>
        <translation>電話番号は1で始まる11桁の数字です</translation>
    </message>
    <message>
        <source>this phone number is there twice</source>
        <translation>この電話番号は重複しています</translation>
    </message>
    <message>
        <source>only [phone number], name=, password= and comments are known</source>
        <translation>使用できるのは [電話番号]、name=、password=、コメントのみです</translation>
    </message>
    <message>
        <source>a phone number in brackets must come first</source>
        <translation>先に角かっこで囲んだ電話番号が必要です</translation>
    </message>
    <message>
        <source>a password has at least %1 characters and no spaces</source>
        <translation>パスワードは空白を含まない%1文字以上です</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 が重複しています</translation>
    </message>
</context>
<context>
    <name>kelvra_saas::SmsCodes</name>
    <message>
        <source>[Nimbra] %1 is your verification code. It is valid for %2 minutes; do not pass it on.</source>
        <translation>[Nimbra] 認証コードは %1 です。有効期間は%2分です。他の人に教えないでください。</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::AuditTrail</name>
    <message>
        <source>The audit log cannot be written; events go unrecorded.</source>
        <translation>監査ログに書き込めません。以後のイベントは記録されません。</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::IniFile</name>
    <message>
        <source>The file %1 is damaged; correct it or delete it.</source>
        <translation>ファイル %1 は破損しています。修正するか削除してください。</translation>
    </message>
    <message>
        <source>The value of %1 in the file %2 makes no sense; correct it or delete it.</source>
        <translation>ファイル %2 の %1 の値が正しくありません。修正するか削除してください。</translation>
    </message>
</context>
<context>
    <name>kelvra_worker::UiSettings</name>
    <message>
        <source>Settings cannot be written to %1; changes last until the client ends.</source>
        <translation>設定を %1 に書き込めません。変更はクライアントの終了まで有効です。</translation>
    </message>
</context>
</TS>
