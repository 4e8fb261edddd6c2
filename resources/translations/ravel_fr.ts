<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Installation d’une image complète en attente.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>L’installation d’une nouvelle image impose un redémarrage et efface entièrement l’image disque existante du client léger, y compris tous les réglages. Voulez-vous continuer&#x202f;?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>Opération en cours…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Shows what the installer writes.</source>
        <translation>Affiche ce qu’écrit le programme d’installation.</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Sortie du programme d’installation</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v sur %m Kio</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Installation des mises à jour…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p&#xa0;%:  Terminé</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(Le début de la sortie est omis.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Le processus n’a pas pu démarrer.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>Le processus a planté.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>Le processus a dépassé le délai imparti.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Erreur lors de la lecture depuis le processus.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Erreur lors de l’écriture vers le processus.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Erreur inconnue du processus.</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Accepter le certificat</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Refuser le certificat</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Le certificat n’a pas pu être validé&#xa0;:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Délivré à</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Nom commun&#xa0;:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organisation&#xa0;:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Unité organisationnelle&#xa0;:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Numéro de série&#xa0;:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Délivré par</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Dates</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Date d’émission&#xa0;:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Date d’expiration&#xa0;:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Empreintes</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>Empreinte SHA1&#xa0;:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>Empreinte MD5&#xa0;:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>Empreinte SHA256&#xa0;:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Remarques</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Titre&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Version&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Pour les versions&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Taille de la mise à jour&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Taille décompressée&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Taille installée&#xa0;:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Contenu du service pack&#xa0;: </translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <comment>KiB = kibibyte:  1024 bytes</comment>
        <translation>%1 Kio</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <comment>MiB = mebibyte:  1024*1024 bytes</comment>
        <translation>%1 Mio</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <comment>GiB = gibibyte:  1024*1024*1024 bytes</comment>
        <translation>%1 Gio</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Français</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>Échec de la résolution du nom d’hôte FTP «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Opération annulée</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>L’URI n’existe pas</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>L’URI n’est pas un répertoire</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>Le répertoire n’est pas lisible</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>Le protocole ne permet pas la lecture de répertoires</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>La liste du répertoire est trop grande</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>La transaction FTP a dépassé le délai imparti</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Opération annulée</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Échec de l’authentification</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Connexion refusée par l’hôte FTP</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>Le certificat du serveur a été révoqué</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Options avancées de Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Options avancées de Ravel, comme la modification des URI de dépôts ou la configuration de serveurs mandataires.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Emplacements des dépôts</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URI des emplacements de dépôts pour Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Serveurs mandataires</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Serveurs mandataires pour l’accès à Internet</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>Cette page vous permet de remplacer les URI des dépôts de mises à jour par des valeurs locales ou propres au client. Les valeurs par défaut sont les dépôts standard de CV pour les mises à jour de clients légers.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Aucune mise à jour de ce type n’est disponible.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Ac&amp;tualiser</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>T&amp;out</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>Au&amp;cun</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Nom d’utilisateur&#xa0;: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe&#xa0;: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Récupération des données du dépôt&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Une authentification est requise pour accéder à &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Impossible de récupérer les données du dépôt&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Une authentification est requise pour utiliser le serveur mandataire &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>La connexion réseau a été refusée pour l’URI «&#xa0;%1&#xa0;». Le serveur distant n’accepte pas les requêtes.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>Le serveur distant de l’URI «&#xa0;%1&#xa0;» a fermé la connexion avant la fin de la transaction.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>L’hôte de l’URI «&#xa0;%1&#xa0;» est introuvable. Vérifiez l’URI, le réseau, les pare-feu et le DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Délai dépassé lors de la communication avec le serveur de l’URI «&#xa0;%1&#xa0;». Vérifiez l’URI, le réseau, les pare-feu et le DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>La récupération par le réseau de l’URI «&#xa0;%1&#xa0;» a été interrompue.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Impossible d’établir un canal sécurisé par négociation SSL/TLS pour l’URI «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Une erreur réseau s’est produite en contactant l’URI «&#xa0;%1&#xa0;». Toutes les parties de l’URI sont-elles valides&#x202f;? Le réseau fonctionne-t-il&#x202f;?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Impossible d’établir une connexion au serveur mandataire pour l’URI «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>Le serveur mandataire a fermé prématurément la connexion pour l’URI «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>Impossible de contacter le serveur mandataire pour l’URI «&#xa0;%1&#xa0;». Vérifiez les réglages du serveur mandataire, l’URI, le réseau, les pare-feu et le DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Délai dépassé lors de la communication avec le serveur mandataire pour l’URI «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>L’authentification auprès du serveur mandataire a échoué pour l’URI «&#xa0;%1&#xa0;». Vérifiez les identifiants à fournir au serveur mandataire.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Une erreur réseau s’est produite en contactant le serveur mandataire pour l’URI «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>L’accès à l’URI «&#xa0;%1&#xa0;» a été refusé. L’URI est-elle valide&#x202f;? Le contenu est-il lisible&#x202f;?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Impossible de récupérer le contenu de l’URI «&#xa0;%1&#xa0;». L’URI est-elle valide&#x202f;? Le contenu est-il lisible&#x202f;?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>L’URI «&#xa0;%1&#xa0;» est introuvable. L’URI est-elle valide&#x202f;? Le contenu est-il lisible&#x202f;?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>Une authentification est requise pour accéder à l’URI «&#xa0;%1&#xa0;». Vérifiez l’URI ainsi que les noms d’utilisateur et mots de passe fournis.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>Le contenu doit être envoyé à nouveau pour l’URI «&#xa0;%1&#xa0;», mais il n’est plus disponible.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Une erreur s’est produite lors du traitement du contenu récupéré pour l’URI «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>Le protocole de l’URI «&#xa0;%1&#xa0;» n’est pas valide pour ce programme.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>Le protocole de l’URI «&#xa0;%1&#xa0;» n’a pas permis de récupérer le contenu.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>La négociation entre client et serveur pour le protocole de l’URI «&#xa0;%1&#xa0;» n’a pas pu aboutir.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Erreur réseau imprévue «&#xa0;%1&#xa0;» pour l’URI «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Message</translation>
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
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel vous permet d’installer les dernières mises à jour des logiciels de votre client léger</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; permet d’installer&#xa0;:&lt;ol&gt;  &lt;li&gt;des images logicielles complètes&lt;/li&gt;  &lt;li&gt;des service packs de logiciels groupés&lt;/li&gt;  &lt;li&gt;des mises à jour de paquets individuels&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Pour personnaliser Ravel, l’emplacement des dépôts peut désigner les sites de mise à jour standard de CV, des dépôts propres à l’entreprise ou au site, ou même un stockage local.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Serveurs mandataires</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Options de sélection des serveurs mandataires</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Aucun serveur mandataire</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Configuration manuelle des serveurs mandataires&#xa0;:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Utiliser le même serveur mandataire pour tous</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Protocole</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Type de connexion, par exemple HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Numéro de port réseau</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>Le port pour %1 doit être un nombre compris entre 1 et 65535.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Signé par %1, valable jusqu’au %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Rien ne peut être enregistré ici&#xa0;: un ancien état du dépôt n’est pas détecté.</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Non signé&#xa0;: quiconque contrôle le serveur contrôle ce qui est installé</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Non signé&#xa0;: quiconque contrôle le serveur ou le réseau contrôle ce qui est installé</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Intégrité vérifiée, mais non signé&#xa0;: quiconque contrôle le serveur contrôle ce qui est installé</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Seuls les fichiers que l’éditeur a répertoriés et signés sont proposés et installés.</translation>
    </message>
    <message>
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>La définition de cette section n’exige pas de signature. L’éditeur du dépôt peut signer celui-ci.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Cet appareil ne peut pas vérifier la signature du dépôt.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>La signature du dépôt n’est pas valable actuellement, ou l’horloge de cet appareil n’est pas à l’heure.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Le dépôt n’est pas celui que son éditeur a signé.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>L’image est lue une fois et comparée à la liste du dépôt. Les dommages sont ainsi détectés. Après le redémarrage, l’appareil récupère de nouveau l’image et ne vérifie rien&#xa0;: un serveur malveillant peut alors lui en donner une autre.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>La liste des fichiers du dépôt ou sa signature est absente.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URI des dépôts</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Options de modification des emplacements des dépôts de mises à jour</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une URI valide.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un protocole d’URI pris en charge.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, sélectionné</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, non sélectionné</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Récupération des mises à jour…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Version
installée</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Version
proposée</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>aucune</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Interrompu</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Un nom ou un mot de passe contenant un saut de ligne ou un caractère NUL ne peut pas être envoyé à un serveur FTP</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Non connecté à un serveur FTP</translation>
    </message>
    <message>
        <source>The server names no port for the data connection</source>
        <translation>Le serveur n’indique aucun port pour la connexion de données</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>Impossible d’ouvrir la connexion de données&#xa0;: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>Le répertoire est trop grand pour être listé</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>La connexion de données a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>Le transfert s’est terminé trop tôt, après %1 octets sur %2</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>La réponse du serveur est trop longue</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>Le serveur a fermé la connexion</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Hôte %1 introuvable</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Délai de connexion à l’hôte %1 dépassé</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Connexion refusée par l’hôte %1</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>Le serveur ne parle pas FTP</translation>
    </message>
    <message>
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Réponse inattendue du serveur&#xa0;: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Le serveur demande un compte, ce qui n’est pas pris en charge</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Le serveur répond %1</translation>
    </message>
</context>
</TS>
