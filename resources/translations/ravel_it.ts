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
        <source>Shows what the installer writes.</source>
        <translation>Mostra ciò che scrive il programma di installazione.</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Firmato da %1, valido fino al %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Qui non è possibile salvare nulla: uno stato precedente del repository non viene rilevato.</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>La definizione di questa sezione non richiede una firma. L’editore del repository può firmarlo.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Questo dispositivo non può verificare la firma del repository.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>La firma del repository non è valida in questo momento oppure l’orologio di questo dispositivo è errato.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Il repository non è quello firmato dal suo editore.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>L’immagine viene letta una volta e confrontata con l’elenco del repository. In questo modo si rilevano i danni. Dopo il riavvio il dispositivo recupera di nuovo l’immagine e non verifica nulla: un server ostile può allora fornirgliene un’altra.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>L’elenco dei file del repository o la sua firma non è presente.</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>Il server non indica alcuna porta per la connessione dati</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Risposta inattesa del server: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Il server richiede un account, funzione non supportata</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Il server risponde %1</translation>
    </message>
</context>
</TS>
