<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Installazione di un’immagine completa in attesa.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>L’installazione di una nuova immagine impone un riavvio e cancella completamente l’immagine del disco presente sul thin client, comprese tutte le impostazioni. Continuare?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>Operazione in corso…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostra dettagli</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Output del programma di installazione</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v di %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Installazione degli aggiornamenti…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  Completato</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(L’inizio dell’output è omesso.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Impossibile avviare il processo.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>Il processo si è interrotto in modo anomalo.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>Il processo ha superato il tempo limite.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Errore di lettura dal processo.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Errore di scrittura verso il processo.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Errore sconosciuto del processo.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Mostra l’output del programma di installazione.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installato</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscito</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>verrà installato al riavvio</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>installato, ma il sistema non può confermarlo</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>escluso</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non tentato</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Accetta il certificato</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Rifiuta il certificato</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Certificato</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Impossibile convalidare il certificato:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostra dettagli</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Rilasciato a</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Nome comune:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organizzazione:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Unità organizzativa:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Numero di serie:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Rilasciato da</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Data di rilascio:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Data di scadenza:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Impronte digitali</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>Impronta SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>Impronta MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>Impronta SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Contenuto</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e %n altro</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Titolo:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Versione:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Per le versioni:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Dimensione dell’aggiornamento:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Dimensione decompressa:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Dimensione installata:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Contenuto del service pack: </translation>
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
        <translation>Italiano</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>Risoluzione del nome host FTP «%1» non riuscita.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Operazione annullata</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>L’URI non esiste</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>L’URI non è una cartella</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>La cartella non è leggibile</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>Il protocollo non consente la lettura di cartelle</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>L’elenco della cartella è troppo grande</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>Tempo scaduto per la transazione FTP</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operazione annullata</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Connessione rifiutata dall’host FTP</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>Il certificato del server è stato revocato</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Opzioni avanzate di Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Opzioni avanzate di Ravel, come la modifica degli URI dei repository o la configurazione dei proxy Internet.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Posizioni dei repository</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URI delle posizioni dei repository per Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Proxy di rete</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Server proxy per l’accesso a Internet</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>In questa pagina è possibile sostituire gli URI dei repository degli aggiornamenti con valori locali o specifici del cliente. I valori predefiniti sono i repository standard di CV con gli aggiornamenti per thin client.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Non sono disponibili aggiornamenti di questo tipo.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installa</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Dettagli</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>&amp;Tutti</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;Nessuno</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Recupero</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Nome utente: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Password: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Recupero dei dati dal repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>È richiesta l’autenticazione per accedere a &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Impossibile recuperare i dati dal repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>È richiesta l’autenticazione per usare il proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>Connessione di rete rifiutata per l’URI «%1». Il server remoto non accetta richieste.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>Il server remoto per l’URI «%1» ha chiuso la connessione prima del completamento della transazione.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Impossibile trovare l’host per l’URI «%1». Controllare l’URI, la rete, i firewall e il DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Tempo scaduto nella comunicazione con il server per l’URI «%1». Controllare l’URI, la rete, i firewall e il DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>Recupero dalla rete interrotto per l’URI «%1».</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Impossibile stabilire un canale sicuro tramite negoziazione SSL/TLS per l’URI «%1».</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Si è verificato un errore di rete nel contattare l’URI «%1». Tutte le parti dell’URI sono valide? La rete funziona?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Impossibile stabilire una connessione con il server proxy per l’URI «%1».</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>Il server proxy ha chiuso prematuramente la connessione per l’URI «%1».</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>Impossibile contattare il server proxy per l’URI «%1». Controllare le impostazioni del proxy, l’URI, la rete, i firewall e il DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Tempo scaduto nella comunicazione con il server proxy per l’URI «%1».</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>Autenticazione presso il server proxy non riuscita per l’URI «%1». Controllare le credenziali da fornire al server proxy.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Si è verificato un errore di rete nel contattare il server proxy per l’URI «%1».</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Accesso negato per l’URI «%1». L’URI è valido? Il contenuto è leggibile?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Impossibile recuperare il contenuto dell’URI «%1». L’URI è valido? Il contenuto è leggibile?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Impossibile trovare l’URI «%1». L’URI è valido? Il contenuto è leggibile?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>È richiesta l’autenticazione per accedere all’URI «%1». Controllare l’URI e i nomi utente e le password forniti.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>Il contenuto per l’URI «%1» deve essere inviato di nuovo, ma non è più disponibile.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Si è verificato un errore nell’elaborazione del contenuto recuperato dall’URI «%1»</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>Il protocollo usato dall’URI «%1» non è valido per questo programma.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>Il protocollo usato dall’URI «%1» non ha consentito di recuperarne il contenuto.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>Impossibile completare la negoziazione tra client e server per il protocollo usato dall’URI «%1».</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Errore di rete imprevisto «%1» per l’URI «%2».</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Messaggio</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>non terminato</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installato</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscito</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>verrà installato al riavvio</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>installato, non confermato</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>escluso</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non tentato</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Cronologia delle installazioni</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Aggiornamenti installati</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Sono visualizzate solo le voci più recenti.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Alcune voci sono danneggiate e non possono essere visualizzate.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;Cronologia delle installazioni</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>In attesa ancora per %n secondo…</numerusform>
            <numerusform>In attesa ancora per %n secondi…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Riparazione del database dei pacchetti…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
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
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel consente di installare gli aggiornamenti più recenti del software del thin client</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; consente di installare:&lt;ol&gt;  &lt;li&gt;Immagini software complete&lt;/li&gt;  &lt;li&gt;Service pack di software&lt;/li&gt;  &lt;li&gt;Aggiornamenti di singoli pacchetti&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Per personalizzare Ravel, le posizioni dei repository possono indicare i siti di aggiornamento standard di CV, repository aziendali o della sede, oppure un archivio locale.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Ripara</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>La riparazione non è riuscita. È possibile rimuovere questi pacchetti. Per reinstallarli invece di rimuoverli, annullare e selezionarli.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Proxy di rete</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Opzioni per la scelta dei proxy di rete</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Configurazione manuale dei proxy:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Usa lo stesso proxy per tutti</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Tipo di connessione, ad es. HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Numero della porta di rete</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>La porta per %1 deve essere un numero da 1 a 65535.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>Impossibile rileggere %1: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 non contiene ciò che vi è stato scritto.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Solo un amministratore può eseguire installazioni su questo sistema.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Avviare il programma come root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 richiede %2, che non è installato.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Installare prima %2 oppure installarlo insieme a %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 richiede %2, ma è installata la versione %3.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 richiede %2, che non è configurato.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Reinstallare prima %2.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 richiede %2, che è installato solo in parte.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 non può essere installato insieme a %2.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Installare solo uno dei due oppure rimuovere prima l’altro.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 renderebbe inutilizzabile il pacchetto installato %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Aggiornare o rimuovere prima %2.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>Il pacchetto contiene «%1», che appartiene a %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Aggiornare o rimuovere prima %2 oppure chiedere all’editore un pacchetto corretto.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Non c’è più spazio sul disco.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>Il sistema è in sola lettura.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Renderlo scrivibile e riprovare.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>Il sistema è in sola lettura e «%1» non ha cambiato questo stato.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Eseguire «%1» per conoscerne il motivo e riprovare.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>Il sistema non consente di modificare «%1».</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Controllare gli attributi di questo file e riprovare.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>Il file di pacchetto «%1» non è completo.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Riprovare; se l’errore si ripete, il file nel repository è danneggiato.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>Il file di pacchetto «%1» è danneggiato.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>Il file «%1» non è un pacchetto Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Chiedere all’amministratore del repository di sostituirlo.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>Il file di pacchetto «%1» ha un formato che questo sistema non può leggere.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Aggiornare prima dpkg oppure chiedere all’editore un pacchetto per questo sistema.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>I dati di controllo di «%1» sono errati.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Chiedere all’editore un pacchetto corretto.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>Il pacchetto è per %1, ma questo sistema è %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Installare il pacchetto per %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>È installata la versione %2 di %1, più recente di %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Rimuovere prima %1 se si desidera la versione precedente.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>Lo script «%2» di %1 non è riuscito, con codice di uscita %3.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>L’output del programma di installazione può indicare il motivo; in caso contrario, rivolgersi all’editore di %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>Lo script «%2» di %1 è stato terminato da un segnale (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Riprovare; se l’errore si ripete, rivolgersi all’editore di %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>Lo script «%2» di %1 non può essere eseguito nella posizione in cui si trova.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Controllare se il file system di «%3» è montato con «noexec».</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>Lo script «%2» di %1 non può essere eseguito perché manca il suo interprete.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Installare il programma indicato nella prima riga dello script oppure rivolgersi all’editore di %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Un trigger di %1 non è riuscito, con codice di uscita %2.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Reinstallare %1; l’output del programma di installazione può indicare perché il trigger non è riuscito.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 è installato solo in parte.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Reinstallare %1.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>Il programma di installazione si è arrestato dopo troppi errori.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Installare meno pacchetti alla volta.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>Il database dei pacchetti è danneggiato: impossibile leggere «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Chiedere a un amministratore di ripristinare il database dei pacchetti da una copia.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>Il database dei pacchetti contiene «%1», un utente o gruppo sconosciuto a questo sistema.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Aggiungere tale utente o gruppo oppure rimuovere la voce con dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Il programma «%1» non è presente.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Chiedere a un amministratore di installarlo e riprovare.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Impossibile eseguire il programma «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Chiedere a un amministratore di ripararlo e riprovare.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>Il programma di installazione non ha ricevuto alcun pacchetto.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Riprovare.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>Il programma di installazione è stato terminato da un segnale (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Riprovare; la memoria del sistema potrebbe essere stata insufficiente oppure il sistema potrebbe essere stato spento.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Il programma di installazione «%1» non è presente.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>Il programma di installazione «%1» non è eseguibile.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Chiedere a un amministratore di correggerne i permessi.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>Il programma di installazione «%1» non è riuscito, con codice di uscita %2.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>L’output del programma di installazione può indicare il motivo.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Impossibile riavviare il sistema, quindi l’immagine non è installata.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Scoprire perché «%1» non riesce e riprovare.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>La causa non è nota e il programma di installazione non ha scritto nulla.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>La causa non è nota; il programma di installazione riporta: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Attendere che questo programma sia terminato e riprovare.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Download non riuscito: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Spazio insufficiente in «%1»: %2 necessari, %3 liberi.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>Il programma è stato terminato prima della fine dell’installazione.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>Il certificato di %1 non è valido ed è stato accettato qui. Dopo il riavvio il dispositivo potrebbe rifiutarlo e in tal caso non riceverebbe alcuna immagine.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>L’immagine non è presente.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>Il server richiede l’autenticazione per l’immagine. Il dispositivo non ha altre credenziali che quelle nella posizione del repository.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>Il proxy richiede credenziali che il dispositivo non ha.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>Il server non ha alcuna immagine in quella posizione: risponde %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>Impossibile leggere l’immagine: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>L’immagine è vuota.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>Al posto dell’immagine c’è una pagina web.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>Il file non è un’immagine: non è compresso con gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>L’immagine ha %1 byte. La sua descrizione ne indica %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Impossibile avviare il programma di installazione «%1»: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>Il pacchetto è danneggiato o non completo.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>Il programma di installazione accetta solo file il cui nome termina con «.deb».</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>Non c’è più spazio sufficiente in %1.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>L’archivio è danneggiato oppure è stato rifiutato per il suo contenuto.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Non resta alcun archivio da installare.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Non esiste un programma di installazione per «%1»</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>Non può essere installato insieme agli altri.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>Il service pack precedente non è stato installato.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Impossibile accedere alla cartella temporanea «%1»</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Il download è stato interrotto.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>L’installazione avviata il %1 è ancora in corso.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>L’installazione avviata il %1 è proseguita senza il suo programma e si è conclusa senza errori.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>L’installazione avviata il %1 è proseguita senza il suo programma e non è riuscita, con codice di uscita %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>L’installazione avviata il %1 è proseguita senza il suo programma ed è stata terminata dal segnale %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>L’installazione avviata il %1 è stata interrotta. Non è noto come si sia conclusa.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>Il database dei pacchetti è bloccato da un altro processo.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>Il database dei pacchetti è bloccato dal processo %1.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>Il database dei pacchetti è bloccato da %1 (processo %2).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Questo utente non può installare aggiornamenti: impossibile modificare «%1».</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Il programma «%1», che installa gli aggiornamenti, non è presente.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>«%1» è in sola lettura e il programma «%2», che sblocca il sistema, non è presente.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Una precedente installazione di pacchetti è stata interrotta e deve prima essere riparata (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Una precedente installazione di pacchetti è stata interrotta e deve prima essere riparata.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Un’installazione precedente è ancora in corso.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>È in corso un’altra installazione: %1 (processo %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Installazione annullata</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>L’immagine verrà installata al riavvio</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Installazione non riuscita</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Installazione eseguita, ma il sistema non può confermarla</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>Aggiornamento installato: %1 di %n</numerusform>
            <numerusform>Aggiornamenti installati: %1 di %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 aggiornamento installato</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n aggiornamento installato</numerusform>
            <numerusform>%n aggiornamenti installati</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>Il programma di installazione è stato terminato da un segnale.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>Il programma di installazione è terminato con codice di uscita %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>Impossibile leggere il database dei pacchetti.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>Il pacchetto non è presente nel sistema.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>Il pacchetto è stato estratto, ma non configurato.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>Il sistema ha la versione %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>Il programma di installazione ha lasciato invariato il pacchetto installato.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Era già presente nell’elenco dei service pack installati.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Questo sistema non ha un elenco dei service pack installati.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>Non è presente nell’elenco dei service pack installati.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Firmato da %1, valido fino al %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Non firmato: chi controlla il server controlla ciò che viene installato</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Non firmato: chi controlla il server o la rete controlla ciò che viene installato</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Integrità verificata, ma non firmato: chi controlla il server controlla ciò che viene installato</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Vengono proposti e installati solo i file che l’editore ha elencato e firmato.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Questo dispositivo non può verificare la firma del repository.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Il repository non è quello firmato dal suo editore.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>L’elenco dei file del repository o la sua firma non è presente.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Questo dispositivo non può memorizzare l’elenco più recente, quindi non si accorgerebbe di un elenco obsoleto.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>La definizione di questa sezione non richiede una firma. L’editore può firmare il repository.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>La firma del repository non è attualmente valida oppure l’orologio di questo dispositivo è errato.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>L’immagine viene letta una volta e confrontata con l’elenco del repository, il che rivela eventuali danni. Dopo il riavvio, il dispositivo recupera di nuovo l’immagine senza verificare nulla: un server ostile può allora fornirne un’altra.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URI dei repository</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Opzioni per modificare le posizioni dei repository degli aggiornamenti</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>«%1» non è un URI valido.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>«%1» non è uno schema URI supportato.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, selezionato</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, non selezionato</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Recupero degli aggiornamenti…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Versione
installata</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Versione
offerta</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>sconosciuta</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>non configurata</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Un nome o una password con un’interruzione di riga o un NUL non può essere inviato a un server FTP</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Non connesso a un server FTP</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>Impossibile aprire la connessione dati: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>La cartella è troppo grande per essere elencata</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>La connessione dati non è riuscita: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>Il trasferimento è terminato in anticipo, dopo %1 di %2 byte</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>La risposta del server è troppo lunga</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>Il server ha chiuso la connessione</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Host %1 non trovato</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Tempo scaduto per la connessione all’host %1</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Connessione rifiutata dall’host %1</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>Il server non usa FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Il server richiede un account, funzione non supportata</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Il server risponde %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>Il server non ha indicato alcuna porta per la connessione dati</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Risposta imprevista dal server: %1</translation>
    </message>
</context>
</TS>
