<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>フルイメージのインストールを実行しようとしています。</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>新しいイメージをインストールすると再起動が行われ、シンクライアント上の既存のディスクイメージは、すべての設定を含めて完全に消去されます。続行しますか?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>処理中...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>インストーラーの出力</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v / %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>更新をインストールしています...</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  完了</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(出力の先頭部分は省略されています。)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>プロセスを開始できませんでした。</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>プロセスがクラッシュしました。</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>プロセスがタイムアウトしました。</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>プロセスからの読み取り中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>プロセスへの書き込み中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>不明なプロセスエラーです。</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>インストーラーの出力を表示します。</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>インストール済み</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>再起動時にインストールされます</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>インストール済み、ただしシステムでは確認できません</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未実行</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>証明書を受け入れる</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>証明書を拒否する</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>証明書</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>証明書を検証できませんでした:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>発行先</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>一般名:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>組織:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>部門:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>シリアル番号:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>発行元</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>発行日:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>有効期限:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>フィンガープリント</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>SHA1 フィンガープリント:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>MD5 フィンガープリント:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>SHA256 フィンガープリント:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>備考</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>他 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>タイトル:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>バージョン:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>対象リリース:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>更新のサイズ:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>展開後のサイズ:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>インストール後のサイズ:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>サービスパックの内容: </translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <comment>KiB = kibibyte:  1024 bytes</comment>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <comment>MiB = mebibyte:  1024*1024 bytes</comment>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <comment>GiB = gibibyte:  1024*1024*1024 bytes</comment>
        <translation>%1 GiB</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>日本語</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>FTP ホスト名 「%1」 を解決できませんでした。</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>操作はキャンセルされました</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>URI が存在しません</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>URI はディレクトリではありません</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>ディレクトリを読み取れません</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>プロトコルがディレクトリの読み取りに対応していません</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>ディレクトリの一覧が大きすぎます</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>FTP の処理がタイムアウトしました</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>操作はキャンセルされました</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>認証に失敗しました</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>FTP ホストへの接続が拒否されました</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>サーバーの証明書は失効しています</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Ravel の詳細オプション</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>リポジトリの URI の変更やインターネットプロキシの設定など、Ravel の詳細オプションです。</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>リポジトリの場所</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>Ravel のリポジトリの URI</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>ネットワークプロキシ</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>インターネット接続用のプロキシサーバー</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>このページでは、更新リポジトリの URI をローカルまたはお客様固有の値に変更できます。既定値は、シンクライアント用の更新を提供する CV の標準リポジトリです。</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;この種類の更新はありません。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>なし(&amp;N)</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>取得</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>ユーザー名: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>パスワード: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>リポジトリからデータを取得しています&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>次の場所にアクセスするには認証が必要です &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>リポジトリからデータを取得できませんでした&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>次のプロキシを使用するには認証が必要です &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>URI 「%1」 へのネットワーク接続が拒否されました。リモートサーバーは要求を受け付けていません。</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>URI 「%1」 のリモートサーバーが、処理の完了前に接続を閉じました。</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>URI 「%1」 のホストが見つかりませんでした。URI、ネットワーク、ファイアウォール、DNS を確認してください。</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>URI 「%1」 のサーバーとの通信がタイムアウトしました。URI、ネットワーク、ファイアウォール、DNS を確認してください。</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>URI 「%1」 の取得が中止されました。</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>URI 「%1」 に対して SSL/TLS による安全な通信路を確立できませんでした。</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>URI 「%1」 への接続中にネットワークエラーが発生しました。URI のすべての部分は有効ですか? ネットワークは正常ですか?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>URI 「%1」 のためにプロキシサーバーへの接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>URI 「%1」 のプロキシサーバーが途中で接続を閉じました。</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>URI 「%1」 のプロキシサーバーに接続できませんでした。プロキシの設定、URI、ネットワーク、ファイアウォール、DNS を確認してください。</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>URI 「%1」 のプロキシサーバーとの通信がタイムアウトしました。</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>URI 「%1」 のプロキシサーバーでの認証に失敗しました。プロキシサーバーに渡す認証情報を確認してください。</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>URI 「%1」 のプロキシサーバーへの接続中にネットワークエラーが発生しました。</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI 「%1」 へのアクセスが拒否されました。URI は有効ですか? 内容は読み取り可能ですか?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI 「%1」 の内容を取得できませんでした。URI は有効ですか? 内容は読み取り可能ですか?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI 「%1」 が見つかりませんでした。URI は有効ですか? 内容は読み取り可能ですか?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>URI 「%1」 にアクセスするには認証が必要です。URI と、指定したユーザー名やパスワードを確認してください。</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>URI 「%1」 の内容を再送する必要がありますが、その内容はもう利用できません。</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>URI 「%1」 から取得した内容の処理中にエラーが発生しました</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>URI 「%1」 のプロトコルはこのプログラムでは使用できません。</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>URI 「%1」 のプロトコルでは内容を取得できませんでした。</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>URI 「%1」 のプロトコルで、クライアントとサーバー間のハンドシェイクを完了できませんでした。</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>予期しないネットワークエラー 「%1」 が URI 「%2」 で発生しました。</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>メッセージ</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>未終了</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>インストール済み</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>再起動時にインストールされます</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>インストール済み、未確認</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未実行</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>インストール履歴</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>インストールした更新</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>From</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>To</source>
        <translation>更新後</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>最新の項目だけが表示されています。</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>破損しているため表示できない項目があります。</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>インストール履歴(&amp;T)</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>待機しています (あと %n 秒)...</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>パッケージデータベースを修復しています...</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>RVMainPage</name>
    <message>
        <source>Ravel</source>
        <translation>Ravel</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel を使うと、シンクライアントのソフトウェアに最新の更新をインストールできます</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; では次のものをインストールできます:&lt;ol&gt;  &lt;li&gt;完全なソフトウェアイメージ&lt;/li&gt;  &lt;li&gt;ソフトウェアをまとめたサービスパック&lt;/li&gt;  &lt;li&gt;個々のパッケージの更新&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Ravel はカスタマイズできます。リポジトリの場所には、CV の標準の更新サイト、会社や拠点のリポジトリ、さらにはローカルストレージも指定できます。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>修復できませんでした。これらのパッケージは削除できます。削除せずに再インストールする場合は、キャンセルしてからこれらのパッケージを選択してください。</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>ネットワークプロキシ</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>ネットワークプロキシを選択するオプション</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>プロキシなし</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>手動プロキシ設定:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>すべてに同じプロキシを使用</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>スキーム</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>接続の種類 (HTTP、FTP など)</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>ネットワークのポート番号</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>%1 のポートは 1 から 65535 までの数値で指定してください。</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>%1 を読み戻せません: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 の内容が、書き込んだものと異なります。</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>このシステムにインストールできるのは管理者だけです。</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>プログラムを root として起動してください。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 には %2 が必要ですが、インストールされていません。</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>先に %2 をインストールするか、%1 と一緒にインストールしてください。</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 には %2 が必要ですが、バージョン %3 がインストールされています。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 には %2 が必要ですが、設定されていません。</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>先に %2 を再インストールしてください。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 には %2 が必要ですが、一部しかインストールされていません。</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 と %2 の両方をインストールすることはできません。</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>どちらか一方だけをインストールするか、先に一方を削除してください。</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 をインストールすると、インストール済みの %2 が使用できなくなります。</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>先に %2 を更新または削除してください。</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>パッケージに、%2 に属する 「%1」 が含まれています。</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>先に %2 を更新または削除するか、修正されたパッケージを発行元に依頼してください。</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>ディスクに空き領域がありません。</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>空き領域を増やしてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>システムは読み取り専用です。</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>書き込み可能にしてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>システムは読み取り専用で、「%1」 を実行しても変わりませんでした。</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>「%1」 を実行して原因を確認してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>システムが 「%1」 の変更を許可していません。</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>そのファイルの属性を確認してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>パッケージファイル 「%1」 は不完全です。</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>もう一度試してください。再び発生する場合は、リポジトリのファイルが破損しています。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>パッケージファイル 「%1」 は破損しています。</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>ファイル 「%1」 は Debian パッケージではありません。</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>リポジトリの管理者にファイルの差し替えを依頼してください。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>パッケージファイル 「%1」 は、このシステムでは読み取れない形式です。</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>先に dpkg を更新するか、このシステム用のパッケージを発行元に依頼してください。</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>「%1」 の制御データに誤りがあります。</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>修正されたパッケージを発行元に依頼してください。</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>パッケージは %1 用ですが、このシステムは %2 です。</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>%2 用のパッケージをインストールしてください。</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>%1 は、%3 より新しいバージョン %2 がインストールされています。</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>古いバージョンにする場合は、先に %1 を削除してください。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>%1 のスクリプト 「%2」 が終了コード %3 で失敗しました。</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>インストーラーの出力に原因が示されている場合があります。示されていない場合は、%1 の発行元に問い合わせてください。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>%1 のスクリプト 「%2」 がシグナルにより終了しました (%3)。</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>もう一度試してください。再び発生する場合は、%1 の発行元に問い合わせてください。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>%1 のスクリプト 「%2」 は、現在の場所での実行が許可されていません。</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>「%3」 のファイルシステムが 「noexec」 でマウントされていないか確認してください。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>%1 のスクリプト 「%2」 は、インタープリターがないため実行できません。</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>スクリプトの先頭行に記載されているプログラムをインストールするか、%1 の発行元に問い合わせてください。</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>%1 のトリガーが終了コード %2 で失敗しました。</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>%1 を再インストールしてください。トリガーが失敗した原因がインストーラーの出力に示されている場合があります。</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 は一部しかインストールされていません。</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>%1 を再インストールしてください。</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>エラーが多すぎるため、インストーラーが処理を中止しました。</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>一度にインストールするパッケージを減らしてください。</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>パッケージデータベースが破損しています: 「%1」 を読み取れません。</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>パッケージデータベースをコピーから復元するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>パッケージデータベースに、このシステムに存在しない名前 「%1」 が記載されています。</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>そのユーザーまたはグループを追加するか、dpkg-statoverride で項目を削除してください。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>プログラム 「%1」 がありません。</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>管理者にインストールを依頼してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>プログラム 「%1」 を実行できません。</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>管理者に修復を依頼してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>インストーラーにパッケージが渡されませんでした。</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>もう一度試してください。</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>インストーラーがシグナルにより終了しました (%1)。</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>もう一度試してください。システムのメモリーが不足していたか、シャットダウン中だった可能性があります。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>インストーラー 「%1」 がありません。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>インストーラー 「%1」 は実行可能ではありません。</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>アクセス権の修正を管理者に依頼してください。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>インストーラー 「%1」 が終了コード %2 で失敗しました。</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>インストーラーの出力に原因が示されている場合があります。</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>システムを再起動できなかったため、イメージはインストールされていません。</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>「%1」 が失敗する原因を調べてから、もう一度試してください。</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>原因は不明です。インストーラーは何も出力していません。</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>原因は不明です。インストーラーのメッセージ: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>そのプログラムが終了するまで待ってから、もう一度試してください。</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>ダウンロードできませんでした: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>「%1」 の空き領域が不足しています: %2 が必要ですが、空きは %3 です。</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>インストールが終わる前にプログラムが終了しました。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>%1 の証明書は無効ですが、ここでは受け入れられました。再起動後、デバイスがこの証明書を拒否する可能性があり、その場合はイメージを取得できません。</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>イメージが存在しません。</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>サーバーがイメージに対してログインを要求しています。デバイスには、リポジトリの場所に含まれるもの以外のログイン情報がありません。</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>プロキシがログインを要求していますが、デバイスにはログイン情報がありません。</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>サーバーのその場所にイメージがありません: サーバーの応答は %1 です。</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>イメージを読み取れません: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>イメージが空です。</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>イメージの代わりに Web ページがあります。</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>ファイルはイメージではありません: gzip で圧縮されていません。</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>イメージは %1 バイトです。説明では %2 バイトになっています。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>インストーラー 「%1」 を起動できません: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>パッケージが破損しているか、不完全です。</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>インストーラーが受け付けるのは、名前が 「.deb」 で終わるファイルだけです。</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>%1 に、このための空き領域が残っていません。</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>アーカイブが破損しているか、その内容のために拒否されました。</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>インストールするアーカイブが残っていません。</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>「%1」 用のインストーラーがありません</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>他の更新と一緒にインストールすることはできません。</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>直前のサービスパックがインストールされませんでした。</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>一時ディレクトリ 「%1」 に移動できませんでした</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>ダウンロードが打ち切られました。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>%1 に開始されたインストールはまだ実行中です。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>%1 に開始されたインストールは、開始したプログラムの終了後も続行され、エラーなしで終了しました。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>%1 に開始されたインストールは、開始したプログラムの終了後も続行され、終了コード %2 で失敗しました。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>%1 に開始されたインストールは、開始したプログラムの終了後も続行され、シグナル %2 により終了しました。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>%1 に開始されたインストールは中断されました。どのように終了したかは不明です。</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>パッケージデータベースは別のプロセスによってロックされています。</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>パッケージデータベースはプロセス %1 によってロックされています。</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>パッケージデータベースは %1 (プロセス %2) によってロックされています。</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>このユーザーは更新をインストールできません: 「%1」 を変更できません。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>更新をインストールするプログラム 「%1」 がありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>「%1」 は読み取り専用で、システムのロックを解除するプログラム 「%2」 がありません。</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>以前のパッケージのインストールが中断されたため、先に修復する必要があります (%1)。</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>以前のパッケージのインストールが中断されたため、先に修復する必要があります。</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>以前のインストールがまだ進行中です。</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>別のインストールが進行中です: %1 (プロセス %2)。</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>インストールはキャンセルされました</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>イメージは再起動時にインストールされます</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>インストールに失敗しました</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>インストールしましたが、システムでは確認できません</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>%n 個の更新のうち %1 個をインストールしました</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 個の更新をインストールしました</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n 個の更新をインストールしました</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>インストーラーがシグナルにより終了しました。</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>インストーラーが終了コード %1 で終了しました。</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>パッケージデータベースを読み取れません。</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>システムに存在しません。</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>展開されていますが、設定されていません。</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>システムにはバージョン %1 がインストールされています。</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>インストーラーは、インストール済みのパッケージを変更しませんでした。</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>インストール済みのサービスパックの一覧に以前から含まれていました。</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>このシステムには、インストール済みのサービスパックの一覧がありません。</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>インストール済みのサービスパックの一覧に含まれていません。</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>署名者: %1、有効期限: %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>署名なし: サーバーを制御する者が、インストールされる内容を左右できます</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>署名なし: サーバーまたはネットワークを制御する者が、インストールされる内容を左右できます</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>破損は検査されますが、署名はありません: サーバーを制御する者が、インストールされる内容を左右できます</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>発行元が一覧に記載して署名したファイルだけが提供され、インストールされます。</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>このデバイスではリポジトリの署名を確認できません。</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>リポジトリの内容が、発行元の署名したものと異なります。</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>リポジトリのファイルの一覧、またはその署名がありません。</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>このデバイスは最新の一覧を記憶できないため、一覧が古くても検知できません。</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>このセクションの定義は署名を必須としていません。発行元はリポジトリに署名することができます。</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>リポジトリの署名が現在有効でないか、このデバイスの時計が正しくありません。</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>イメージは一度読み取られ、リポジトリの一覧と照合されるため、破損を検出できます。再起動後、デバイスはイメージを再び取得しますが、何も検査しません: そのとき、悪意のあるサーバーは別のイメージを送ることができます。</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>リポジトリの URI</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>更新リポジトリの場所を変更するオプション</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>「%1」 は有効な URI ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>「%1」 は対応していない URI スキームです。</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1、選択済み</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1、未選択</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>更新を取得しています...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>インストール済み
バージョン</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>更新の
バージョン</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>選択</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>未設定</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>改行や NUL を含む名前やパスワードは FTP サーバーに送信できません</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>FTP サーバーに接続していません</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>データ接続を開けません: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>ディレクトリが大きすぎて一覧表示できません</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>データ接続に失敗しました: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>転送が途中で終了しました (%1 / %2 バイト)</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>サーバーの応答が長すぎます</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>サーバーが接続を閉じました</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>ホスト %1 が見つかりません</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>ホスト %1 への接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>ホスト %1 への接続が拒否されました</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>サーバーは FTP に対応していません</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>サーバーがアカウントを要求していますが、対応していません</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>サーバーの応答: %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>サーバーがデータ接続用のポートを通知しませんでした</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>サーバーからの予期しない応答: %1</translation>
    </message>
</context>
</TS>
