<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Installation eines vollständigen Abbilds steht bevor.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>Die Installation eines neuen Abbilds erzwingt einen Neustart und löscht das vorhandene Festplattenabbild des Thin Clients vollständig, einschließlich aller Einstellungen. Möchten Sie fortfahren?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>Vorgang läuft&#xa0;…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Ausgabe des Installationsprogramms</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v von %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Updates werden installiert&#xa0;…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p&#xa0;%:  Fertig</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(Der Anfang der Ausgabe ist weggelassen.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Der Prozess konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>Der Prozess ist abgestürzt.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>Zeitüberschreitung beim Prozess.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Fehler beim Lesen vom Prozess.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Fehler beim Schreiben an den Prozess.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Unbekannter Prozessfehler.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Zeigt die Ausgabe des Installationsprogramms.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installiert</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>wird beim Neustart installiert</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>installiert, aber das System kann es nicht bestätigen</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nicht versucht</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Zertifikat annehmen</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Zertifikat ablehnen</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Das Zertifikat konnte nicht überprüft werden:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Ausgestellt für</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Allgemeiner Name:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organisation:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Organisationseinheit:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Seriennummer:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Ausgestellt von</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Ausstellungsdatum:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Ablaufdatum:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Fingerabdrücke</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>SHA1-Fingerabdruck:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>MD5-Fingerabdruck:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>SHA256-Fingerabdruck:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Titel:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Version:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Für Versionen:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Größe des Updates:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Größe entpackt:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Größe installiert:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Inhalt des Service Packs: </translation>
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
        <translation>Deutsch</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>Der FTP-Rechnername „%1“ konnte nicht aufgelöst werden.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>Die URI ist nicht vorhanden</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>Die URI ist kein Verzeichnis</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>Das Verzeichnis ist nicht lesbar</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>Das Protokoll unterstützt das Lesen von Verzeichnissen nicht</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>Die Verzeichnisliste ist zu groß</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>Zeitüberschreitung bei der FTP-Übertragung</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Der FTP-Rechner hat die Verbindung abgelehnt</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>Das Zertifikat des Servers wurde widerrufen</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Erweiterte Optionen für Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Erweiterte Optionen für Ravel, etwa zum Ändern der URIs von Repositorys oder zum Einrichten von Internet-Proxys.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Speicherorte der Repositorys</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URIs der Repositorys für Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Netzwerk-Proxys</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Proxyserver für den Internetzugang</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>Auf dieser Seite können Sie die URIs der Repositorys mit Updates auf lokale oder kundeneigene Werte ändern. Voreingestellt sind die Standard-Repositorys von CV mit Updates für Thin Clients.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Es sind keine Updates dieser Art verfügbar.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>De&amp;tails</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>A&amp;lle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>Kei&amp;ne</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Abruf</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Benutzername: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Passwort: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Abruf der Daten vom Repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Eine Anmeldung ist erforderlich für den Zugriff auf &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Fehler beim Abruf der Daten vom Repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Eine Anmeldung ist erforderlich für die Nutzung des Proxys &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>Die Netzwerkverbindung für die URI „%1“ wurde abgelehnt. Der entfernte Server nimmt keine Anfragen an.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>Der entfernte Server für die URI „%1“ hat die Verbindung geschlossen, bevor die Übertragung abgeschlossen war.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Der Rechner für die URI „%1“ wurde nicht gefunden. Prüfen Sie URI, Netzwerk, Firewalls und DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Zeitüberschreitung bei der Kommunikation mit dem Server für die URI „%1“. Prüfen Sie URI, Netzwerk, Firewalls und DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>Der Netzwerkabruf für die URI „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Für die URI „%1“ konnte kein sicherer Kanal per SSL/TLS aufgebaut werden.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Beim Zugriff auf die URI „%1“ ist ein Netzwerkfehler aufgetreten. Sind alle Teile der URI gültig? Ist das Netzwerk in Ordnung?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Für die URI „%1“ konnte keine Verbindung zum Proxyserver aufgebaut werden.</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>Der Proxyserver hat die Verbindung für die URI „%1“ vorzeitig geschlossen.</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>Der Proxyserver für die URI „%1“ ist nicht erreichbar. Prüfen Sie Proxyeinstellungen, URI, Netzwerk, Firewalls und DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Zeitüberschreitung bei der Kommunikation mit dem Proxyserver für die URI „%1“.</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>Die Anmeldung beim Proxyserver für die URI „%1“ ist fehlgeschlagen. Prüfen Sie die Zugangsdaten für den Proxyserver.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Beim Zugriff auf den Proxyserver für die URI „%1“ ist ein Netzwerkfehler aufgetreten.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Der Zugriff auf die URI „%1“ wurde verweigert. Ist die URI gültig? Ist der Inhalt lesbar?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Der Inhalt der URI „%1“ konnte nicht abgerufen werden. Ist die URI gültig? Ist der Inhalt lesbar?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Die URI „%1“ wurde nicht gefunden. Ist die URI gültig? Ist der Inhalt lesbar?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>Für den Zugriff auf die URI „%1“ ist eine Anmeldung erforderlich. Prüfen Sie die URI und die angegebenen Benutzernamen und Passwörter.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>Der Inhalt für die URI „%1“ müsste erneut gesendet werden, ist aber nicht mehr verfügbar.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Beim Verarbeiten des Inhalts, der von der URI „%1“ abgerufen wurde, ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>Das Protokoll der URI „%1“ ist für dieses Programm nicht gültig.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>Über das Protokoll der URI „%1“ konnte kein Inhalt abgerufen werden.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>Die Aushandlung zwischen Client und Server für das Protokoll der URI „%1“ konnte nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Unerwarteter Netzwerkfehler „%1“ für die URI „%2“.</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>nicht beendet</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installiert</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>wird beim Neustart installiert</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>installiert, nicht bestätigt</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nicht versucht</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Installationsverlauf</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Installierte Updates</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeitpunkt</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Nur die neuesten Einträge werden angezeigt.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Einige Einträge sind beschädigt und können nicht angezeigt werden.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>Installations&amp;verlauf</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Es wird noch %n Sekunde gewartet&#xa0;…</numerusform>
            <numerusform>Es wird noch %n Sekunden gewartet&#xa0;…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Paketdatenbank wird repariert&#xa0;…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>Updates</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Mit Ravel installieren Sie die neuesten Updates für die Software Ihres Thin Clients</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Mit &lt;b&gt;Ravel&lt;/b&gt; können Sie installieren:&lt;ol&gt;  &lt;li&gt;Vollständige Software-Abbilder&lt;/li&gt;  &lt;li&gt;Service Packs mit gebündelter Software&lt;/li&gt;  &lt;li&gt;Updates einzelner Pakete&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Ravel lässt sich anpassen: Als Repositorys können die Standard-Updateseiten von CV, Repositorys Ihrer Firma oder Ihres Standorts oder auch lokale Speicher angegeben werden.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>Die Reparatur war nicht erfolgreich. Diese Pakete können entfernt werden. Um sie stattdessen erneut zu installieren, brechen Sie ab und wählen Sie sie aus.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Netzwerk-Proxys</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Optionen zur Auswahl von Netzwerk-Proxys</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Keine Proxys</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Manuelle Proxy-Einstellung:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Denselben Proxy für alle verwenden</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Art der Verbindung, z.&#xa0;B. HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Nummer des Netzwerk-Ports</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>Der Port für %1 muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>%1 kann nicht zurückgelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 enthält nicht das, was hineingeschrieben wurde.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Nur ein Administrator darf auf diesem System Software installieren.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Starten Sie das Programm als root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 benötigt %2, das nicht installiert ist.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Installieren Sie zuerst %2, oder installieren Sie es zusammen mit %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 benötigt %2, installiert ist aber Version %3.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 benötigt %2, das nicht konfiguriert ist.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Installieren Sie zuerst %2 erneut.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 benötigt %2, das nur teilweise installiert ist.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 kann nicht neben %2 installiert werden.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Installieren Sie nur eines der beiden, oder entfernen Sie zuerst das andere.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 würde das installierte %2 unbrauchbar machen.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Aktualisieren oder entfernen Sie zuerst %2.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>Das Paket enthält „%1“, das zu %2 gehört.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Aktualisieren oder entfernen Sie zuerst %2, oder bitten Sie den Herausgeber um ein korrigiertes Paket.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr frei.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Geben Sie Speicherplatz frei und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>Das System ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Heben Sie den Schreibschutz auf und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>Das System ist schreibgeschützt, und „%1“ hat daran nichts geändert.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Führen Sie „%1“ aus, um den Grund zu sehen, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>Das System lässt nicht zu, dass „%1“ geändert wird.</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Prüfen Sie die Attribute dieser Datei und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>Die Paketdatei „%1“ ist nicht vollständig.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Versuchen Sie es erneut; tritt der Fehler wieder auf, ist die Datei im Repository beschädigt.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>Die Paketdatei „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>Die Datei „%1“ ist kein Debian-Paket.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Bitten Sie den Administrator des Repositorys, sie zu ersetzen.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>Die Paketdatei „%1“ hat ein Format, das dieses System nicht lesen kann.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Aktualisieren Sie zuerst dpkg, oder bitten Sie den Herausgeber um ein Paket für dieses System.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>Die Steuerdaten von „%1“ sind fehlerhaft.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Bitten Sie den Herausgeber um ein korrigiertes Paket.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>Das Paket ist für %1 bestimmt, dieses System ist jedoch %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Installieren Sie das Paket für %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>Von %1 ist Version %2 installiert, die neuer ist als %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Entfernen Sie zuerst %1, wenn Sie die ältere Version möchten.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>Das Skript „%2“ von %1 ist mit dem Exit-Code %3 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>Die Ausgabe des Installationsprogramms nennt möglicherweise den Grund; falls nicht, wenden Sie sich an den Herausgeber von %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>Das Skript „%2“ von %1 wurde durch ein Signal beendet (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Versuchen Sie es erneut; tritt der Fehler wieder auf, wenden Sie sich an den Herausgeber von %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>Das Skript „%2“ von %1 darf an seinem Speicherort nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Prüfen Sie, ob das Dateisystem von „%3“ mit „noexec“ eingehängt ist.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>Das Skript „%2“ von %1 kann nicht ausgeführt werden, da sein Interpreter fehlt.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Installieren Sie das Programm, das in der ersten Zeile des Skripts genannt ist, oder wenden Sie sich an den Herausgeber von %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Ein Trigger von %1 ist mit dem Exit-Code %2 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Installieren Sie %1 erneut; die Ausgabe des Installationsprogramms zeigt möglicherweise, warum sein Trigger fehlgeschlagen ist.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 ist nur teilweise installiert.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Installieren Sie %1 erneut.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>Das Installationsprogramm hat nach zu vielen Fehlern aufgegeben.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Installieren Sie weniger Pakete auf einmal.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>Die Paketdatenbank ist beschädigt: „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Bitten Sie einen Administrator, die Paketdatenbank aus einer Sicherung wiederherzustellen.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>Die Paketdatenbank nennt „%1“; einen solchen Benutzer oder eine solche Gruppe kennt dieses System nicht.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Legen Sie diesen Benutzer oder diese Gruppe an, oder entfernen Sie den Eintrag mit dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Das Programm „%1“ fehlt.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Bitten Sie einen Administrator, es zu installieren, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Das Programm „%1“ kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Bitten Sie einen Administrator, es zu reparieren, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>Das Installationsprogramm hat kein Paket erhalten.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>Das Installationsprogramm wurde durch ein Signal beendet (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Versuchen Sie es erneut; möglicherweise war der Arbeitsspeicher knapp, oder das System wurde heruntergefahren.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Das Installationsprogramm „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>Das Installationsprogramm „%1“ ist nicht ausführbar.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Bitten Sie einen Administrator, seine Zugriffsrechte zu korrigieren.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>Das Installationsprogramm „%1“ ist mit dem Exit-Code %2 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>Die Ausgabe des Installationsprogramms nennt möglicherweise den Grund.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Das System konnte nicht neu gestartet werden, das Abbild ist daher nicht installiert.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Finden Sie heraus, warum „%1“ fehlschlägt, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>Die Ursache ist nicht bekannt, und das Installationsprogramm hat nichts ausgegeben.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>Die Ursache ist nicht bekannt; das Installationsprogramm meldet: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Warten Sie, bis dieses Programm beendet ist, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Das Herunterladen ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Nicht genug Platz in „%1“: %2 benötigt, %3 frei.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>Das Programm wurde beendet, bevor die Installation abgeschlossen war.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>Das Zertifikat von %1 ist nicht gültig und wurde hier angenommen. Nach dem Neustart lehnt das Gerät es möglicherweise ab und erhält dann kein Abbild.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>Das Abbild ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>Der Server verlangt eine Anmeldung für das Abbild. Das Gerät hat keine anderen Anmeldedaten als die im Speicherort des Repositorys.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>Der Proxy verlangt eine Anmeldung; dem Gerät fehlen die Anmeldedaten.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>Der Server hat dort kein Abbild: Er antwortet %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>Das Abbild kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>Das Abbild ist leer.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>Anstelle des Abbilds ist dort eine Webseite.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>Die Datei ist kein Abbild: Sie ist nicht mit gzip gepackt.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>Das Abbild hat %1 Byte. Laut seiner Beschreibung müssten es %2 sein.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Das Installationsprogramm „%1“ kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>Das Paket ist beschädigt oder nicht vollständig.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>Das Installationsprogramm nimmt nur Dateien an, deren Name auf „.deb“ endet.</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>In %1 ist dafür kein Platz mehr frei.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>Das Archiv ist beschädigt oder wurde wegen seines Inhalts abgelehnt.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Es ist kein Archiv mehr zum Installieren übrig.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Für „%1“ gibt es kein Installationsprogramm</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>Es kann nicht zusammen mit den anderen installiert werden.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>Das vorhergehende Service Pack wurde nicht installiert.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Wechsel in das temporäre Verzeichnis „%1“ nicht möglich</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Das Herunterladen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>Die am %1 gestartete Installation läuft noch.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>Die am %1 gestartete Installation lief ohne ihr Programm weiter und endete ohne Fehler.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>Die am %1 gestartete Installation lief ohne ihr Programm weiter und schlug mit dem Exit-Code %2 fehl.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>Die am %1 gestartete Installation lief ohne ihr Programm weiter und wurde durch das Signal %2 beendet.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>Die am %1 gestartete Installation wurde unterbrochen. Wie sie endete, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>Die Paketdatenbank ist durch einen anderen Prozess gesperrt.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>Die Paketdatenbank ist durch den Prozess %1 gesperrt.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>Die Paketdatenbank ist durch %1 (Prozess %2) gesperrt.</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Dieser Benutzer darf keine Updates installieren: „%1“ kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Das Programm „%1“, das die Updates installiert, fehlt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>„%1“ ist schreibgeschützt, und das Programm „%2“, das das System entsperrt, fehlt.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Eine frühere Installation von Paketen wurde unterbrochen und muss zuerst repariert werden (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Eine frühere Installation von Paketen wurde unterbrochen und muss zuerst repariert werden.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Eine frühere Installation läuft noch.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Eine andere Installation läuft bereits: %1 (Prozess %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Installation abgebrochen</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>Das Abbild wird beim Neustart installiert</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Installation fehlgeschlagen</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Installiert, aber das System kann es nicht bestätigen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>%1 von %n Update installiert</numerusform>
            <numerusform>%1 von %n Updates installiert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 Update installiert</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n Update installiert</numerusform>
            <numerusform>%n Updates installiert</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>Das Installationsprogramm wurde durch ein Signal beendet.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>Das Installationsprogramm wurde mit dem Exit-Code %1 beendet.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>Die Paketdatenbank kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>Es ist auf dem System nicht vorhanden.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>Es ist entpackt, aber nicht konfiguriert.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>Das System hat die Version %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>Das Installationsprogramm hat das installierte Paket unverändert gelassen.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Es stand schon vorher in der Liste der installierten Service Packs.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Dieses System hat keine Liste der installierten Service Packs.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>Es steht nicht in der Liste der installierten Service Packs.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Signiert von %1, gültig bis %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Nicht signiert: Wer den Server kontrolliert, bestimmt, was installiert wird</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Nicht signiert: Wer den Server oder das Netzwerk kontrolliert, bestimmt, was installiert wird</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Auf Beschädigung geprüft, aber nicht signiert: Wer den Server kontrolliert, bestimmt, was installiert wird</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Nur Dateien, die der Herausgeber aufgelistet und signiert hat, werden angeboten und installiert.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Dieses Gerät kann die Signatur des Repositorys nicht prüfen.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Das Repository ist nicht das, was sein Herausgeber signiert hat.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Die Liste der Dateien des Repositorys oder ihre Signatur fehlt.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Dieses Gerät kann sich die neueste Liste nicht merken und würde daher eine veraltete nicht erkennen.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>Die Definition dieses Abschnitts verlangt keine Signatur. Der Herausgeber kann das Repository signieren.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>Die Signatur des Repositorys ist derzeit nicht gültig, oder die Uhr dieses Geräts geht falsch.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>Das Abbild wird einmal gelesen und mit der Liste des Repositorys verglichen, was Beschädigungen aufdeckt. Nach dem Neustart ruft das Gerät das Abbild erneut ab und prüft nichts: Ein feindlicher Server kann dann ein anderes liefern.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URIs der Repositorys</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Optionen zum Ändern der Speicherorte von Repositorys mit Updates</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>„%1“ ist keine gültige URI.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>„%1“ ist kein unterstütztes URI-Schema.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, ausgewählt</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, nicht ausgewählt</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Updates werden abgerufen&#xa0;…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Update</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Installierte
Version</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Neue
Version</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>nicht konfiguriert</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Ein Name oder Passwort mit Zeilenumbruch oder NUL kann nicht an einen FTP-Server gesendet werden</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Nicht mit einem FTP-Server verbunden</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>Die Datenverbindung kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>Das Verzeichnis ist zu groß, um aufgelistet zu werden</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>Die Datenverbindung ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>Die Übertragung endete vorzeitig, nach %1 von %2 Byte</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>Die Antwort des Servers ist zu lang</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>Der Server hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Rechner %1 nicht gefunden</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Zeitüberschreitung bei der Verbindung zum Rechner %1</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Verbindung zum Rechner %1 abgelehnt</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>Der Server spricht kein FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Der Server verlangt ein Konto (ACCT), was nicht unterstützt wird</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Der Server antwortet %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>Der Server hat keinen Port für die Datenverbindung angegeben</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Unerwartete Antwort vom Server: %1</translation>
    </message>
</context>
</TS>
