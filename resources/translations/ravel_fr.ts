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
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Affiche la sortie du programme d’installation.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installée</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>sera installée au redémarrage</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>installée, mais le système ne peut pas le confirmer</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omise</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non tentée</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulée</translation>
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
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>non terminée</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installée</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>sera installée au redémarrage</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>installée, non confirmée</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omise</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non tentée</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Historique des installations</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Mises à jour installées</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Depuis</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Seules les entrées les plus récentes sont affichées.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Certaines entrées sont endommagées et ne peuvent pas être affichées.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;Historique des installations</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Encore %n seconde d’attente…</numerusform>
            <numerusform>Encore %n secondes d’attente…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Réparation de la base de données des paquets…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>La réparation n’a pas réussi. Ces paquets peuvent être supprimés. Pour les réinstaller à la place, annulez et sélectionnez-les.</translation>
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
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>Impossible de relire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 ne contient pas ce qui y a été écrit.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Seul un administrateur peut effectuer des installations sur ce système.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Démarrez le programme en tant que root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 nécessite %2, qui n’est pas installé.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Installez d’abord %2, ou installez-le avec %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 nécessite %2, mais la version installée est %3.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 nécessite %2, qui n’est pas configuré.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Réinstallez d’abord %2.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 nécessite %2, qui n’est que partiellement installé.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 ne peut pas être installé en même temps que %2.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>N’installez que l’un des deux, ou supprimez d’abord l’autre.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 rendrait inutilisable le paquet installé %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Mettez d’abord %2 à jour ou supprimez-le.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>Le paquet contient «&#xa0;%1&#xa0;», qui appartient à %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Mettez d’abord %2 à jour ou supprimez-le, ou demandez à l’éditeur un paquet corrigé.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Il n’y a plus d’espace libre sur le disque.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>Le système est en lecture seule.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Rendez-le accessible en écriture, puis réessayez.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>Le système est en lecture seule, et «&#xa0;%1&#xa0;» n’y a rien changé.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Exécutez «&#xa0;%1&#xa0;» pour en connaître la raison, puis réessayez.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>Le système ne permet pas de modifier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Vérifiez les attributs de ce fichier, puis réessayez.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>Le fichier de paquet «&#xa0;%1&#xa0;» est incomplet.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Réessayez&#x202f;; si le problème persiste, le fichier du dépôt est endommagé.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>Le fichier de paquet «&#xa0;%1&#xa0;» est endommagé.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas un paquet Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Demandez à l’administrateur du dépôt de le remplacer.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>Le fichier de paquet «&#xa0;%1&#xa0;» est dans un format que ce système ne peut pas lire.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Mettez d’abord dpkg à jour, ou demandez à l’éditeur un paquet adapté à ce système.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>Les données de contrôle de «&#xa0;%1&#xa0;» sont incorrectes.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Demandez à l’éditeur un paquet corrigé.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>Le paquet est destiné à %1, mais ce système est %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Installez le paquet destiné à %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>La version %2 de %1 est installée&#x202f;; elle est plus récente que %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Supprimez d’abord %1 si vous voulez la version antérieure.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>Le script «&#xa0;%2&#xa0;» de %1 a échoué avec le code de sortie %3.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>La sortie du programme d’installation en indique peut-être la raison&#x202f;; sinon, adressez-vous à l’éditeur de %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>Le script «&#xa0;%2&#xa0;» de %1 a été arrêté par un signal (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Réessayez&#x202f;; si le problème persiste, adressez-vous à l’éditeur de %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>Le script «&#xa0;%2&#xa0;» de %1 ne peut pas être exécuté à son emplacement.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Vérifiez si le système de fichiers de «&#xa0;%3&#xa0;» est monté avec «&#xa0;noexec&#xa0;».</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>Le script «&#xa0;%2&#xa0;» de %1 ne peut pas être exécuté, car son interpréteur est absent.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Installez le programme indiqué sur la première ligne du script, ou adressez-vous à l’éditeur de %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Un déclencheur de %1 a échoué avec le code de sortie %2.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Réinstallez %1&#x202f;; la sortie du programme d’installation indique peut-être pourquoi son déclencheur a échoué.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 n’est que partiellement installé.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Réinstallez %1.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>Le programme d’installation a abandonné après un trop grand nombre d’erreurs.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Installez moins de paquets à la fois.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>La base de données des paquets est endommagée&#xa0;: impossible de lire «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Demandez à un administrateur de restaurer la base de données des paquets à partir d’une copie.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>La base de données des paquets mentionne «&#xa0;%1&#xa0;», un utilisateur ou un groupe que ce système ne connaît pas.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Ajoutez cet utilisateur ou ce groupe, ou supprimez l’entrée avec dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Le programme «&#xa0;%1&#xa0;» est absent.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Demandez à un administrateur de l’installer, puis réessayez.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Le programme «&#xa0;%1&#xa0;» ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Demandez à un administrateur de le réparer, puis réessayez.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>Le programme d’installation n’a reçu aucun paquet.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Réessayez.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>Le programme d’installation a été arrêté par un signal (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Réessayez&#x202f;; le système a peut-être manqué de mémoire ou été arrêté.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Le programme d’installation «&#xa0;%1&#xa0;» est absent.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>Le programme d’installation «&#xa0;%1&#xa0;» n’est pas exécutable.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Demandez à un administrateur de corriger ses permissions.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>Le programme d’installation «&#xa0;%1&#xa0;» a échoué avec le code de sortie %2.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>La sortie du programme d’installation en indique peut-être la raison.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Le système n’a pas pu être redémarré&#x202f;; l’image n’est donc pas installée.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Déterminez pourquoi «&#xa0;%1&#xa0;» échoue, puis réessayez.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>La cause est inconnue, et le programme d’installation n’a rien affiché.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>La cause est inconnue&#x202f;; le programme d’installation indique&#xa0;: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Attendez que ce programme soit terminé, puis réessayez.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Échec du téléchargement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Espace insuffisant dans «&#xa0;%1&#xa0;»&#xa0;: %2 nécessaires, %3 libres.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>Le programme a été arrêté avant la fin de l’installation.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>Le certificat de %1 n’est pas valable et a été accepté ici. Après le redémarrage, l’appareil peut le refuser&#x202f;; il n’obtient alors aucune image.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>L’image est absente.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>Le serveur exige une authentification pour l’image. L’appareil n’a pas d’autres identifiants que ceux de l’emplacement du dépôt.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>Le serveur mandataire exige des identifiants que l’appareil n’a pas.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>Le serveur n’a pas d’image à cet endroit&#xa0;: il répond %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>Impossible de lire l’image&#xa0;: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>L’image est vide.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>Une page web se trouve à la place de l’image.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>Le fichier n’est pas une image&#xa0;: il n’est pas compressé avec gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>L’image compte %1 octets. Sa description en indique %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Impossible de démarrer le programme d’installation «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>Le paquet est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>Le programme d’installation n’accepte que les fichiers dont le nom se termine par «&#xa0;.deb&#xa0;».</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>Il n’y a plus assez d’espace dans %1.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>L’archive est endommagée ou refusée en raison de son contenu.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Il ne reste aucune archive à installer.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Il n’y a pas de programme d’installation pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>Impossible de l’installer en même temps que les autres.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>Le service pack précédent n’a pas été installé.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Impossible d’accéder au répertoire temporaire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Son téléchargement a été interrompu.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>L’installation démarrée le %1 est toujours en cours.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>L’installation démarrée le %1 s’est poursuivie sans son programme et s’est terminée sans erreur.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>L’installation démarrée le %1 s’est poursuivie sans son programme et a échoué avec le code de sortie %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>L’installation démarrée le %1 s’est poursuivie sans son programme et a été arrêtée par le signal %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>L’installation démarrée le %1 a été interrompue. On ignore comment elle s’est terminée.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>La base de données des paquets est verrouillée par un autre processus.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>La base de données des paquets est verrouillée par le processus %1.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>La base de données des paquets est verrouillée par %1 (processus %2).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Cet utilisateur n’est pas autorisé à installer des mises à jour&#xa0;: «&#xa0;%1&#xa0;» ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Le programme «&#xa0;%1&#xa0;», qui installe les mises à jour, est absent.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>«&#xa0;%1&#xa0;» est en lecture seule, et le programme «&#xa0;%2&#xa0;», qui déverrouille le système, est absent.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Une installation de paquets précédente a été interrompue et doit d’abord être réparée (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Une installation de paquets précédente a été interrompue et doit d’abord être réparée.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Une installation précédente est encore en cours.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Une autre installation est en cours&#xa0;: %1 (processus %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Installation annulée</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>L’image sera installée au redémarrage</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Échec de l’installation</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Installation effectuée, mais le système ne peut pas la confirmer</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>Mise à jour installée&#xa0;: %1 sur %n</numerusform>
            <numerusform>Mises à jour installées&#xa0;: %1 sur %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 mise à jour installée</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n mise à jour installée</numerusform>
            <numerusform>%n mises à jour installées</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>Le programme d’installation a été arrêté par un signal.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>Le programme d’installation s’est terminé avec le code de sortie %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>Impossible de lire la base de données des paquets.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>Le paquet est absent du système.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>Le paquet est décompressé, mais non configuré.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>Le système a la version %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>Le programme d’installation a laissé le paquet installé tel quel.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Il figurait déjà dans la liste des service packs installés.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Ce système n’a pas de liste des service packs installés.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>Il ne figure pas dans la liste des service packs installés.</translation>
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
        <source>This device cannot check the signature of the repository.</source>
        <translation>Cet appareil ne peut pas vérifier la signature du dépôt.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Le dépôt n’est pas celui que son éditeur a signé.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>La liste des fichiers du dépôt ou sa signature est absente.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Cet appareil ne peut pas mémoriser la liste la plus récente&#x202f;; il ne remarquerait donc pas une liste obsolète.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>La définition de cette section n’exige pas de signature. L’éditeur peut signer le dépôt.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>La signature du dépôt n’est pas valable actuellement, ou l’horloge de cet appareil est mal réglée.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>L’image est lue une fois et comparée à la liste du dépôt, ce qui révèle d’éventuels dommages. Après le redémarrage, l’appareil récupère de nouveau l’image sans rien vérifier&#xa0;: un serveur malveillant peut alors en fournir une autre.</translation>
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
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>non configurée</translation>
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
        <source>The server asks for an account, which is not supported</source>
        <translation>Le serveur demande un compte, ce qui n’est pas pris en charge</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Le serveur répond %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>Le serveur n’a indiqué aucun port pour la connexion de données</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Réponse inattendue du serveur&#xa0;: %1</translation>
    </message>
</context>
</TS>
