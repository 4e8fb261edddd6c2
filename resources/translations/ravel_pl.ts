<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Oczekuje instalacja pełnego obrazu.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>Instalacja nowego obrazu wymusi ponowne uruchomienie i całkowicie usunie istniejący obraz dysku cienkiego klienta wraz ze wszystkimi ustawieniami. Czy chcesz kontynuować?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>W toku…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Pokaż szczegóły</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Wyjście instalatora</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v z %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Instalowanie aktualizacji…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  Gotowe</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(Początek wyjścia został pominięty.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Nie udało się uruchomić procesu.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>Proces uległ awarii.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>Przekroczono limit czasu procesu.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Błąd odczytu z procesu.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Błąd zapisu do procesu.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Nieznany błąd procesu.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Pokazuje wyjście instalatora.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>zainstalowana</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>nieudana</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>zostanie zainstalowana przy ponownym uruchomieniu</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>zainstalowana, ale system nie może tego potwierdzić</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>pominięta</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nie próbowano</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>anulowana</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Zaakceptuj certyfikat</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Odrzuć certyfikat</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Certyfikat</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Nie można zweryfikować certyfikatu:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Pokaż szczegóły</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Wystawiony dla</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Nazwa pospolita:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organizacja:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Jednostka organizacyjna:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Numer seryjny:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Wystawiony przez</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Daty</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Data wystawienia:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Data wygaśnięcia:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Odciski</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>Odcisk SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>Odcisk MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>Odcisk SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Zawartość</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Uwagi</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tytuł:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Wersja:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Dla wydań:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Rozmiar aktualizacji:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Rozmiar po rozpakowaniu:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Rozmiar po instalacji:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Zawartość dodatku Service Pack: </translation>
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
        <translation>Polski</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>Nie udało się odnaleźć serwera FTP „%1”.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Operacja anulowana</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>Adres URI nie istnieje</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>Adres URI nie wskazuje katalogu</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>Nie można odczytać katalogu</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>Protokół nie obsługuje odczytu katalogów</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>Lista katalogu jest zbyt duża</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>Przekroczono limit czasu transakcji FTP</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operacja anulowana</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Uwierzytelnienie nie powiodło się</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Serwer FTP odrzucił połączenie</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>Certyfikat serwera został unieważniony</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Zaawansowane opcje programu Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Zaawansowane opcje programu Ravel, takie jak zmiana adresów URI repozytoriów lub konfiguracja internetowych serwerów pośredniczących.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Położenia repozytoriów</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>Adresy URI położeń repozytoriów dla programu Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Sieciowe serwery pośredniczące</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Serwery pośredniczące w dostępie do Internetu</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>Na tej stronie można zmienić adresy URI repozytoriów aktualizacji na lokalne lub właściwe dla klienta. Domyślnie używane są standardowe repozytoria CV z aktualizacjami dla cienkich klientów.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Brak dostępnych aktualizacji tego typu.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>Za&amp;instaluj</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Szczegóły</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Odśwież</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>Ws&amp;zystkie</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>Ża&amp;dne</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Nazwa użytkownika: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Hasło: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Po&amp;nów</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Pobieranie danych z repozytorium&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Wymagane jest uwierzytelnienie, aby uzyskać dostęp do &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Nie udało się pobrać danych z repozytorium&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Wymagane jest uwierzytelnienie, aby korzystać z serwera pośredniczącego &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>Odrzucono połączenie sieciowe dla adresu URI „%1”. Zdalny serwer nie przyjmuje żądań.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>Zdalny serwer dla adresu URI „%1” zamknął połączenie przed zakończeniem transakcji.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Nie odnaleziono komputera dla adresu URI „%1”. Należy sprawdzić adres URI, sieć, zapory sieciowe i DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Przekroczono limit czasu komunikacji z serwerem dla adresu URI „%1”. Należy sprawdzić adres URI, sieć, zapory sieciowe i DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>Przerwano pobieranie z sieci dla adresu URI „%1”.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Nie udało się nawiązać bezpiecznego połączenia SSL/TLS dla adresu URI „%1”.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Wystąpił błąd sieci podczas łączenia z adresem URI „%1”. Czy wszystkie części adresu URI są prawidłowe? Czy sieć działa poprawnie?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Nie udało się nawiązać połączenia z serwerem pośredniczącym dla adresu URI „%1”.</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>Serwer pośredniczący przedwcześnie zamknął połączenie dla adresu URI „%1”.</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>Nie udało się skontaktować z serwerem pośredniczącym dla adresu URI „%1”. Należy sprawdzić ustawienia serwera pośredniczącego, adres URI, sieć, zapory sieciowe i DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Przekroczono limit czasu komunikacji z serwerem pośredniczącym dla adresu URI „%1”.</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>Uwierzytelnienie na serwerze pośredniczącym dla adresu URI „%1” nie powiodło się. Należy sprawdzić dane logowania do serwera pośredniczącego.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Wystąpił błąd sieci podczas łączenia z serwerem pośredniczącym dla adresu URI „%1”.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Odmówiono dostępu do adresu URI „%1”. Czy adres URI jest prawidłowy? Czy zawartość można odczytać?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Nie udało się pobrać zawartości adresu URI „%1”. Czy adres URI jest prawidłowy? Czy zawartość można odczytać?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Nie odnaleziono adresu URI „%1”. Czy adres URI jest prawidłowy? Czy zawartość można odczytać?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>Dostęp do adresu URI „%1” wymaga uwierzytelnienia. Należy sprawdzić adres URI oraz podane nazwy użytkowników i hasła.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>Zawartość dla adresu URI „%1” musi zostać wysłana ponownie, ale nie jest już dostępna.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Wystąpił błąd podczas przetwarzania zawartości pobranej z adresu URI „%1”</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>Protokół adresu URI „%1” nie jest obsługiwany przez ten program.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>Nie udało się pobrać zawartości za pomocą protokołu adresu URI „%1”.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>Nie udało się zakończyć uzgadniania między klientem a serwerem dla protokołu adresu URI „%1”.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Nieoczekiwany błąd sieci „%1” dla adresu URI „%2”.</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Komunikat</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>niezakończona</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>zainstalowana</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>nieudana</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>zostanie zainstalowana przy ponownym uruchomieniu</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>zainstalowana, niepotwierdzona</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>pominięta</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nie próbowano</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>anulowana</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Historia instalacji</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Zainstalowane aktualizacje</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Z wersji</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do wersji</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Pokazano tylko najnowsze wpisy.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Niektóre wpisy są uszkodzone i nie można ich pokazać.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;Historia instalacji</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Oczekiwanie jeszcze przez %n sekundę…</numerusform>
            <numerusform>Oczekiwanie jeszcze przez %n sekundy…</numerusform>
            <numerusform>Oczekiwanie jeszcze przez %n sekund…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Naprawianie bazy danych pakietów…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
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
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel umożliwia instalację najnowszych aktualizacji oprogramowania cienkiego klienta</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; umożliwia instalację:&lt;ol&gt;  &lt;li&gt;pełnych obrazów oprogramowania&lt;/li&gt;  &lt;li&gt;zbiorczych dodatków Service Pack&lt;/li&gt;  &lt;li&gt;aktualizacji pojedynczych pakietów&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Program Ravel można dostosować: repozytoria mogą wskazywać standardowe witryny aktualizacji CV, repozytoria firmowe lub lokalizacji, a nawet pamięć lokalną.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>Naprawa nie powiodła się. Można usunąć te pakiety. Aby zamiast tego zainstalować je ponownie, należy anulować i je zaznaczyć.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Sieciowe serwery pośredniczące</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Opcje wyboru sieciowych serwerów pośredniczących</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Bez serwerów pośredniczących</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Ręczna konfiguracja serwerów pośredniczących:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Użyj tego samego serwera dla wszystkich</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Schemat</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Rodzaj połączenia, np. HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Numer portu sieciowego</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>Port dla %1 musi być liczbą od 1 do 65535.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>Nie można ponownie odczytać pliku %1: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>Plik %1 nie zawiera tego, co w nim zapisano.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Tylko administrator może instalować oprogramowanie w tym systemie.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Należy uruchomić program jako root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>Pakiet %1 wymaga pakietu %2, który nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Należy najpierw zainstalować pakiet %2 lub zainstalować go razem z pakietem %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>Pakiet %1 wymaga pakietu %2, ale zainstalowana jest wersja %3.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>Pakiet %1 wymaga pakietu %2, który nie jest skonfigurowany.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Należy najpierw ponownie zainstalować pakiet %2.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>Pakiet %1 wymaga pakietu %2, który jest zainstalowany tylko częściowo.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>Pakietu %1 nie można zainstalować obok pakietu %2.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Należy zainstalować tylko jeden z nich lub najpierw usunąć drugi.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>Pakiet %1 uniemożliwiłby działanie zainstalowanego pakietu %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Należy najpierw zaktualizować lub usunąć pakiet %2.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>Pakiet zawiera plik „%1”, który należy do pakietu %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Należy najpierw zaktualizować lub usunąć pakiet %2 albo poprosić wydawcę o poprawiony pakiet.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Na dysku nie ma już wolnego miejsca.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Należy zwolnić miejsce i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>System jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Należy umożliwić zapis i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>System jest tylko do odczytu, a program „%1” tego nie zmienił.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Należy uruchomić program „%1”, aby poznać przyczynę, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>System nie zezwala na zmianę pliku „%1”.</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Należy sprawdzić atrybuty tego pliku i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>Plik pakietu „%1” jest niekompletny.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Należy spróbować ponownie; jeśli błąd się powtórzy, plik w repozytorium jest uszkodzony.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>Plik pakietu „%1” jest uszkodzony.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>Plik „%1” nie jest pakietem Debiana.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Należy poprosić administratora repozytorium o wymianę tego pliku.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>Plik pakietu „%1” ma format, którego ten system nie może odczytać.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Należy najpierw zaktualizować program dpkg lub poprosić wydawcę o pakiet dla tego systemu.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>Dane kontrolne pliku „%1” są nieprawidłowe.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Należy poprosić wydawcę o poprawiony pakiet.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>Pakiet jest przeznaczony dla architektury %1, a ten system ma architekturę %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Należy zainstalować pakiet dla architektury %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>Zainstalowana jest wersja %2 pakietu %1, nowsza niż %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Aby używać starszej wersji, należy najpierw usunąć pakiet %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>Skrypt „%2” pakietu %1 zakończył się błędem z kodem wyjścia %3.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>Wyjście instalatora może podawać przyczynę; jeśli nie, należy zwrócić się do wydawcy pakietu %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>Skrypt „%2” pakietu %1 został zakończony przez sygnał (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Należy spróbować ponownie, a jeśli błąd się powtórzy, zwrócić się do wydawcy pakietu %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>Skryptu „%2” pakietu %1 nie wolno uruchomić w miejscu, w którym się znajduje.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Należy sprawdzić, czy system plików katalogu „%3” jest zamontowany z opcją „noexec”.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>Nie można uruchomić skryptu „%2” pakietu %1, ponieważ brakuje jego interpretera.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Należy zainstalować program podany w pierwszym wierszu skryptu lub zwrócić się do wydawcy pakietu %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Wyzwalacz pakietu %1 zakończył się błędem z kodem wyjścia %2.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Należy ponownie zainstalować pakiet %1; wyjście instalatora może podawać, dlaczego jego wyzwalacz zawiódł.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>Pakiet %1 jest zainstalowany tylko częściowo.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Należy ponownie zainstalować pakiet %1.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>Instalator przerwał pracę z powodu zbyt wielu błędów.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Należy instalować mniej pakietów naraz.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>Baza danych pakietów jest uszkodzona: nie można odczytać „%1”.</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Należy poprosić administratora o przywrócenie bazy danych pakietów z kopii.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>Baza danych pakietów zawiera nazwę „%1”, a ten system nie zna takiego użytkownika ani grupy.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Należy dodać tego użytkownika lub grupę albo usunąć wpis za pomocą programu dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Brakuje programu „%1”.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Należy poprosić administratora o jego zainstalowanie i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Nie można uruchomić programu „%1”.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Należy poprosić administratora o jego naprawienie i spróbować ponownie.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>Do instalatora nie dotarł żaden pakiet.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Należy spróbować ponownie.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>Instalator został zakończony przez sygnał (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Należy spróbować ponownie; być może w systemie zabrakło pamięci lub system był zamykany.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Brakuje instalatora „%1”.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>Instalator „%1” nie jest plikiem wykonywalnym.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Należy poprosić administratora o poprawienie jego uprawnień.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>Instalator „%1” zakończył się błędem z kodem wyjścia %2.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>Wyjście instalatora może podawać przyczynę.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Nie udało się uruchomić systemu ponownie, więc obraz nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Należy ustalić, dlaczego program „%1” zawodzi, i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>Przyczyna nie jest znana, a instalator niczego nie wypisał.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>Przyczyna nie jest znana; komunikat instalatora: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Należy zaczekać na zakończenie tego programu i spróbować ponownie.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Nie udało się pobrać aktualizacji: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Za mało miejsca w „%1”: potrzeba %2, wolne %3.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>Program został zakończony przed ukończeniem instalacji.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>Certyfikat serwera %1 jest nieprawidłowy, ale został tutaj zaakceptowany. Po ponownym uruchomieniu urządzenie może go odrzucić i wtedy nie otrzyma obrazu.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>Nie ma tam obrazu.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>Serwer wymaga zalogowania, aby pobrać obraz. Urządzenie ma tylko dane logowania zawarte w położeniu repozytorium.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>Serwer pośredniczący wymaga danych logowania, których urządzenie nie ma.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>Na serwerze nie ma tam obrazu: serwer odpowiada %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>Nie można odczytać obrazu: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>Obraz jest pusty.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>Zamiast obrazu znajduje się tam strona internetowa.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>Plik nie jest obrazem: nie jest skompresowany programem gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>Rozmiar obrazu w bajtach: %1. Jego opis podaje %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Nie można uruchomić instalatora „%1”: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>Pakiet jest uszkodzony lub niekompletny.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>Instalator przyjmuje tylko pliki o nazwach kończących się na „.deb”.</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>W katalogu %1 nie ma już wolnego miejsca na tę aktualizację.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>Archiwum jest uszkodzone lub zostało odrzucone ze względu na zawartość.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Nie pozostało żadne archiwum do zainstalowania.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Brak instalatora dla „%1”</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>Tej aktualizacji nie można zainstalować razem z pozostałymi.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>Poprzedni dodatek Service Pack nie został zainstalowany.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Nie udało się przejść do katalogu tymczasowego „%1”</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Pobieranie zostało zakończone.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>Instalacja rozpoczęta %1 nadal trwa.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>Instalacja rozpoczęta %1 trwała dalej bez swojego programu i zakończyła się bez błędów.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>Instalacja rozpoczęta %1 trwała dalej bez swojego programu i zakończyła się błędem z kodem wyjścia %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>Instalacja rozpoczęta %1 trwała dalej bez swojego programu i została zakończona przez sygnał %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>Instalacja rozpoczęta %1 została przerwana. Nie wiadomo, jak się zakończyła.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>Baza danych pakietów jest zablokowana przez inny proces.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>Baza danych pakietów jest zablokowana przez proces %1.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>Baza danych pakietów jest zablokowana przez program %1 (proces %2).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Ten użytkownik nie może instalować aktualizacji: nie można zmienić „%1”.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Brakuje programu „%1”, który instaluje aktualizacje.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>Katalog „%1” jest tylko do odczytu i brakuje programu „%2”, który odblokowuje system.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Wcześniejsza instalacja pakietów została przerwana i trzeba ją najpierw naprawić (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Wcześniejsza instalacja pakietów została przerwana i trzeba ją najpierw naprawić.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Wcześniejsza instalacja jeszcze trwa.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Trwa inna instalacja: %1 (proces %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Instalacja anulowana</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>Obraz zostanie zainstalowany przy ponownym uruchomieniu</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Instalacja nie powiodła się</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Zainstalowano, ale system nie może tego potwierdzić</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>Zainstalowano %1 z %n aktualizacji</numerusform>
            <numerusform>Zainstalowano %1 z %n aktualizacji</numerusform>
            <numerusform>Zainstalowano %1 z %n aktualizacji</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>Zainstalowano 1 aktualizację</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>Zainstalowano %n aktualizację</numerusform>
            <numerusform>Zainstalowano %n aktualizacje</numerusform>
            <numerusform>Zainstalowano %n aktualizacji</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>Instalator został zakończony przez sygnał.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>Instalator zakończył pracę z kodem wyjścia %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>Nie można odczytać bazy danych pakietów.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>W systemie nie ma tego pakietu.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>Pakiet jest rozpakowany, ale nieskonfigurowany.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>W systemie jest wersja %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>Instalator pozostawił zainstalowany pakiet bez zmian.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Ten dodatek był już wcześniej na liście zainstalowanych dodatków Service Pack.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Ten system nie ma listy zainstalowanych dodatków Service Pack.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>Tego dodatku nie ma na liście zainstalowanych dodatków Service Pack.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Podpis: %1, ważny do %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Bez podpisu: kto kontroluje serwer, decyduje o tym, co zostanie zainstalowane</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Bez podpisu: kto kontroluje serwer lub sieć, decyduje o tym, co zostanie zainstalowane</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Sprawdzane pod kątem uszkodzeń, ale bez podpisu: kto kontroluje serwer, decyduje o tym, co zostanie zainstalowane</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Oferowane i instalowane są tylko pliki, które wydawca umieścił na liście i podpisał.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>To urządzenie nie może sprawdzić podpisu repozytorium.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Repozytorium nie jest tym, co podpisał jego wydawca.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Brakuje listy plików repozytorium lub jej podpisu.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>To urządzenie nie może zapamiętać najnowszej listy, więc nie zauważyłoby listy nieaktualnej.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>Definicja tej sekcji nie wymaga podpisu. Wydawca może podpisać repozytorium.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>Podpis repozytorium jest obecnie nieważny lub zegar tego urządzenia wskazuje błędny czas.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>Obraz jest odczytywany raz i porównywany z listą repozytorium, co ujawnia uszkodzenia. Po ponownym uruchomieniu urządzenie pobiera obraz jeszcze raz i niczego nie sprawdza: wrogi serwer może wtedy dostarczyć inny.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>Adresy URI repozytoriów</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Opcje zmiany położeń repozytoriów aktualizacji</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>„%1” nie jest prawidłowym adresem URI.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>„%1” nie jest obsługiwanym schematem URI.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, zaznaczone</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, niezaznaczone</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Pobieranie aktualizacji…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Wersja
zainstalowana</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Wersja
dostępna</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Wybór</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>nieznana</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>brak</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>nieskonfigurowana</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Przerwano</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Nie można wysłać do serwera FTP nazwy ani hasła ze znakiem nowego wiersza lub NUL</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Brak połączenia z serwerem FTP</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>Nie można otworzyć połączenia danych: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>Katalog jest zbyt duży, aby go wyświetlić</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>Połączenie danych nie powiodło się: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>Przesyłanie zakończyło się przedwcześnie, po %1 z %2 bajtów</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>Odpowiedź serwera jest zbyt długa</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>Serwer zamknął połączenie</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Nie odnaleziono komputera %1</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Przekroczono limit czasu połączenia z komputerem %1</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Komputer %1 odrzucił połączenie</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>Serwer nie obsługuje FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Serwer wymaga konta, co nie jest obsługiwane</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Serwer odpowiada %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>Serwer nie podał portu dla połączenia danych</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Nieoczekiwana odpowiedź serwera: %1</translation>
    </message>
</context>
</TS>
