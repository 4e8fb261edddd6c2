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
        <source>Shows what the installer writes.</source>
        <translation>顯示安裝程式的輸出。</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>由 %1 簽署，有效期至 %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>此處無法儲存任何內容：軟體庫若為舊狀態將不會被察覺。</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>此區段的定義不要求簽章。軟體庫的發行者可以簽署軟體庫。</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>此裝置無法檢查軟體庫的簽章。</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>軟體庫的簽章目前無效，或此裝置的時鐘不正確。</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>軟體庫與其發行者所簽署的內容不符。</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>映像檔會讀取一次，並與軟體庫的清單比對。這樣可以發現損壞。重新開機後，裝置會再次取得映像檔，但不做任何檢查：此時惡意伺服器可以提供另一個映像檔。</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>缺少軟體庫的檔案清單或其簽章。</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>伺服器未提供資料連線的連接埠</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>伺服器的回應不合順序：%1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>伺服器要求帳號，但不支援此功能</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>伺服器回應 %1</translation>
    </message>
</context>
</TS>
