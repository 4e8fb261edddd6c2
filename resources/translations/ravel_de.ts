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
        <source>Shows what the installer writes.</source>
        <translation>Zeigt, was das Installationsprogramm ausgibt.</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Signiert von %1, gültig bis %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Hier kann nichts gespeichert werden: Ein alter Stand des Repositorys wird nicht bemerkt.</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>Die Definition dieses Abschnitts verlangt keine Signatur. Der Herausgeber des Repositorys kann es signieren.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Dieses Gerät kann die Signatur des Repositorys nicht prüfen.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>Die Signatur des Repositorys ist derzeit nicht gültig oder die Uhr dieses Geräts geht falsch.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Das Repository ist nicht das, was sein Herausgeber signiert hat.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>Das Abbild wird einmal gelesen und mit der Liste des Repositorys verglichen. Beschädigungen werden so erkannt. Nach dem Neustart ruft das Gerät das Abbild erneut ab und prüft nichts: Ein böswilliger Server kann ihm dann ein anderes liefern.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Die Liste der Dateien des Repositorys oder ihre Signatur fehlt.</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>Der Server nennt keinen Port für die Datenverbindung</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Unerwartete Antwort des Servers: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Der Server verlangt ein Konto (ACCT), was nicht unterstützt wird</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Der Server antwortet %1</translation>
    </message>
</context>
</TS>
