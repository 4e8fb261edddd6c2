<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Installatie van een volledige image staat klaar.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>De installatie van een nieuwe image dwingt een herstart af en wist de bestaande schijfimage van de thin client volledig, met inbegrip van alle instellingen. Wilt u doorgaan?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>Bezig…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details tonen</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Uitvoer van het installatieprogramma</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v van %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Updates worden geïnstalleerd…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  Gereed</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(Het begin van de uitvoer is weggelaten.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Het proces kon niet worden gestart.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>Het proces is gecrasht.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>De tijdslimiet van het proces is verstreken.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Fout bij het lezen van het proces.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Fout bij het schrijven naar het proces.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Onbekende procesfout.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Toont de uitvoer van het installatieprogramma.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultaten</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>geïnstalleerd</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>mislukt</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>wordt bij de herstart geïnstalleerd</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>geïnstalleerd, maar het systeem kan dit niet bevestigen</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>overgeslagen</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>niet geprobeerd</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Certificaat accepteren</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Certificaat weigeren</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Certificaat</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Het certificaat kon niet worden gevalideerd:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details tonen</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Uitgegeven aan</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Algemene naam:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organisatie:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Organisatie-eenheid:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Serienummer:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Uitgegeven door</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datums</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Uitgiftedatum:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Vervaldatum:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Vingerafdrukken</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>SHA1-vingerafdruk:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>MD5-vingerafdruk:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>SHA256-vingerafdruk:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Inhoud</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Opmerkingen</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>en nog %n</numerusform>
            <numerusform>en nog %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Titel:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Versie:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Voor versies:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Grootte van de update:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Grootte uitgepakt:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Grootte geïnstalleerd:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Inhoud van het servicepack: </translation>
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
        <translation>Nederlands</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>De FTP-hostnaam ‘%1’ kon niet worden gevonden.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Bewerking geannuleerd</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>De URI bestaat niet</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>De URI is geen map</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>De map is niet leesbaar</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>Het protocol ondersteunt het lezen van mappen niet</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>De mappenlijst is te groot</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>Tijdslimiet van de FTP-transactie verstreken</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Bewerking geannuleerd</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Aanmelden mislukt</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Verbinding geweigerd door de FTP-host</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>Het certificaat van de server is ingetrokken</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Geavanceerde opties voor Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Geavanceerde opties voor Ravel, zoals het wijzigen van de URI’s van repositories of het instellen van internetproxy’s.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Locaties van repositories</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URI’s van de repositories voor Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Netwerkproxy’s</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Proxyservers voor internettoegang</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>Op deze pagina kunt u de URI’s van de repositories met updates wijzigen in lokale of klantspecifieke waarden. Standaard worden de repositories van CV met updates voor thin clients gebruikt.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Er zijn geen updates van dit type beschikbaar.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Ve&amp;rnieuwen</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;Geen</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Ophalen</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Gebruikersnaam: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Wachtwoord: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opnieuw proberen</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Gegevens worden opgehaald van de repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Aanmelden is vereist voor toegang tot &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Kan geen gegevens ophalen van de repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Aanmelden is vereist voor het gebruik van de proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>De netwerkverbinding voor de URI ‘%1’ is geweigerd. De externe server accepteert geen verzoeken.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>De externe server voor de URI ‘%1’ heeft de verbinding verbroken voordat de transactie was voltooid.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>De host voor de URI ‘%1’ is niet gevonden. Controleer de URI, het netwerk, de firewalls en DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>De tijdslimiet is verstreken bij de communicatie met de server voor de URI ‘%1’. Controleer de URI, het netwerk, de firewalls en DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>Het ophalen van de URI ‘%1’ is afgebroken.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Er kon geen beveiligd kanaal via SSL/TLS tot stand worden gebracht voor de URI ‘%1’.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Er is een netwerkfout opgetreden bij het benaderen van de URI ‘%1’. Zijn alle delen van de URI geldig? Werkt het netwerk?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Er kon geen verbinding met de proxyserver tot stand worden gebracht voor de URI ‘%1’.</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>De proxyserver heeft de verbinding voor de URI ‘%1’ voortijdig verbroken.</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>De proxyserver voor de URI ‘%1’ is niet bereikbaar. Controleer de proxy-instellingen, de URI, het netwerk, de firewalls en DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>De tijdslimiet is verstreken bij de communicatie met de proxyserver voor de URI ‘%1’.</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>Het aanmelden bij de proxyserver voor de URI ‘%1’ is mislukt. Controleer de aanmeldgegevens voor de proxyserver.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Er is een netwerkfout opgetreden bij het benaderen van de proxyserver voor de URI ‘%1’.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>De toegang tot de URI ‘%1’ is geweigerd. Is de URI geldig? Is de inhoud leesbaar?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>De inhoud van de URI ‘%1’ kon niet worden opgehaald. Is de URI geldig? Is de inhoud leesbaar?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>De URI ‘%1’ is niet gevonden. Is de URI geldig? Is de inhoud leesbaar?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>Aanmelden is vereist voor toegang tot de URI ‘%1’. Controleer de URI en de opgegeven gebruikersnamen en wachtwoorden.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>De inhoud voor de URI ‘%1’ moet opnieuw worden verzonden, maar is niet meer beschikbaar.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Er is een fout opgetreden bij het verwerken van de opgehaalde inhoud van de URI ‘%1’</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>Het protocol van de URI ‘%1’ is niet geldig voor dit programma.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>Met het protocol van de URI ‘%1’ kon geen inhoud worden opgehaald.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>De onderhandeling tussen client en server voor het protocol van de URI ‘%1’ kon niet worden voltooid.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Onverwachte netwerkfout ‘%1’ voor de URI ‘%2’.</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Melding</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>niet beëindigd</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>geïnstalleerd</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>mislukt</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>wordt bij de herstart geïnstalleerd</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>geïnstalleerd, niet bevestigd</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>overgeslagen</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>niet geprobeerd</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Installatiegeschiedenis</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Geïnstalleerde updates</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van versie</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Naar versie</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Alleen de nieuwste vermeldingen worden getoond.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Sommige vermeldingen zijn beschadigd en kunnen niet worden getoond.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>Installatieges&amp;chiedenis</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Nog %n seconde wachten…</numerusform>
            <numerusform>Nog %n seconden wachten…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>De pakketdatabase wordt hersteld…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
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
        <translation>Met Ravel installeert u de nieuwste updates voor de software van uw thin client</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Met &lt;b&gt;Ravel&lt;/b&gt; kunt u installeren:&lt;ol&gt;  &lt;li&gt;Volledige software-images&lt;/li&gt;  &lt;li&gt;Servicepacks met gebundelde software&lt;/li&gt;  &lt;li&gt;Updates van afzonderlijke pakketten&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;U kunt Ravel aanpassen door als repositorylocatie de standaardupdatesites van CV, repositories van uw bedrijf of vestiging of zelfs lokale opslag op te geven.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>Het herstel is niet gelukt. Deze pakketten kunnen worden verwijderd. Als u ze in plaats daarvan opnieuw wilt installeren, annuleert u en selecteert u ze.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Netwerkproxy’s</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Opties voor het kiezen van netwerkproxy’s</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Geen proxy’s</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Handmatige proxyconfiguratie:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Dezelfde proxy voor alles gebruiken</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Type verbinding, bijv. HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Netwerkpoortnummer</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>De poort voor %1 moet een getal van 1 tot en met 65535 zijn.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>%1 kan niet worden teruggelezen: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 bevat niet wat ernaar is geschreven.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Alleen een beheerder mag op dit systeem software installeren.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Start het programma als root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 vereist %2, dat niet is geïnstalleerd.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Installeer eerst %2, of installeer het samen met %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 vereist %2, maar versie %3 is geïnstalleerd.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 vereist %2, dat niet is geconfigureerd.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Installeer eerst %2 opnieuw.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 vereist %2, dat slechts gedeeltelijk is geïnstalleerd.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 kan niet naast %2 worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Installeer slechts een van de twee, of verwijder eerst het andere.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 zou het geïnstalleerde %2 onbruikbaar maken.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Werk eerst %2 bij of verwijder het.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>Het pakket bevat ‘%1’, dat bij %2 hoort.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Werk eerst %2 bij of verwijder het, of vraag de uitgever om een gecorrigeerd pakket.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Er is geen ruimte meer vrij op de schijf.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>Het systeem is alleen-lezen.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Maak het beschrijfbaar en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>Het systeem is alleen-lezen en ‘%1’ heeft daar niets aan veranderd.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Voer ‘%1’ uit om te zien waarom en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>Het systeem staat niet toe dat ‘%1’ wordt gewijzigd.</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Controleer de attributen van dat bestand en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>Het pakketbestand ‘%1’ is niet volledig.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Probeer het opnieuw; als het weer gebeurt, is het bestand in de repository beschadigd.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>Het pakketbestand ‘%1’ is beschadigd.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>Het bestand ‘%1’ is geen Debian-pakket.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Vraag de beheerder van de repository het te vervangen.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>Het pakketbestand ‘%1’ heeft een indeling die dit systeem niet kan lezen.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Werk eerst dpkg bij, of vraag de uitgever om een pakket voor dit systeem.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>De besturingsgegevens van ‘%1’ zijn onjuist.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Vraag de uitgever om een gecorrigeerd pakket.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>Het pakket is voor %1, maar dit systeem is %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Installeer het pakket voor %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>Van %1 is versie %2 geïnstalleerd, die nieuwer is dan %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Verwijder eerst %1 als u de oudere versie wilt.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>Het script ‘%2’ van %1 is mislukt met afsluitcode %3.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>De uitvoer van het installatieprogramma vermeldt mogelijk de reden; neem anders contact op met de uitgever van %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>Het script ‘%2’ van %1 is door een signaal beëindigd (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Probeer het opnieuw; als het weer gebeurt, neem dan contact op met de uitgever van %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>Het script ‘%2’ van %1 mag niet worden uitgevoerd op de plaats waar het staat.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Controleer of het bestandssysteem van ‘%3’ met ‘noexec’ is aangekoppeld.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>Het script ‘%2’ van %1 kan niet worden uitgevoerd, omdat de interpreter ervan ontbreekt.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Installeer het programma dat op de eerste regel van het script staat, of neem contact op met de uitgever van %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Een trigger van %1 is mislukt met afsluitcode %2.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Installeer %1 opnieuw; de uitvoer van het installatieprogramma vermeldt mogelijk waarom de trigger is mislukt.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 is slechts gedeeltelijk geïnstalleerd.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Installeer %1 opnieuw.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>Het installatieprogramma is na te veel fouten gestopt.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Installeer minder pakketten tegelijk.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>De pakketdatabase is beschadigd: ‘%1’ kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Vraag een beheerder de pakketdatabase vanaf een kopie te herstellen.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>De pakketdatabase noemt ‘%1’, een gebruiker of groep die op dit systeem niet bekend is.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Voeg die gebruiker of groep toe, of verwijder de vermelding met dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Het programma ‘%1’ ontbreekt.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Vraag een beheerder het te installeren en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Het programma ‘%1’ kan niet worden uitgevoerd.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Vraag een beheerder het te repareren en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>Het installatieprogramma heeft geen enkel pakket ontvangen.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>Het installatieprogramma is door een signaal beëindigd (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Probeer het opnieuw; mogelijk had het systeem te weinig geheugen of werd het afgesloten.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Het installatieprogramma ‘%1’ ontbreekt.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>Het installatieprogramma ‘%1’ is niet uitvoerbaar.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Vraag een beheerder de rechten ervan te corrigeren.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>Het installatieprogramma ‘%1’ is mislukt met afsluitcode %2.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>De uitvoer van het installatieprogramma vermeldt mogelijk de reden.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Het systeem kon niet opnieuw worden gestart, dus de image is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Zoek uit waarom ‘%1’ mislukt en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>De oorzaak is niet bekend en het installatieprogramma heeft niets gemeld.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>De oorzaak is niet bekend; het installatieprogramma meldt: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Wacht tot dat programma is beëindigd en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Het downloaden is mislukt: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Niet genoeg ruimte in ‘%1’: %2 nodig, %3 vrij.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>Het programma is beëindigd voordat de installatie was voltooid.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>Het certificaat van %1 is niet geldig, maar is hier geaccepteerd. Na de herstart kan het apparaat het weigeren, en dan krijgt het geen image.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>De image is daar niet aanwezig.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>De server vereist aanmelding voor de image. Het apparaat heeft alleen de aanmeldgegevens uit de locatie van de repository.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>De proxy vereist aanmelding, maar het apparaat heeft daarvoor geen aanmeldgegevens.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>De server heeft daar geen image: het antwoord is %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>De image kan niet worden gelezen: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>De image is leeg.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>In plaats van de image staat er een webpagina.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>Het bestand is geen image: het is niet met gzip gecomprimeerd.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>De image is %1 bytes groot. Volgens de beschrijving zijn het er %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Het installatieprogramma ‘%1’ kan niet worden gestart: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>Het pakket is beschadigd of niet volledig.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>Het installatieprogramma accepteert alleen bestanden waarvan de naam op ‘.deb’ eindigt.</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>In %1 is geen ruimte meer vrij voor deze update.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>Het archief is beschadigd of vanwege de inhoud geweigerd.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Er is geen archief meer over om te installeren.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Er is geen installatieprogramma voor ‘%1’</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>Deze update kan niet samen met de andere worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>Het voorafgaande servicepack is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Kan de tijdelijke map ‘%1’ niet openen</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Het downloaden is beëindigd.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>De installatie die op %1 is gestart, loopt nog.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>De installatie die op %1 is gestart, ging zonder het bijbehorende programma verder en eindigde zonder fouten.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>De installatie die op %1 is gestart, ging zonder het bijbehorende programma verder en mislukte met afsluitcode %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>De installatie die op %1 is gestart, ging zonder het bijbehorende programma verder en werd door signaal %2 beëindigd.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>De installatie die op %1 is gestart, is onderbroken. Hoe deze is geëindigd, is niet bekend.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>De pakketdatabase is vergrendeld door een ander proces.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>De pakketdatabase is vergrendeld door proces %1.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>De pakketdatabase is vergrendeld door %1 (proces %2).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Deze gebruiker mag geen updates installeren: ‘%1’ kan niet worden gewijzigd.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Het programma ‘%1’, dat de updates installeert, ontbreekt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>‘%1’ is alleen-lezen en het programma ‘%2’, dat het systeem ontgrendelt, ontbreekt.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Een eerdere installatie van pakketten is onderbroken en moet eerst worden hersteld (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Een eerdere installatie van pakketten is onderbroken en moet eerst worden hersteld.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Er is nog een eerdere installatie bezig.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Er is een andere installatie bezig: %1 (proces %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Installatie geannuleerd</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>De image wordt bij de herstart geïnstalleerd</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Installatie mislukt</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Geïnstalleerd, maar het systeem kan dit niet bevestigen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>%1 van %n update geïnstalleerd</numerusform>
            <numerusform>%1 van %n updates geïnstalleerd</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 update geïnstalleerd</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n update geïnstalleerd</numerusform>
            <numerusform>%n updates geïnstalleerd</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>Het installatieprogramma is door een signaal beëindigd.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>Het installatieprogramma is geëindigd met afsluitcode %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>De pakketdatabase kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>Het pakket is niet aanwezig op het systeem.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>Het pakket is uitgepakt, maar niet geconfigureerd.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>Het systeem heeft versie %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>Het installatieprogramma heeft het geïnstalleerde pakket ongewijzigd gelaten.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Dit servicepack stond al eerder in de lijst met geïnstalleerde servicepacks.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Dit systeem heeft geen lijst met geïnstalleerde servicepacks.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>Dit servicepack staat niet in de lijst met geïnstalleerde servicepacks.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Ondertekend door %1, geldig tot en met %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Niet ondertekend: wie de controle heeft over de server, bepaalt wat er wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Niet ondertekend: wie de controle heeft over de server of het netwerk, bepaalt wat er wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Gecontroleerd op beschadiging, maar niet ondertekend: wie de controle heeft over de server, bepaalt wat er wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Alleen bestanden die de uitgever in de lijst heeft opgenomen en ondertekend, worden aangeboden en geïnstalleerd.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Dit apparaat kan de ondertekening van de repository niet controleren.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>De repository is niet wat de uitgever heeft ondertekend.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>De lijst met bestanden van de repository of de ondertekening ervan ontbreekt.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Dit apparaat kan de nieuwste lijst niet onthouden en zou een verouderde lijst dus niet opmerken.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>De definitie van deze sectie vereist geen ondertekening. De uitgever kan de repository ondertekenen.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>De ondertekening van de repository is momenteel niet geldig, of de klok van dit apparaat staat verkeerd.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>De image wordt één keer gelezen en met de lijst van de repository vergeleken, waardoor beschadigingen aan het licht komen. Na de herstart haalt het apparaat de image opnieuw op en controleert het niets: een kwaadwillende server kan dan een andere leveren.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URI’s van repositories</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Opties om de locaties van updaterepositories te wijzigen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>‘%1’ is geen geldige URI.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>‘%1’ is geen ondersteund URI-schema.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, geselecteerd</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, niet geselecteerd</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Updates worden opgehaald…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>Geïnstalleerde
versie</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Nieuwe
versie</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Selectie</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>geen</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>niet geconfigureerd</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Afgebroken</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Een naam of wachtwoord met een regeleinde of een NUL kan niet naar een FTP-server worden verzonden</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Niet verbonden met een FTP-server</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>De dataverbinding kan niet worden geopend: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>De map is te groot om te worden weergegeven</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>De dataverbinding is mislukt: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>De overdracht is voortijdig beëindigd, na %1 van %2 bytes</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>Het antwoord van de server is te lang</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>De server heeft de verbinding verbroken</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Host %1 niet gevonden</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Tijdslimiet voor de verbinding met host %1 verstreken</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Verbinding geweigerd door host %1</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>De server spreekt geen FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>De server vraagt om een account, wat niet wordt ondersteund</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>De server antwoordt %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>De server heeft geen poort voor de dataverbinding opgegeven</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Onverwacht antwoord van de server: %1</translation>
    </message>
</context>
</TS>
