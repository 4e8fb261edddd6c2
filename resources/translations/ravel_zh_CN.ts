<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>即将安装完整映像。</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>安装新映像将强制重新启动，并完全清除瘦客户机上现有的磁盘映像，包括所有设置。是否继续？</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>正在进行…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>显示详细信息</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>安装程序输出</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v / %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>正在安装更新…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%：  完成</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>（输出的开头部分已省略。）</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>进程无法启动。</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>进程已崩溃。</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>进程已超时。</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>从进程读取时出错。</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>向进程写入时出错。</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>未知的进程错误。</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>显示安装程序的输出。</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2：%3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>将在重新启动时安装</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>已安装，但系统无法确认</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未尝试</translation>
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
        <translation>接受证书</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>拒绝证书</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>证书</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>无法验证证书：  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>显示详细信息</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>颁发给</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>公用名：  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>组织：  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>组织单位：  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>序列号：  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>颁发者</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>颁发日期：  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>到期日期：  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>指纹</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>SHA1 指纹：  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>MD5 指纹：  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>SHA256 指纹：  </translation>
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
        <translation>说明</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>另有 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>标题：  &lt;b&gt;%1&lt;/b&gt;</translation>
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
        <translation>适用版本：  &lt;b&gt;%1&lt;/b&gt;</translation>
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
        <translation>解压后大小：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>安装后大小：  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>服务包内容： </translation>
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
        <translation>简体中文</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>查找 FTP 主机名“%1”失败。</translation>
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
        <translation>URI 不是目录</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>目录不可读</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>该协议不支持读取目录</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>目录列表过大</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>FTP 操作超时</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>操作已取消</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>FTP 主机拒绝连接</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>服务器的证书已被吊销</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Ravel 高级选项</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Ravel 的高级选项，例如修改软件仓库 URI 或配置互联网代理。</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>软件仓库位置</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>Ravel 的软件仓库位置 URI</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>网络代理</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>用于访问互联网的代理服务器</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>在此页面上，您可以将更新软件仓库的 URI 更改为本地或客户专用的值。默认值为 CV 提供瘦客户机更新的标准软件仓库。</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;没有此类型的可用更新。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>全不选(&amp;N)</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>获取数据</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>用户名： </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>密码： </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>正在从软件仓库获取数据&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>访问以下位置需要身份验证 &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>无法从软件仓库获取数据&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>使用以下代理需要身份验证 &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>URI“%1”的网络连接被拒绝。远程服务器不接受请求。</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>URI“%1”的远程服务器在操作完成前关闭了连接。</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>找不到 URI“%1”的主机。请检查 URI、网络、防火墙和 DNS。</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>与 URI“%1”的服务器通信超时。请检查 URI、网络、防火墙和 DNS。</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>已中止获取 URI“%1”。</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>无法通过 SSL/TLS 握手为 URI“%1”建立安全通道。</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>连接 URI“%1”时发生网络错误。URI 的各部分是否有效？网络是否正常？</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>无法为 URI“%1”建立到代理服务器的连接。</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>代理服务器过早关闭了 URI“%1”的连接。</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>无法联系 URI“%1”的代理服务器。请检查代理设置、URI、网络、防火墙和 DNS。</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>与 URI“%1”的代理服务器通信超时。</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>URI“%1”的代理服务器身份验证失败。请检查要提供给代理服务器的凭据。</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>联系 URI“%1”的代理服务器时发生网络错误。</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>对 URI“%1”的访问被拒绝。URI 是否有效？内容是否可读？</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>无法获取 URI“%1”的内容。URI 是否有效？内容是否可读？</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>找不到 URI“%1”。URI 是否有效？内容是否可读？</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>访问 URI“%1”需要身份验证。请检查 URI 以及所提供的用户名和密码。</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>URI“%1”的内容需要重新发送，但该内容已不可用。</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>处理从 URI“%1”获取的内容时发生错误</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>URI“%1”使用的协议对本程序无效。</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>无法使用 URI“%1”的协议获取内容。</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>无法完成 URI“%1”所用协议的客户端与服务器握手。</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>发生意外的网络错误“%1”，URI 为“%2”。</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>未结束</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>已安装</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>将在重新启动时安装</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>已安装，未确认</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未尝试</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>安装历史记录</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>已安装的更新</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
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
        <translation>结果</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>仅显示最新的条目。</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>部分条目已损坏，无法显示。</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>安装历史记录(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>继续等待 %n 秒…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>正在修复软件包数据库…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
        <translation>Ravel 可让您为瘦客户机软件安装最新更新</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; 可以安装：&lt;ol&gt;  &lt;li&gt;完整的软件映像&lt;/li&gt;  &lt;li&gt;捆绑的软件服务包&lt;/li&gt;  &lt;li&gt;单个软件包更新&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;您可以自定义 Ravel：软件仓库的位置可以设为 CV 的标准更新站点、公司或站点专用的软件仓库，甚至本地存储。&lt;/p&gt;</translation>
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
        <translation>重试</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>修复未成功。可以卸载这些软件包。如要改为重新安装，请取消，然后选择这些软件包。</translation>
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
        <translation>网络代理</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>选择网络代理的选项</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>无代理</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>手动配置代理：</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>全部使用同一代理</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>连接类型，例如 HTTP、FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>网络端口号</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>%1 的端口必须是 1 到 65535 之间的数字。</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>无法回读 %1：%2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 的内容与写入的内容不符。</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>只有管理员才能在此系统上进行安装。</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>请以 root 身份启动程序。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 需要 %2，但后者未安装。</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>请先安装 %2，或将其与 %1 一起安装。</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 需要 %2，但已安装的版本为 %3。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 需要 %2，但后者未配置。</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>请先重新安装 %2。</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 需要 %2，但后者仅部分安装。</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 不能与 %2 同时安装。</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>请只安装两者之一，或先卸载其中一个。</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 会导致已安装的 %2 无法使用。</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>请先更新或卸载 %2。</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>软件包中包含属于 %2 的“%1”。</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>请先更新或卸载 %2，或向发布者索取更正后的软件包。</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>磁盘上没有剩余空间。</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>请释放一些空间，然后重试。</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>系统为只读。</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>请将系统设为可写，然后重试。</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>系统为只读，“%1”未能改变这一状态。</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>请运行“%1”查看原因，然后重试。</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>系统不允许更改“%1”。</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>请检查该文件的属性，然后重试。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>软件包文件“%1”不完整。</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>请重试；如果再次发生，则说明软件仓库中的文件已损坏。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>软件包文件“%1”已损坏。</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>文件“%1”不是 Debian 软件包。</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>请联系软件仓库的管理员替换该文件。</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>软件包文件“%1”的格式无法由此系统读取。</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>请先更新 dpkg，或向发布者索取适用于此系统的软件包。</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>“%1”的控制数据有误。</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>请向发布者索取更正后的软件包。</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>该软件包适用于 %1，但此系统为 %2。</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>请安装适用于 %2 的软件包。</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>已安装 %1 的版本 %2，该版本比 %3 新。</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>如果需要旧版本，请先卸载 %1。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>%1 的脚本“%2”失败，退出代码为 %3。</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>安装程序的输出可能会说明原因；如果没有，请咨询 %1 的发布者。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>%1 的脚本“%2”被信号终止（%3）。</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>请重试；如果再次发生，请咨询 %1 的发布者。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>不允许在当前位置运行 %1 的脚本“%2”。</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>请检查“%3”所在的文件系统是否以“noexec”选项挂载。</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>无法运行 %1 的脚本“%2”，因为缺少其解释器。</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>请安装脚本第一行中指定的程序，或咨询 %1 的发布者。</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>%1 的触发器失败，退出代码为 %2。</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>请重新安装 %1；安装程序的输出可能会说明其触发器失败的原因。</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 仅部分安装。</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>请重新安装 %1。</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>错误过多，安装程序已放弃。</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>请减少每次安装的软件包数量。</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>软件包数据库已损坏：无法读取“%1”。</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>请联系管理员从副本恢复软件包数据库。</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>软件包数据库中提到了“%1”，但此系统中不存在该用户或组。</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>请添加该用户或组，或使用 dpkg-statoverride 移除该条目。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>缺少程序“%1”。</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>请联系管理员安装该程序，然后重试。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>无法运行程序“%1”。</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>请联系管理员修复该程序，然后重试。</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>安装程序未收到任何软件包。</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>请重试。</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>安装程序被信号终止（%1）。</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>请重试；系统当时可能内存不足或正在关机。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>缺少安装程序“%1”。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>安装程序“%1”不可执行。</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>请联系管理员更正其权限。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>安装程序“%1”失败，退出代码为 %2。</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>安装程序的输出可能会说明原因。</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>无法重新启动系统，因此未安装映像。</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>请查明“%1”失败的原因，然后重试。</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>原因不明，安装程序没有任何输出。</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>原因不明；安装程序的消息：%1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>请等待该程序结束，然后重试。</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>无法下载：%1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>“%1”中的空间不足：需要 %2，可用 %3。</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>程序在安装完成之前已被终止。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>%1 的证书无效，但已在此处被接受。重新启动后，设备可能会拒绝该证书，从而无法获取映像。</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>映像不存在。</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>服务器要求登录才能获取映像。除软件仓库位置中的登录信息外，设备没有其他登录信息。</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>代理要求登录，但设备没有登录信息。</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>服务器的该位置没有映像：服务器应答 %1。</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>无法读取映像：%1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>映像为空。</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>映像所在位置是一个网页。</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>该文件不是映像：未使用 gzip 压缩。</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>映像大小为 %1 字节。其描述中注明为 %2 字节。</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>无法启动安装程序“%1”：%2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>软件包已损坏或不完整。</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>安装程序仅接受名称以“.deb”结尾的文件。</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>%1 中的剩余空间不足。</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>归档文件已损坏，或因其内容而被拒绝。</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>没有剩余的归档文件可供安装。</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>没有适用于“%1”的安装程序</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>无法与其他更新一起安装。</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>未安装其前一个服务包。</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>无法进入临时目录“%1”</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>下载已中止。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>于 %1 开始的安装仍在运行。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>于 %1 开始的安装在其程序退出后继续进行，并已顺利结束。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>于 %1 开始的安装在其程序退出后继续进行，但最终失败，退出代码为 %2。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>于 %1 开始的安装在其程序退出后继续进行，随后被信号 %2 终止。</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>于 %1 开始的安装被中断。其结果未知。</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>软件包数据库已被另一个进程锁定。</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>软件包数据库已被进程 %1 锁定。</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>软件包数据库已被 %1（进程 %2）锁定。</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>此用户无权安装更新：无法更改“%1”。</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>缺少用于安装更新的程序“%1”。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>“%1”为只读，并且缺少用于解锁系统的程序“%2”。</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>先前的软件包安装被中断，必须先进行修复（%1）。</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>先前的软件包安装被中断，必须先进行修复。</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>先前的安装仍在进行中。</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>另一个安装正在进行中：%1（进程 %2）。</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>安装已取消</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>映像将在重新启动时安装</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>安装失败</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>已安装，但系统无法确认</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>已安装 %1 个更新，共 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>已安装 1 个更新</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>已安装 %n 个更新</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>安装程序被信号终止。</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>安装程序已结束，退出代码为 %1。</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>无法读取软件包数据库。</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>系统中没有该软件包。</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>已解压，但未配置。</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>系统中的版本为 %1。</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>安装程序未更改已安装的软件包。</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>此前已在已安装服务包的列表中。</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>此系统没有已安装服务包的列表。</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>不在已安装服务包的列表中。</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>由 %1 签名，有效期至 %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>未签名：控制服务器的人即可控制所安装的内容</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>未签名：控制服务器或网络的人即可控制所安装的内容</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>会检查是否损坏，但未签名：控制服务器的人即可控制所安装的内容</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>仅提供和安装发布者已列出并签名的文件。</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>此设备无法检查软件仓库的签名。</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>软件仓库与其发布者签名的内容不符。</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>缺少软件仓库的文件列表或其签名。</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>此设备无法记住最新的列表，因此无法察觉列表已过时。</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>此部分的定义不要求签名。发布者可以为软件仓库签名。</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>软件仓库的签名当前无效，或此设备的时钟不正确。</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>映像会被读取一次并与软件仓库的列表进行比对，以便发现损坏。重新启动后，设备会再次获取映像，但不做任何检查：此时恶意服务器可以提供另一个映像。</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>软件仓库 URI</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>更改更新软件仓库位置的选项</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>“%1”不是有效的 URI。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>“%1”不是受支持的 URI 协议。</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1，已选中</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1，未选中</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>正在获取更新…</translation>
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
        <translation>已安装
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
        <translation>选择</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>未知</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>未配置</translation>
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
        <translation>无法将包含换行符或 NUL 的名称或密码发送到 FTP 服务器</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>未连接到 FTP 服务器</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>无法打开数据连接：%1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>目录过大，无法列出</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>数据连接失败：%1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>传输提前结束，已传输 %1 字节，共 %2 字节</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>服务器的应答过长</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>服务器关闭了连接</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>找不到主机 %1</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>连接主机 %1 超时</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>主机 %1 拒绝连接</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>服务器不支持 FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>服务器要求提供账户，此功能不受支持</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>服务器应答 %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>服务器未提供数据连接的端口</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>服务器返回了意外的应答：%1</translation>
    </message>
</context>
</TS>
