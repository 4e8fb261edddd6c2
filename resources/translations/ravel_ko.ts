<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>전체 이미지 설치가 대기 중입니다.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>새 이미지를 설치하면 시스템이 다시 시작되고 모든 설정을 포함하여 씬 클라이언트의 기존 디스크 이미지가 완전히 지워집니다. 계속하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>진행 중...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>자세히 보기</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>설치 프로그램 출력</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v / %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>업데이트 설치 중...</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  완료</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(출력의 앞부분은 생략되었습니다.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>프로세스를 시작하지 못했습니다.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>프로세스가 비정상적으로 종료되었습니다.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>프로세스 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>프로세스에서 읽는 중 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>프로세스에 쓰는 중 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>알 수 없는 프로세스 오류입니다.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>설치 프로그램의 출력을 표시합니다.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>설치됨</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>다시 시작할 때 설치 예정</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>설치됨, 시스템에서 확인할 수 없음</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>제외됨</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>시도하지 않음</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>취소됨</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>인증서 수락</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>인증서 거부</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>인증서</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>인증서를 검증할 수 없습니다:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>자세히 보기</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>발급 대상</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>일반 이름:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>조직:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>조직 단위:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>일련 번호:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>발급자</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>발급일:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>만료일:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>지문</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>SHA1 지문:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>MD5 지문:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>SHA256 지문:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>참고 사항</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>외 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>제목:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>버전:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>대상 릴리스:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>업데이트 크기:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>압축 해제 후 크기:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>설치 후 크기:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>서비스 팩 내용: </translation>
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
        <translation>한국어</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>FTP 호스트 이름 &apos;%1&apos;을(를) 찾을 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>작업이 취소되었습니다</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>URI가 존재하지 않습니다</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>URI가 디렉터리가 아닙니다</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>디렉터리를 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>프로토콜이 디렉터리 읽기를 지원하지 않습니다</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>디렉터리 목록이 너무 큽니다</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>FTP 처리 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>작업이 취소되었습니다</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>인증에 실패했습니다</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>FTP 호스트가 연결을 거부했습니다</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>서버의 인증서가 해지되었습니다</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Ravel 고급 옵션</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>저장소 URI 변경, 인터넷 프록시 구성 등 Ravel의 고급 옵션입니다.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>저장소 위치</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>Ravel 저장소 위치 URI</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>네트워크 프록시</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>인터넷 접속용 프록시 서버</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>이 페이지에서 업데이트 저장소의 URI를 로컬 값이나 고객별 값으로 변경할 수 있습니다. 기본값은 씬 클라이언트 업데이트를 제공하는 CV의 표준 저장소입니다.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;이 유형의 업데이트가 없습니다.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>자세히(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>새로 고침(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>모두(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>없음(&amp;N)</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>사용자 이름: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>암호: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>저장소에서 데이터를 가져오는 중&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>다음에 접근하려면 인증이 필요합니다 &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>저장소에서 데이터를 가져올 수 없습니다&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>다음 프록시를 사용하려면 인증이 필요합니다 &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>URI &apos;%1&apos;에 대한 네트워크 연결이 거부되었습니다. 원격 서버가 요청을 받지 않습니다.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>처리가 완료되기 전에 URI &apos;%1&apos;의 원격 서버가 연결을 닫았습니다.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>URI &apos;%1&apos;의 호스트를 찾을 수 없습니다. URI, 네트워크, 방화벽, DNS를 확인하십시오.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>URI &apos;%1&apos;의 서버와 통신하는 중 시간이 초과되었습니다. URI, 네트워크, 방화벽, DNS를 확인하십시오.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>URI &apos;%1&apos;의 네트워크 가져오기가 중단되었습니다.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>URI &apos;%1&apos;에 대해 SSL/TLS 보안 채널을 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>URI &apos;%1&apos;에 접속하는 중 네트워크 오류가 발생했습니다. URI의 모든 부분이 올바릅니까? 네트워크가 정상입니까?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>URI &apos;%1&apos;에 대한 프록시 서버에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>URI &apos;%1&apos;의 프록시 서버가 연결을 일찍 닫았습니다.</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>URI &apos;%1&apos;의 프록시 서버에 접속할 수 없습니다. 프록시 설정, URI, 네트워크, 방화벽, DNS를 확인하십시오.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>URI &apos;%1&apos;의 프록시 서버와 통신하는 중 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>URI &apos;%1&apos;의 프록시 서버 인증에 실패했습니다. 프록시 서버에 제공할 인증 정보를 확인하십시오.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>URI &apos;%1&apos;의 프록시 서버에 접속하는 중 네트워크 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI &apos;%1&apos;에 대한 접근이 거부되었습니다. URI가 올바릅니까? 내용을 읽을 수 있습니까?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI &apos;%1&apos;의 내용을 가져올 수 없습니다. URI가 올바릅니까? 내용을 읽을 수 있습니까?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI &apos;%1&apos;을(를) 찾을 수 없습니다. URI가 올바릅니까? 내용을 읽을 수 있습니까?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>URI &apos;%1&apos;에 접근하려면 인증이 필요합니다. URI와 입력한 사용자 이름 및 암호를 확인하십시오.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>URI &apos;%1&apos;의 내용을 다시 보내야 하지만 더 이상 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>URI &apos;%1&apos;에서 가져온 내용을 처리하는 중 오류가 발생했습니다</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>URI &apos;%1&apos;의 프로토콜은 이 프로그램에서 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>URI &apos;%1&apos;의 프로토콜로는 내용을 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>URI &apos;%1&apos;의 프로토콜에 대한 클라이언트와 서버 간 협상을 완료할 수 없습니다.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>예기치 않은 네트워크 오류 &apos;%1&apos;이(가) URI &apos;%2&apos;에서 발생했습니다.</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>메시지</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>끝나지 않음</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>설치됨</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>다시 시작할 때 설치 예정</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>설치됨, 확인되지 않음</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>제외됨</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>시도하지 않음</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>설치 기록</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>설치된 업데이트</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>From</source>
        <translation>변경 전 버전</translation>
    </message>
    <message>
        <source>To</source>
        <translation>변경 후 버전</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>최신 항목만 표시됩니다.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>일부 항목이 손상되어 표시할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>설치 기록(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>%n초 더 기다리는 중...</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>패키지 데이터베이스 복구 중...</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
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
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel을 사용하면 씬 클라이언트 소프트웨어의 최신 업데이트를 설치할 수 있습니다</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt;에서 설치할 수 있는 항목:&lt;ol&gt;  &lt;li&gt;전체 소프트웨어 이미지&lt;/li&gt;  &lt;li&gt;소프트웨어를 묶은 서비스 팩&lt;/li&gt;  &lt;li&gt;개별 패키지 업데이트&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Ravel은 사용자 지정할 수 있습니다. 저장소 위치로 CV의 표준 업데이트 사이트, 회사나 사업장의 저장소 또는 로컬 저장 장치를 지정할 수 있습니다.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>복구하지 못했습니다. 이 패키지들을 제거할 수 있습니다. 제거하는 대신 다시 설치하려면 취소한 다음 해당 패키지를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>모두</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>네트워크 프록시</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>네트워크 프록시 선택 옵션</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>프록시 없음</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>수동 프록시 구성:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>모두 같은 프록시 사용</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>스킴</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>연결 유형(예: HTTP, FTP)</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>서버</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>네트워크 포트 번호</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>%1의 포트는 1에서 65535 사이의 숫자여야 합니다.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>%1을(를) 다시 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1의 내용이 기록한 내용과 다릅니다.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>이 시스템에는 관리자만 설치할 수 있습니다.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>프로그램을 root로 시작하십시오.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1에 필요한 %2이(가) 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>먼저 %2을(를) 설치하거나 %1과(와) 함께 설치하십시오.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1에는 %2이(가) 필요하지만 버전 %3이(가) 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1에 필요한 %2이(가) 구성되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>먼저 %2을(를) 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1에 필요한 %2이(가) 일부만 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1은(는) %2과(와) 함께 설치할 수 없습니다.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>둘 중 하나만 설치하거나 먼저 하나를 제거하십시오.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1을(를) 설치하면 설치된 %2을(를) 사용할 수 없게 됩니다.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>먼저 %2을(를) 업데이트하거나 제거하십시오.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>패키지에 %2에 속하는 &apos;%1&apos;이(가) 들어 있습니다.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>먼저 %2을(를) 업데이트하거나 제거하거나, 게시자에게 수정된 패키지를 요청하십시오.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>디스크에 남은 공간이 없습니다.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>공간을 확보한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>시스템이 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>시스템을 쓸 수 있게 한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>시스템이 읽기 전용이며, &apos;%1&apos;을(를) 실행해도 바뀌지 않았습니다.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>&apos;%1&apos;을(를) 실행하여 원인을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>시스템에서 &apos;%1&apos; 변경을 허용하지 않습니다.</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>해당 파일의 속성을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>패키지 파일 &apos;%1&apos;이(가) 완전하지 않습니다.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>다시 시도하십시오. 문제가 다시 발생하면 저장소의 파일이 손상된 것입니다.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>패키지 파일 &apos;%1&apos;이(가) 손상되었습니다.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>파일 &apos;%1&apos;은(는) Debian 패키지가 아닙니다.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>저장소 관리자에게 파일 교체를 요청하십시오.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>패키지 파일 &apos;%1&apos;은(는) 이 시스템에서 읽을 수 없는 형식입니다.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>먼저 dpkg를 업데이트하거나 게시자에게 이 시스템용 패키지를 요청하십시오.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>&apos;%1&apos;의 제어 데이터가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>게시자에게 수정된 패키지를 요청하십시오.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>이 패키지는 %1용이지만 이 시스템은 %2입니다.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>%2용 패키지를 설치하십시오.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>%3보다 최신인 %1의 버전 %2이(가) 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>이전 버전을 원하면 먼저 %1을(를) 제거하십시오.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>%1의 스크립트 &apos;%2&apos;이(가) 종료 코드 %3(으)로 실패했습니다.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>설치 프로그램 출력에 원인이 나와 있을 수 있습니다. 없으면 %1의 게시자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>%1의 스크립트 &apos;%2&apos;이(가) 시그널로 종료되었습니다(%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>다시 시도하십시오. 문제가 다시 발생하면 %1의 게시자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>%1의 스크립트 &apos;%2&apos;은(는) 현재 위치에서 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>&apos;%3&apos;의 파일 시스템이 &apos;noexec&apos;로 마운트되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>인터프리터가 없어 %1의 스크립트 &apos;%2&apos;을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>스크립트의 첫 줄에 지정된 프로그램을 설치하거나 %1의 게시자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>%1의 트리거가 종료 코드 %2(으)로 실패했습니다.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>%1을(를) 다시 설치하십시오. 트리거가 실패한 원인이 설치 프로그램 출력에 나와 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1이(가) 일부만 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>%1을(를) 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>오류가 너무 많아 설치 프로그램이 중단되었습니다.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>한 번에 설치하는 패키지 수를 줄이십시오.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>패키지 데이터베이스가 손상되었습니다: &apos;%1&apos;을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>관리자에게 패키지 데이터베이스를 복사본에서 복원하도록 요청하십시오.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>패키지 데이터베이스에 이 시스템에 없는 이름 &apos;%1&apos;이(가) 있습니다.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>해당 사용자나 그룹을 추가하거나 dpkg-statoverride로 항목을 제거하십시오.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>프로그램 &apos;%1&apos;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>관리자에게 설치를 요청한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>프로그램 &apos;%1&apos;을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>관리자에게 복구를 요청한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>설치 프로그램에 전달된 패키지가 없습니다.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>설치 프로그램이 시그널로 종료되었습니다(%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>다시 시도하십시오. 시스템의 메모리가 부족했거나 시스템이 종료되는 중이었을 수 있습니다.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>설치 프로그램 &apos;%1&apos;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>설치 프로그램 &apos;%1&apos;은(는) 실행할 수 있는 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>관리자에게 권한을 수정하도록 요청하십시오.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>설치 프로그램 &apos;%1&apos;이(가) 종료 코드 %2(으)로 실패했습니다.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>설치 프로그램 출력에 원인이 나와 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>시스템을 다시 시작할 수 없어 이미지가 설치되지 않았습니다.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>&apos;%1&apos;이(가) 실패하는 원인을 찾은 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>원인을 알 수 없으며, 설치 프로그램의 출력이 없습니다.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>원인을 알 수 없습니다. 설치 프로그램 메시지: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>해당 프로그램이 끝날 때까지 기다린 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>다운로드할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>&apos;%1&apos;의 공간이 부족합니다: %2 필요, %3 남음.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>설치가 끝나기 전에 프로그램이 종료되었습니다.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>%1의 인증서가 올바르지 않지만 여기에서 수락되었습니다. 다시 시작한 후 장치가 이 인증서를 거부할 수 있으며, 그러면 이미지를 받지 못합니다.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>이미지가 해당 위치에 없습니다.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>서버가 이미지에 대해 로그인을 요구합니다. 장치에는 저장소 위치에 있는 로그인 정보만 있습니다.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>프록시가 로그인을 요구하지만 장치에 로그인 정보가 없습니다.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>서버의 해당 위치에 이미지가 없습니다: 서버 응답은 %1입니다.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>이미지를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>이미지가 비어 있습니다.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>이미지 대신 웹 페이지가 있습니다.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>파일이 이미지가 아닙니다: gzip으로 압축되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>이미지 크기는 %1바이트입니다. 설명에는 %2바이트로 되어 있습니다.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>설치 프로그램 &apos;%1&apos;을(를) 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>패키지가 손상되었거나 불완전합니다.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>설치 프로그램은 이름이 &apos;.deb&apos;로 끝나는 파일만 처리할 수 있습니다.</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>%1에 남은 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>아카이브가 손상되었거나 그 내용 때문에 거부되었습니다.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>설치할 아카이브가 남아 있지 않습니다.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>&apos;%1&apos;에 대한 설치 프로그램이 없습니다</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>다른 업데이트와 함께 설치할 수 없습니다.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>이전 서비스 팩이 설치되지 않았습니다.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>임시 디렉터리 &apos;%1&apos;(으)로 이동할 수 없습니다</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>다운로드가 중단되었습니다.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>%1에 시작된 설치가 아직 실행 중입니다.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>%1에 시작된 설치가 해당 프로그램 없이 계속되어 오류 없이 끝났습니다.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>%1에 시작된 설치가 해당 프로그램 없이 계속되었으나 종료 코드 %2(으)로 실패했습니다.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>%1에 시작된 설치가 해당 프로그램 없이 계속되었으나 시그널 %2(으)로 종료되었습니다.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>%1에 시작된 설치가 중단되었습니다. 어떻게 끝났는지는 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>다른 프로세스가 패키지 데이터베이스를 잠갔습니다.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>프로세스 %1이(가) 패키지 데이터베이스를 잠갔습니다.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>%1(프로세스 %2)이(가) 패키지 데이터베이스를 잠갔습니다.</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>이 사용자는 업데이트를 설치할 수 없습니다: &apos;%1&apos;을(를) 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>업데이트를 설치하는 프로그램 &apos;%1&apos;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>&apos;%1&apos;이(가) 읽기 전용이며, 시스템 잠금을 해제하는 프로그램 &apos;%2&apos;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>이전 패키지 설치가 중단되어 먼저 복구해야 합니다(%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>이전 패키지 설치가 중단되어 먼저 복구해야 합니다.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>이전 설치가 아직 진행 중입니다.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>다른 설치가 진행 중입니다: %1(프로세스 %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>설치가 취소되었습니다</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>다시 시작할 때 이미지가 설치됩니다</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>설치에 실패했습니다</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>설치했지만 시스템에서 확인할 수 없습니다</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>업데이트 %n개 중 %1개를 설치했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>업데이트 1개를 설치했습니다</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>업데이트 %n개를 설치했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>설치 프로그램이 시그널로 종료되었습니다.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>설치 프로그램이 종료 코드 %1(으)로 끝났습니다.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>패키지 데이터베이스를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>시스템에 이 패키지가 없습니다.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>압축은 풀렸지만 구성되지 않았습니다.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>시스템에 설치된 버전은 %1입니다.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>설치 프로그램이 설치된 패키지를 변경하지 않았습니다.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>이전부터 설치된 서비스 팩 목록에 있었습니다.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>이 시스템에는 설치된 서비스 팩 목록이 없습니다.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>설치된 서비스 팩 목록에 없습니다.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>서명자: %1, 유효 기간: %2까지</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>서명되지 않음: 서버를 제어하는 사람이 설치되는 내용을 제어합니다</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>서명되지 않음: 서버나 네트워크를 제어하는 사람이 설치되는 내용을 제어합니다</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>손상 여부는 검사하지만 서명되지 않음: 서버를 제어하는 사람이 설치되는 내용을 제어합니다</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>게시자가 목록에 넣고 서명한 파일만 제공되고 설치됩니다.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>이 장치에서는 저장소의 서명을 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>저장소가 게시자가 서명한 것과 다릅니다.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>저장소의 파일 목록 또는 그 서명이 없습니다.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>이 장치는 최신 목록을 기억할 수 없으므로 오래된 목록을 알아차리지 못합니다.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>이 섹션의 정의는 서명을 요구하지 않습니다. 게시자는 저장소에 서명할 수 있습니다.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>저장소의 서명이 현재 유효하지 않거나 이 장치의 시계가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>이미지를 한 번 읽어 저장소의 목록과 비교하므로 손상을 발견할 수 있습니다. 다시 시작한 후 장치는 이미지를 다시 가져오지만 아무것도 검사하지 않습니다: 이때 악의적인 서버가 다른 이미지를 보낼 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>저장소 URI</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>업데이트 저장소 위치를 변경하는 옵션</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>&apos;%1&apos;은(는) 올바른 URI가 아닙니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>&apos;%1&apos;은(는) 지원되는 URI 스킴이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, 선택됨</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, 선택되지 않음</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>업데이트를 가져오는 중...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>설치된
버전</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>업데이트
버전</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>선택</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>없음</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>구성되지 않음</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>줄 바꿈이나 NUL이 포함된 이름 또는 암호는 FTP 서버로 보낼 수 없습니다</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>FTP 서버에 연결되어 있지 않습니다</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>데이터 연결을 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>디렉터리가 너무 커서 목록을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>데이터 연결에 실패했습니다: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>전송이 일찍 끝났습니다(%2바이트 중 %1바이트)</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>서버의 응답이 너무 깁니다</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>서버가 연결을 닫았습니다</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>호스트 %1을(를) 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>호스트 %1 연결 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>호스트 %1이(가) 연결을 거부했습니다</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>서버가 FTP를 지원하지 않습니다</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>서버가 계정을 요구하지만 지원되지 않습니다</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>서버 응답: %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>서버가 데이터 연결용 포트를 알려 주지 않았습니다</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>서버의 예기치 않은 응답: %1</translation>
    </message>
</context>
</TS>
