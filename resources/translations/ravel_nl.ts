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
        <source>Shows what the installer writes.</source>
        <translation>Toont wat het installatieprogramma schrijft.</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Ondertekend door %1, geldig tot en met %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Hier kan niets worden opgeslagen: een oude staat van de repository wordt niet opgemerkt.</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>De definitie van deze sectie vraagt niet om een ondertekening. De uitgever van de repository kan deze ondertekenen.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Dit apparaat kan de ondertekening van de repository niet controleren.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>De ondertekening van de repository is nu niet geldig, of de klok van dit apparaat loopt niet goed.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>De repository is niet wat de uitgever heeft ondertekend.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>De image wordt één keer gelezen en vergeleken met de lijst van de repository. Zo wordt beschadiging gevonden. Na de herstart haalt het apparaat de image opnieuw op en controleert het niets: een kwaadwillende server kan dan een andere geven.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>De lijst met bestanden van de repository of de ondertekening ervan ontbreekt.</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>De server noemt geen poort voor de dataverbinding</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Onverwacht antwoord van de server: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>De server vraagt om een account, wat niet wordt ondersteund</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>De server antwoordt %1</translation>
    </message>
</context>
</TS>
