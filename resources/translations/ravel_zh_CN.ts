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
        <source>Shows what the installer writes.</source>
        <translation>显示安装程序的输出。</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>由 %1 签名，有效期至 %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>此处无法存储任何内容：软件仓库处于旧状态时不会被察觉。</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>此部分的定义不要求签名。软件仓库的发布者可以为其签名。</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>此设备无法检查软件仓库的签名。</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>软件仓库的签名目前无效，或者此设备的时钟不正确。</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>软件仓库与其发布者签名的内容不符。</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>映像会被读取一次，并与软件仓库的列表进行比较。这样可以发现损坏。重新启动后，设备会再次获取映像，但不做任何检查：此时恶意服务器可以提供另一个映像。</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>缺少软件仓库的文件列表或其签名。</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>服务器未给出数据连接的端口</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>服务器的应答不合时序：%1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>服务器要求提供账户，此功能不受支持</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>服务器应答 %1</translation>
    </message>
</context>
</TS>
