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
        <source>Shows what the installer writes.</source>
        <translation>Pokazuje, co wypisuje instalator.</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Podpis: %1, ważny do %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Nie można tu niczego zapisać: starszy stan repozytorium nie zostanie zauważony.</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>Definicja tej sekcji nie wymaga podpisu. Wydawca repozytorium może je podpisać.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>To urządzenie nie może sprawdzić podpisu repozytorium.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>Podpis repozytorium jest obecnie nieważny lub zegar tego urządzenia jest źle ustawiony.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Repozytorium nie jest tym, co podpisał jego wydawca.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>Obraz jest odczytywany raz i porównywany z listą repozytorium. Pozwala to wykryć uszkodzenia. Po ponownym uruchomieniu urządzenie pobiera obraz jeszcze raz i niczego nie sprawdza: wrogi serwer może mu wtedy podać inny.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Brakuje listy plików repozytorium lub jej podpisu.</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>Serwer nie podaje portu dla połączenia danych</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Nieoczekiwana odpowiedź serwera: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Serwer wymaga konta, co nie jest obsługiwane</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Serwer odpowiada %1</translation>
    </message>
</context>
</TS>
