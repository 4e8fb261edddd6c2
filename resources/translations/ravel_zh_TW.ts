<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>即將安裝完整映像檔。</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>安裝新映像檔將強制重新開機，並完全清除精簡型電腦上現有的磁碟映像檔，包括所有設定。您要繼續嗎？</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>進行中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>顯示詳細資訊</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>安裝程式輸出</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v / %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>正在安裝更新…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%：  完成</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>（已省略輸出的開頭部分。）</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>處理程序無法啟動。</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>處理程序已當掉。</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>處理程序已逾時。</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>從處理程序讀取時發生錯誤。</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>寫入處理程序時發生錯誤。</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>未知的處理程序錯誤。</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>顯示安裝程式的輸出。</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2：%3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>已安裝</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>將於重新開機時安裝</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>已安裝，但系統無法確認</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>已略過</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未嘗試</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>接受憑證</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>拒絕憑證</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>憑證</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>無法驗證憑證：  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>顯示詳細資訊</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>發給</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>一般名稱：  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>組織：  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>組織單位：  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>序號：  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>發行者</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>核發日期：  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>到期日期：  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>指紋</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>SHA1 指紋：  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>MD5 指紋：  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>SHA256 指紋：  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>備註</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>還有 %n 項</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>標題：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>版本：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>適用版本：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>更新大小：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>解壓縮後大小：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>安裝後大小：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Service Pack 內容： </translation>
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
        <translation>繁體中文</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>查詢 FTP 主機名稱「%1」失敗。</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>操作已取消</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>URI 不存在</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>URI 不是目錄</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>目錄無法讀取</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>此通訊協定不支援讀取目錄</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>目錄清單過大</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>FTP 作業逾時</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>操作已取消</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>認證失敗</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>FTP 主機拒絕連線</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>伺服器的憑證已被撤銷</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Ravel 進階選項</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Ravel 的進階選項，例如修改軟體庫 URI 或設定網際網路代理伺服器。</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>軟體庫位置</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>Ravel 的軟體庫位置 URI</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>網路代理伺服器</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>用於存取網際網路的代理伺服器</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>您可以在此頁面將更新軟體庫的 URI 變更為本機或客戶專用的值。預設值為 CV 提供精簡型電腦更新的標準軟體庫。</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;沒有此類型的可用更新。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細資訊(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>重新整理(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>全選(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>全不選(&amp;N)</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>擷取資料</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>使用者名稱： </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>密碼： </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>正在從軟體庫取得資料&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>存取以下位置需要認證 &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>無法從軟體庫取得資料&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>使用以下代理伺服器需要認證 &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>URI「%1」的網路連線遭拒。遠端伺服器不接受請求。</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>URI「%1」的遠端伺服器在作業完成前關閉了連線。</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>找不到 URI「%1」的主機。請檢查 URI、網路、防火牆與 DNS。</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>與 URI「%1」的伺服器通訊逾時。請檢查 URI、網路、防火牆與 DNS。</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>已中止取得 URI「%1」。</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>無法透過 SSL/TLS 交握為 URI「%1」建立安全通道。</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>連線至 URI「%1」時發生網路錯誤。URI 的所有部分都有效嗎？網路是否正常？</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>無法為 URI「%1」建立與代理伺服器的連線。</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>代理伺服器過早關閉了 URI「%1」的連線。</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>無法連絡 URI「%1」的代理伺服器。請檢查代理伺服器設定、URI、網路、防火牆與 DNS。</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>與 URI「%1」的代理伺服器通訊逾時。</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>URI「%1」的代理伺服器認證失敗。請檢查要提供給代理伺服器的認證資料。</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>連絡 URI「%1」的代理伺服器時發生網路錯誤。</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>對 URI「%1」的存取遭拒。URI 是否有效？內容是否可讀取？</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>無法取得 URI「%1」的內容。URI 是否有效？內容是否可讀取？</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>找不到 URI「%1」。URI 是否有效？內容是否可讀取？</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>存取 URI「%1」需要認證。請檢查 URI 以及所提供的使用者名稱與密碼。</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>URI「%1」的內容需要重新傳送，但該內容已無法使用。</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>處理從 URI「%1」取得的內容時發生錯誤</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>URI「%1」使用的通訊協定不適用於此程式。</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>無法使用 URI「%1」的通訊協定取得內容。</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>無法完成 URI「%1」所用通訊協定的用戶端與伺服器交握。</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>發生未預期的網路錯誤「%1」，URI 為「%2」。</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>訊息</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>未結束</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>已安裝</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>將於重新開機時安裝</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>已安裝，未確認</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>已略過</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未嘗試</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>安裝記錄</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>已安裝的更新</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>From</source>
        <translation>原版本</translation>
    </message>
    <message>
        <source>To</source>
        <translation>新版本</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>User</source>
        <translation>使用者</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>僅顯示最新的項目。</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>部分項目已損壞，無法顯示。</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>安裝記錄(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>繼續等待 %n 秒…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>正在修復套件資料庫…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
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
        <translation>Ravel 可讓您為精簡型電腦軟體安裝最新的更新</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; 可以安裝：&lt;ol&gt;  &lt;li&gt;完整的軟體映像檔&lt;/li&gt;  &lt;li&gt;軟體 Service Pack&lt;/li&gt;  &lt;li&gt;個別套件更新&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;您可以自訂 Ravel：軟體庫的位置可設為 CV 的標準更新網站、公司或站台專用的軟體庫，甚至是本機儲存空間。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>修復未成功。可以移除這些套件。如要改為重新安裝，請取消，然後選取這些套件。</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>全部</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>網路代理伺服器</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>選擇網路代理伺服器的選項</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>手動設定代理伺服器：</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>全部使用相同的代理伺服器</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>通訊協定</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>連線類型，例如 HTTP、FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>伺服器</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>網路連接埠號碼</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>%1 的連接埠必須是 1 到 65535 之間的數字。</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>無法讀回 %1：%2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 的內容與寫入的內容不符。</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>只有管理員可以在此系統上進行安裝。</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>請以 root 身分啟動程式。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 需要 %2，但後者尚未安裝。</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>請先安裝 %2，或將其與 %1 一起安裝。</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 需要 %2，但已安裝的版本是 %3。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 需要 %2，但後者尚未設定。</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>請先重新安裝 %2。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 需要 %2，但後者只安裝了一部分。</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 無法與 %2 同時安裝。</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>請只安裝兩者之一，或先移除其中一個。</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 會使已安裝的 %2 無法使用。</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>請先更新或移除 %2。</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>套件中包含屬於 %2 的「%1」。</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>請先更新或移除 %2，或向發行者索取修正後的套件。</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>磁碟已無剩餘空間。</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>請釋放一些空間，然後再試一次。</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>系統為唯讀。</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>請將系統設為可寫入，然後再試一次。</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>系統為唯讀，而「%1」未能改變此狀態。</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>請執行「%1」以查看原因，然後再試一次。</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>系統不允許變更「%1」。</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>請檢查該檔案的屬性，然後再試一次。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>套件檔案「%1」不完整。</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>請再試一次；如果再次發生，表示軟體庫中的檔案已損壞。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>套件檔案「%1」已損壞。</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>檔案「%1」不是 Debian 套件。</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>請軟體庫的管理員更換該檔案。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>套件檔案「%1」的格式無法由此系統讀取。</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>請先更新 dpkg，或向發行者索取適用於此系統的套件。</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>「%1」的控制資料有誤。</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>請向發行者索取修正後的套件。</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>此套件適用於 %1，但此系統為 %2。</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>請安裝適用於 %2 的套件。</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>已安裝 %1 的版本 %2，該版本比 %3 新。</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>如果需要較舊的版本，請先移除 %1。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>%1 的指令稿「%2」失敗，結束代碼為 %3。</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>安裝程式的輸出可能會說明原因；如果沒有，請洽詢 %1 的發行者。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>%1 的指令稿「%2」被訊號終止（%3）。</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>請再試一次；如果再次發生，請洽詢 %1 的發行者。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>不允許在目前位置執行 %1 的指令稿「%2」。</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>請檢查「%3」所在的檔案系統是否以「noexec」選項掛載。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>無法執行 %1 的指令稿「%2」，因為缺少其直譯器。</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>請安裝指令稿第一行所指定的程式，或洽詢 %1 的發行者。</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>%1 的觸發程式失敗，結束代碼為 %2。</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>請重新安裝 %1；安裝程式的輸出可能會說明其觸發程式失敗的原因。</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 只安裝了一部分。</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>請重新安裝 %1。</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>錯誤過多，安裝程式已放棄。</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>請減少每次安裝的套件數量。</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>套件資料庫已損壞：無法讀取「%1」。</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>請管理員從副本還原套件資料庫。</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>套件資料庫提到「%1」，但此系統中沒有該使用者或群組。</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>請新增該使用者或群組，或使用 dpkg-statoverride 移除該項目。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>缺少程式「%1」。</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>請管理員安裝該程式，然後再試一次。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>無法執行程式「%1」。</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>請管理員修復該程式，然後再試一次。</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>安裝程式未收到任何套件。</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>請再試一次。</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>安裝程式被訊號終止（%1）。</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>請再試一次；系統當時可能記憶體不足或正在關機。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>缺少安裝程式「%1」。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>安裝程式「%1」不是可執行檔。</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>請管理員更正其權限。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>安裝程式「%1」失敗，結束代碼為 %2。</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>安裝程式的輸出可能會說明原因。</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>無法重新開機，因此未安裝映像檔。</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>請查明「%1」失敗的原因，然後再試一次。</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>原因不明，安裝程式沒有任何輸出。</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>原因不明；安裝程式的訊息：%1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>請等待該程式結束，然後再試一次。</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>無法下載：%1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>「%1」中的空間不足：需要 %2，可用 %3。</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>程式在安裝完成之前已被終止。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>%1 的憑證無效，但已在此處接受。重新開機後，裝置可能會拒絕該憑證，因而無法取得映像檔。</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>映像檔不存在。</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>伺服器要求登入才能取得映像檔。除了軟體庫位置中的登入資訊，裝置沒有其他登入資訊。</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>代理伺服器要求登入，但裝置沒有登入資訊。</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>伺服器的該位置沒有映像檔：伺服器回應 %1。</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>無法讀取映像檔：%1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>映像檔是空的。</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>映像檔所在位置是一個網頁。</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>該檔案不是映像檔：未以 gzip 壓縮。</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>映像檔大小為 %1 位元組。其描述中註明為 %2 位元組。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>無法啟動安裝程式「%1」：%2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>套件已損壞或不完整。</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>安裝程式僅接受名稱以「.deb」結尾的檔案。</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>%1 中的剩餘空間不足。</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>封存檔已損壞，或因其內容而遭拒。</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>沒有剩餘的封存檔可供安裝。</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>沒有適用於「%1」的安裝程式</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>無法與其他更新一起安裝。</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>未安裝其前一個 Service Pack。</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>無法進入暫存目錄「%1」</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>下載已中止。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>於 %1 開始的安裝仍在執行。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>於 %1 開始的安裝在其程式結束後繼續進行，並已順利完成。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>於 %1 開始的安裝在其程式結束後繼續進行，但最後失敗，結束代碼為 %2。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>於 %1 開始的安裝在其程式結束後繼續進行，之後被訊號 %2 終止。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>於 %1 開始的安裝已中斷。其結果不明。</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>套件資料庫已被另一個處理程序鎖定。</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>套件資料庫已被處理程序 %1 鎖定。</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>套件資料庫已被 %1（處理程序 %2）鎖定。</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>此使用者無權安裝更新：無法變更「%1」。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>缺少用於安裝更新的程式「%1」。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>「%1」為唯讀，且缺少用於解除系統鎖定的程式「%2」。</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>先前的套件安裝已中斷，必須先修復（%1）。</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>先前的套件安裝已中斷，必須先修復。</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>先前的安裝仍在進行中。</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>另一項安裝正在進行中：%1（處理程序 %2）。</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>安裝已取消</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>映像檔將於重新開機時安裝</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>安裝失敗</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>已安裝，但系統無法確認</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>已安裝 %1 個更新，共 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>已安裝 1 個更新</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>已安裝 %n 個更新</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>安裝程式被訊號終止。</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>安裝程式已結束，結束代碼為 %1。</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>無法讀取套件資料庫。</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>系統中沒有此套件。</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>已解壓縮，但尚未設定。</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>系統中的版本是 %1。</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>安裝程式未變更已安裝的套件。</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>先前已在已安裝 Service Pack 的清單中。</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>此系統沒有已安裝 Service Pack 的清單。</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>不在已安裝 Service Pack 的清單中。</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>由 %1 簽署，有效期至 %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>未簽署：控制伺服器的人即可控制所安裝的內容</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>未簽署：控制伺服器或網路的人即可控制所安裝的內容</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>會檢查是否損壞，但未簽署：控制伺服器的人即可控制所安裝的內容</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>僅提供並安裝發行者已列出並簽署的檔案。</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>此裝置無法檢查軟體庫的簽章。</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>軟體庫與其發行者所簽署的內容不符。</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>缺少軟體庫的檔案清單或其簽章。</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>此裝置無法記住最新的清單，因此無法察覺清單已過時。</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>此區段的定義不要求簽章。發行者可以簽署軟體庫。</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>軟體庫的簽章目前無效，或此裝置的時鐘不正確。</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>映像檔會讀取一次並與軟體庫的清單比對，以便發現損壞。重新開機後，裝置會再次取得映像檔，但不做任何檢查：此時惡意伺服器可以提供另一個映像檔。</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>軟體庫 URI</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>變更更新軟體庫位置的選項</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>「%1」不是有效的 URI。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>「%1」不是支援的 URI 通訊協定。</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1，已選取</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1，未選取</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>正在取得更新…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>已安裝
版本</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>更新
版本</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>選取</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>無</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>尚未設定</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>已中止</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>無法將包含換行或 NUL 的名稱或密碼傳送至 FTP 伺服器</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>未連線至 FTP 伺服器</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>無法開啟資料連線：%1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>目錄過大，無法列出</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>資料連線失敗：%1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>傳輸提前結束，已傳輸 %1 位元組，共 %2 位元組</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>伺服器的回應過長</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>伺服器關閉了連線</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>找不到主機 %1</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>連線至主機 %1 逾時</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>主機 %1 拒絕連線</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>伺服器不支援 FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>伺服器要求帳號，但不支援此功能</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>伺服器回應 %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>伺服器未提供資料連線的連接埠</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>伺服器傳回非預期的回應：%1</translation>
    </message>
</context>
</TS>
