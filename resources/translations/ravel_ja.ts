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
        <source>Shows what the installer writes.</source>
        <translation>インストーラーの出力を表示します。</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>署名者: %1、有効期限: %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>ここには何も保存できないため、リポジトリが古い状態であっても検出されません。</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>このセクションの定義は署名を要求していません。リポジトリの発行元はリポジトリに署名できます。</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>このデバイスではリポジトリの署名を確認できません。</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>リポジトリの署名が現在有効でないか、このデバイスの時計が正しくありません。</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>リポジトリの内容が、発行元の署名したものと異なります。</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>イメージは一度読み込まれ、リポジトリの一覧と照合されます。これにより破損を検出できます。再起動後、デバイスはイメージを再び取得しますが、何も検査しません。そのとき、悪意のあるサーバーは別のイメージを渡すことができます。</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>リポジトリのファイルの一覧、またはその署名がありません。</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>サーバーがデータ接続用のポートを返しませんでした</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>サーバーの応答が不正です: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>サーバーがアカウントを要求していますが、対応していません</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>サーバーの応答: %1</translation>
    </message>
</context>
</TS>
