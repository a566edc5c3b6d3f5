<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>kelvra_login::AddGesturePwdDlg</name>
    <message>
        <source>Please set your gesture password to log in</source>
        <translation>ログイン用ジェスチャーを設定してください</translation>
    </message>
    <message>
        <source>First input gesture</source>
        <translation>ジェスチャーを描いてください</translation>
    </message>
    <message>
        <source>Second input gesture</source>
        <translation>もう一度描いてください</translation>
    </message>
    <message>
        <source>Too simple gesture:at least 4 points</source>
        <translation>単純すぎます。4点以上をつないでください</translation>
    </message>
    <message>
        <source>Successfully set gesture password</source>
        <translation>ジェスチャーパスワードを設定しました</translation>
    </message>
    <message>
        <source>Add Gesture Password Login</source>
        <translation>ジェスチャーパスワードの設定</translation>
    </message>
    <message>
        <source>The gesture passwords entered twice are inconsistent</source>
        <translation>2回のジェスチャーが一致しません</translation>
    </message>
    <message>
        <source>The gesture password is too simple,you should connect at least 4 points</source>
        <translation>単純すぎます。4点以上をつないでください</translation>
    </message>
    <message>
        <source>Failed to update gesture password</source>
        <translation>ジェスチャーを変更できませんでした</translation>
    </message>
    <message>
        <source>Failed to add gesture password</source>
        <translation>ジェスチャーを設定できませんでした</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CloudPageParts</name>
    <message>
        <source>Phone Number</source>
        <translation>電話番号</translation>
    </message>
    <message>
        <source>Illegal mobile phone number</source>
        <translation>携帯電話番号が正しくありません</translation>
    </message>
    <message>
        <source>Logging in...</source>
        <translation>ログイン中...</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
</context>
<context>
    <name>kelvra_login::CreateSuperUserWt</name>
    <message>
        <source>CreateSuperUserWt</source>
        <translation>スーパーユーザーの作成</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Create a  new local superuser</source>
        <translation>ローカルスーパーユーザーの新規作成</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>ユーザー名を入力してください（空白のみは不可）。</translation>
    </message>
    <message>
        <source>User name already exists!</source>
        <translation>このユーザー名は既に存在します。</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>パスワードが条件を満たしていません。</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>パスワードが一致しません。</translation>
    </message>
    <message>
        <source>Super User Name</source>
        <translation>スーパーユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>パスワード（確認）</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureLoginWt</name>
    <message>
        <source>GestureLoginWt</source>
        <translation>ジェスチャーログイン</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>Pwd Login</source>
        <translation>パスワードでログイン</translation>
    </message>
    <message>
        <source>gesture error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>ジェスチャーが正しくありません。失敗できるのは%1回までで、現在%2回失敗しています</translation>
    </message>
    <message>
        <source>Failed:%1 times, Remaining:%2 times</source>
        <translation>失敗：%1回、残り：%2回</translation>
    </message>
    <message>
        <source>Account %1 not exist</source>
        <translation>アカウント %1 は存在しません</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GesturePanel</name>
    <message>
        <source>GesturePanel</source>
        <translation>ジェスチャーパネル</translation>
    </message>
    <message>
        <source>Gesture pad</source>
        <translation>ジェスチャーパッド</translation>
    </message>
    <message>
        <source>Drag the mouse over the dots to connect them</source>
        <translation>マウスでドットの上をドラッグしてつなぎます</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GestureVerifyDlg</name>
    <message>
        <source>Gesture Verify</source>
        <translation>ジェスチャーパスワードの確認</translation>
    </message>
</context>
<context>
    <name>kelvra_login::GetbackPwdDlg</name>
    <message>
        <source>Please answer questions or</source>
        <translation>質問に答えるか</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;認証情報を読み込んでください&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message>
        <source>Get Back</source>
        <translation>再取得</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Get Back Password</source>
        <translation>パスワードの再取得</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>秘密の質問の答えが正しくありません</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginAccess</name>
    <message>
        <source>Failed to export login credentials</source>
        <translation>認証情報ファイルをエクスポートできませんでした</translation>
    </message>
    <message>
        <source>Export login credentials success, you can get back or reset password using login credentials</source>
        <translation>認証情報ファイルをエクスポートしました。このファイルでパスワードの再取得や再設定ができます</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginDlg</name>
    <message>
        <source>LoginDlg</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodBt</name>
    <message>
        <source>Use Default Superuser</source>
        <translation>既定のスーパーユーザー</translation>
    </message>
    <message>
        <source>User:admin Password:468024, low security</source>
        <translation>ユーザー名 admin、パスワード 468024、安全性：低</translation>
    </message>
    <message>
        <source>Create New Superuser</source>
        <translation>新規スーパーユーザー</translation>
    </message>
    <message>
        <source>Customize user and password, high security</source>
        <translation>ユーザー名とパスワードを任意に設定（安全性：高）</translation>
    </message>
    <message>
        <source>Login Nimbra App User</source>
        <translation>Nimbra App でログイン</translation>
    </message>
    <message>
        <source>Login via phone number or scan QR code</source>
        <translation>電話番号またはQRコードを使用</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginMethodSelWt</name>
    <message>
        <source>LoginMethodSelWt</source>
        <translation>ログイン方法の選択</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Local default superuser is not available</source>
        <translation>既定のローカルスーパーユーザーは使用できません</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWorker</name>
    <message>
        <source>The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password</source>
        <translation>アカウントは%1分間ロックされています。Nimbra App の「パスワードをお忘れの方」でロックを解除できます</translation>
    </message>
    <message>
        <source>Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be locked for %4 minutes</source>
        <translation>現在の失敗：%1回。今後%2秒以内にさらに%3回失敗すると、アカウントが%4分間ロックされます</translation>
    </message>
    <message>
        <source>Select Login Credentials</source>
        <translation>認証情報ファイルの選択</translation>
    </message>
    <message>
        <source>Login credentials file is illegal</source>
        <translation>認証情報ファイルの形式が正しくありません</translation>
    </message>
    <message>
        <source>Failed to open login credentials file</source>
        <translation>認証情報ファイルを開けませんでした</translation>
    </message>
    <message>
        <source>Login credentials file is invalid</source>
        <translation>認証情報ファイルが無効です</translation>
    </message>
</context>
<context>
    <name>kelvra_login::LoginWt</name>
    <message>
        <source>LoginWt</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
</context>
<context>
    <name>kelvra_login::NormalLoginWt</name>
    <message>
        <source>NormalLoginWt</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Local User</source>
        <translation>ローカルユーザー</translation>
    </message>
    <message>
        <source>Nimbra User</source>
        <translation>Nimbra ユーザー</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>ジェスチャー</translation>
    </message>
    <message>
        <source>Forgot?</source>
        <translation>お忘れの方</translation>
    </message>
    <message>
        <source>Create New User</source>
        <translation>新規ユーザー</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Nimbra account auto login failure:%1</source>
        <translation>Nimbra アカウントで自動ログインできませんでした：%1</translation>
    </message>
    <message>
        <source>Password can not be empty!</source>
        <translation>パスワードを入力してください。</translation>
    </message>
    <message>
        <source>user name or user password error, a maximum of %1 failures are allowed, now failed %2 times</source>
        <translation>ユーザー名またはパスワードが正しくありません。失敗できるのは%1回までで、現在%2回失敗しています</translation>
    </message>
    <message>
        <source>Locked, Wait:%1Sec.</source>
        <translation>ロック中、残り%1秒</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>ユーザー名を入力してください（空白のみは不可）。</translation>
    </message>
    <message>
        <source>User not exist!</source>
        <translation>ユーザーが存在しません。</translation>
    </message>
    <message>
        <source>Please contact the administrator to obtain the password</source>
        <translation>パスワードについては管理者にお問い合わせください</translation>
    </message>
    <message>
        <source>The current account is not configured with gesture password login</source>
        <translation>このアカウントにはジェスチャーパスワードが設定されていません</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PageParts</name>
    <message>
        <source>answer can not be empty or be all blank!</source>
        <translation>答えを入力してください（空白のみは不可）。</translation>
    </message>
</context>
<context>
    <name>kelvra_login::PwdTipWt</name>
    <message>
        <source>PwdTipWt</source>
        <translation>パスワードの条件</translation>
    </message>
    <message>
        <source>Only two or more combinations of numbers, lowercase letters, uppercase letters and special characters can be used</source>
        <translation>数字、英小文字、英大文字、記号のうち2種類以上を組み合わせてください</translation>
    </message>
    <message>
        <source>Password length:8-16</source>
        <translation>パスワードの長さ：8～16文字</translation>
    </message>
    <message>
        <source>The password cannot be the same as or opposite to the user name</source>
        <translation>ユーザー名と同じもの、または逆順にしたものは使用できません</translation>
    </message>
</context>
<context>
    <name>kelvra_login::QRCodeLoginPanel</name>
    <message>
        <source>QRCodeLoginPanel</source>
        <translation>QRコードログイン</translation>
    </message>
    <message>
        <source>Nimbra App Code scanning login</source>
        <translation>Nimbra App でスキャンしてログイン</translation>
    </message>
    <message>
        <source>Get QR Code Failure</source>
        <translation>QRコードを取得できません</translation>
    </message>
    <message>
        <source>Get login QR code failure:%1</source>
        <translation>ログイン用QRコードを取得できませんでした：%1</translation>
    </message>
    <message>
        <source>QR Code Invalid</source>
        <translation>QRコードは無効です</translation>
    </message>
    <message>
        <source>Check Status Failure</source>
        <translation>状態を確認できません</translation>
    </message>
    <message>
        <source>Check login QR code status failure:%1</source>
        <translation>ログイン用QRコードの状態を確認できませんでした：%1</translation>
    </message>
    <message>
        <source>Scanned, confirming</source>
        <translation>スキャン済み、確認待ちです</translation>
    </message>
    <message>
        <source>Scanned, cancel login</source>
        <translation>ログインはキャンセルされました</translation>
    </message>
    <message>
        <source>Illegal operation</source>
        <translation>不正な操作です</translation>
    </message>
    <message>
        <source>Illegal ip</source>
        <translation>不正なIPアドレスです</translation>
    </message>
    <message>
        <source>QR Code Login Failure</source>
        <translation>QRコードでログインできません</translation>
    </message>
    <message>
        <source>Check QR code login result failure:%1</source>
        <translation>QRコードのログイン結果を確認できませんでした：%1</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>QRコード</translation>
    </message>
    <message>
        <source>Refresh QR code</source>
        <translation>QRコードを更新</translation>
    </message>
</context>
<context>
    <name>kelvra_login::ResetSuperUserPwdWt</name>
    <message>
        <source>ResetSuperUserPwdWt</source>
        <translation>パスワードの再設定</translation>
    </message>
    <message>
        <source>Welcome to login</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Please reset a new password</source>
        <translation>新しいパスワードを設定してください</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>User name can not be empty or be all blank!</source>
        <translation>ユーザー名を入力してください（空白のみは不可）。</translation>
    </message>
    <message>
        <source>Illegal password!</source>
        <translation>パスワードが条件を満たしていません。</translation>
    </message>
    <message>
        <source>The two passwords are not the same!</source>
        <translation>パスワードが一致しません。</translation>
    </message>
    <message>
        <source>reset [%1] pwd failed</source>
        <translation>[%1] のパスワードを再設定できませんでした</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>パスワード（確認）</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasPwdLoginWt</name>
    <message>
        <source>SaasPwdLoginWt</source>
        <translation>クラウドアカウント：パスワード</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>認証コード</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QRコード</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Invalid password</source>
        <translation>パスワードが無効です</translation>
    </message>
    <message>
        <source>It is currently a non secure terminal,Please log in as a verification code</source>
        <translation>この端末は信頼されていません。認証コードでログインしてください</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Nimbra アカウントでログインできませんでした：%1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasScanQRCodeLoginWt</name>
    <message>
        <source>SaasScanQRCodeLoginWt</source>
        <translation>クラウドアカウント：QRコード</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>認証コード</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Get logged in account failure:%1</source>
        <translation>ログインしたアカウントを取得できませんでした：%1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SaasVerificationCodeLoginWt</name>
    <message>
        <source>SaasVerificationCodeLoginWt</source>
        <translation>クラウドアカウント：認証コード</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>認証コード</translation>
    </message>
    <message>
        <source>Get PIN</source>
        <translation>コードを取得</translation>
    </message>
    <message>
        <source>Automatic Logon</source>
        <translation>自動ログイン</translation>
    </message>
    <message>
        <source>PWD</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>QR Code</source>
        <translation>QRコード</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60秒</translation>
    </message>
    <message>
        <source>Get verificaion code success, please check the verification code on your mobile phone</source>
        <translation>認証コードを送信しました。携帯電話でご確認ください</translation>
    </message>
    <message>
        <source>Get verificaion code failed:invalid mobile number(%1)</source>
        <translation>認証コードを取得できませんでした：携帯電話番号が無効です（%1）</translation>
    </message>
    <message>
        <source>Get verificaion code failed:%1</source>
        <translation>認証コードを取得できませんでした：%1</translation>
    </message>
    <message>
        <source>Get Verification Code</source>
        <translation>コードを取得</translation>
    </message>
    <message>
        <source>%1S</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>Invalid verification code</source>
        <translation>認証コードが無効です</translation>
    </message>
    <message>
        <source>Nimbra account login failure:invalid account</source>
        <translation>Nimbra アカウントでログインできませんでした：アカウントが無効です</translation>
    </message>
    <message>
        <source>Nimbra account login failure:%1</source>
        <translation>Nimbra アカウントでログインできませんでした：%1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SecretAnswersWt</name>
    <message>
        <source>SecretAnswersWt</source>
        <translation>秘密の質問</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>質問1の答えを入力してください</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>質問2の答えを入力してください</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>質問3の答えを入力してください</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SetSecretAnswerWt</name>
    <message>
        <source>SetSecretAnswerWt</source>
        <translation>秘密の質問の設定</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>パスワードの保護</translation>
    </message>
    <message>
        <source>Please set the security question</source>
        <translation>秘密の質問を設定してください</translation>
    </message>
    <message>
        <source>Please enter the answer to question 1</source>
        <translation>質問1の答えを入力してください</translation>
    </message>
    <message>
        <source>Please enter the answer to question 2</source>
        <translation>質問2の答えを入力してください</translation>
    </message>
    <message>
        <source>Please enter the answer to question 3</source>
        <translation>質問3の答えを入力してください</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Failed to create super user</source>
        <translation>スーパーユーザーを作成できませんでした</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Question %1</source>
        <translation>質問 %1</translation>
    </message>
</context>
<context>
    <name>kelvra_login::SplashScreen</name>
    <message>
        <source>SplashScreen</source>
        <translation>起動中</translation>
    </message>
    <message>
        <source>System Data Loading...</source>
        <translation>システムデータを読み込み中...</translation>
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
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>ユーザー名</translation>
    </message>
</context>
<context>
    <name>kelvra_login::UserPwdWt</name>
    <message>
        <source>UserPwdWt</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>パスワードを表示</translation>
    </message>
</context>
<context>
    <name>kelvra_login::VerifySecretAnswerWt</name>
    <message>
        <source>VerifySecretAnswerWt</source>
        <translation>秘密の質問の確認</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>パスワードの保護</translation>
    </message>
    <message>
        <source>Please answer questions or</source>
        <translation>質問に答えるか</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;import Credentials&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; text-decoration: underline;&quot;&gt;認証情報を読み込んでください&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;Create New User&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:9pt; text-decoration: underline;&quot;&gt;新規ユーザー&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>verify user answers failed</source>
        <translation>秘密の質問の答えが正しくありません</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
</TS>
