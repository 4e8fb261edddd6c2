<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Instalación de imagen completa pendiente.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>La instalación de una imagen nueva obliga a reiniciar y borra por completo la imagen de disco existente en el cliente ligero, incluida toda la configuración. ¿Desea continuar?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>En curso…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar detalles</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Salida del instalador</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v de %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Instalando actualizaciones…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p&#xa0;%:  Terminado</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(Se omite el principio de la salida.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>No se pudo iniciar el proceso.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>El proceso terminó inesperadamente.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>El proceso agotó el tiempo de espera.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Error al leer del proceso.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Error al escribir en el proceso.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Error de proceso desconocido.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Muestra la salida del instalador.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>instalada</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallida</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>se instalará al reiniciar</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>instalada, pero el sistema no puede confirmarlo</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitida</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>no intentada</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelada</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Aceptar el certificado</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Rechazar el certificado</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>No se pudo validar el certificado:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar detalles</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Emitido para</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Nombre común:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organización:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Unidad organizativa:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Número de serie:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Emitido por</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Fechas</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Fecha de emisión:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Fecha de caducidad:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Huellas digitales</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>Huella digital SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>Huella digital MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>Huella digital SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Título:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Versión:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Para las versiones:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tamaño de la actualización:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tamaño descomprimido:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tamaño instalado:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Contenido del service pack: </translation>
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
        <translation>Español</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>No se pudo resolver el nombre de servidor FTP «%1».</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Operación cancelada</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>El URI no existe</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>El URI no es un directorio</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>El directorio no se puede leer</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>El protocolo no permite leer directorios</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>La lista del directorio es demasiado grande</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>La transacción FTP agotó el tiempo de espera</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operación cancelada</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falló la autenticación</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>El servidor FTP rechazó la conexión</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>El certificado del servidor ha sido revocado</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Opciones avanzadas de Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Opciones avanzadas de Ravel, como modificar los URI de los repositorios o configurar los proxies de Internet.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Ubicaciones de los repositorios</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URI de las ubicaciones de los repositorios para Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Proxies de red</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Servidores proxy para el acceso a Internet</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>En esta página puede cambiar los URI de los repositorios de actualizaciones por valores locales o propios del cliente. De forma predeterminada se usan los repositorios estándar de CV con actualizaciones para clientes ligeros.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;No hay actualizaciones de este tipo disponibles.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Act&amp;ualizar</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;Ninguna</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Obtención de datos</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Nombre de usuario: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Contraseña: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Obteniendo datos del repositorio&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Se requiere autenticación para acceder a &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>No se pudieron obtener los datos del repositorio&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Se requiere autenticación para usar el proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>Se rechazó la conexión de red para el URI «%1». El servidor remoto no acepta solicitudes.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>El servidor remoto del URI «%1» cerró la conexión antes de completarse la transacción.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>No se encontró el servidor del URI «%1». Compruebe el URI, la red, los cortafuegos y el DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Se agotó el tiempo de espera al comunicarse con el servidor del URI «%1». Compruebe el URI, la red, los cortafuegos y el DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>Se interrumpió la descarga del URI «%1».</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>No se pudo establecer un canal seguro mediante SSL/TLS para el URI «%1».</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Se detectó un error de red al acceder al URI «%1». ¿Son válidas todas las partes del URI? ¿Funciona bien la red?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>No se pudo establecer una conexión con el servidor proxy para el URI «%1».</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>El servidor proxy cerró la conexión prematuramente para el URI «%1».</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>No se pudo contactar con el servidor proxy para el URI «%1». Compruebe la configuración del proxy, el URI, la red, los cortafuegos y el DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Se agotó el tiempo de espera al comunicarse con el servidor proxy para el URI «%1».</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>Falló la autenticación ante el servidor proxy para el URI «%1». Compruebe las credenciales para el servidor proxy.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Se detectó un error de red al contactar con el servidor proxy para el URI «%1».</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Se denegó el acceso al URI «%1». ¿Es válido el URI? ¿Se puede leer el contenido?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>No se pudo obtener el contenido del URI «%1». ¿Es válido el URI? ¿Se puede leer el contenido?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>No se encontró el URI «%1». ¿Es válido el URI? ¿Se puede leer el contenido?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>Se requiere autenticación para acceder al URI «%1». Compruebe el URI y los nombres de usuario y contraseñas indicados.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>Es necesario reenviar el contenido para el URI «%1», pero ya no está disponible.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Se detectó un error al procesar el contenido obtenido del URI «%1»</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>El protocolo del URI «%1» no es válido para este programa.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>El protocolo del URI «%1» no permitió obtener su contenido.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>No se pudo completar la negociación entre cliente y servidor para el protocolo del URI «%1».</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Error de red imprevisto «%1» para el URI «%2».</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Mensaje</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>sin terminar</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>instalada</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallida</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>se instalará al reiniciar</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>instalada, sin confirmar</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitida</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>no intentada</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelada</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Historial de instalaciones</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Actualizaciones instaladas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Solo se muestran las entradas más recientes.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Algunas entradas están dañadas y no se pueden mostrar.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;Historial de instalaciones</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Esperando %n segundo más…</numerusform>
            <numerusform>Esperando %n segundos más…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Reparando la base de datos de paquetes…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel le permite instalar las últimas actualizaciones del software de su cliente ligero</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; permite instalar:&lt;ol&gt;  &lt;li&gt;Imágenes de software completas&lt;/li&gt;  &lt;li&gt;Service packs de software agrupado&lt;/li&gt;  &lt;li&gt;Actualizaciones de paquetes individuales&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Para personalizar Ravel, las ubicaciones de los repositorios pueden apuntar a los sitios de actualización estándar de CV, a repositorios propios de la empresa o del centro, o incluso a un almacenamiento local.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>La reparación no tuvo éxito. Estos paquetes se pueden eliminar. Si prefiere volver a instalarlos, cancele y selecciónelos.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Proxies de red</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Opciones para elegir los proxies de red</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Sin proxies</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Configuración manual de proxies:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Usar el mismo proxy para todos</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Tipo de conexión, p. ej., HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Número de puerto de red</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>El puerto para %1 debe ser un número entre 1 y 65535.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>No se puede releer %1: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 no contiene lo que se escribió en él.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Solo un administrador puede instalar en este sistema.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Inicie el programa como root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 necesita %2, que no está instalado.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Instale primero %2, o instálelo junto con %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 necesita %2, pero está instalada la versión %3.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 necesita %2, que no está configurado.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Vuelva a instalar primero %2.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 necesita %2, que solo está instalado en parte.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 no se puede instalar junto con %2.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Instale solo uno de los dos o elimine antes el otro.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 dejaría inutilizable el paquete instalado %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Actualice o elimine primero %2.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>El paquete contiene «%1», que pertenece a %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Actualice o elimine primero %2, o pida al editor un paquete corregido.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>No queda espacio en el disco.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Libere espacio y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>El sistema es de solo lectura.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Habilite la escritura y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>El sistema es de solo lectura y «%1» no cambió ese estado.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Ejecute «%1» para ver el motivo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>El sistema no permite modificar «%1».</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Compruebe los atributos de ese archivo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>El archivo de paquete «%1» no está completo.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Vuelva a intentarlo; si el error se repite, el archivo del repositorio está dañado.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>El archivo de paquete «%1» está dañado.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>El archivo «%1» no es un paquete de Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Pida al administrador del repositorio que lo sustituya.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>El archivo de paquete «%1» tiene un formato que este sistema no puede leer.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Actualice primero dpkg, o pida al editor un paquete para este sistema.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>Los datos de control de «%1» son incorrectos.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Pida al editor un paquete corregido.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>El paquete es para %1, pero este sistema es %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Instale el paquete para %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>Está instalada la versión %2 de %1, que es más reciente que %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Elimine primero %1 si desea la versión anterior.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>El script «%2» de %1 falló con el código de salida %3.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>La salida del instalador puede indicar el motivo; si no, consulte al editor de %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>El script «%2» de %1 fue terminado por una señal (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Vuelva a intentarlo; si el error se repite, consulte al editor de %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>El script «%2» de %1 no se puede ejecutar en su ubicación.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Compruebe si el sistema de archivos de «%3» está montado con «noexec».</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>El script «%2» de %1 no se puede ejecutar porque falta su intérprete.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Instale el programa que indica la primera línea del script o consulte al editor de %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Un disparador de %1 falló con el código de salida %2.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Vuelva a instalar %1; la salida del instalador puede indicar por qué falló su disparador.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 solo está instalado en parte.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Vuelva a instalar %1.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>El instalador se detuvo tras demasiados errores.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Instale menos paquetes a la vez.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>La base de datos de paquetes está dañada: no se puede leer «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Pida a un administrador que restaure la base de datos de paquetes a partir de una copia.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>La base de datos de paquetes menciona «%1», un usuario o grupo que este sistema no conoce.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Añada ese usuario o grupo, o elimine la entrada con dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Falta el programa «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Pida a un administrador que lo instale y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>No se puede ejecutar el programa «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Pida a un administrador que lo repare y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>El instalador no recibió ningún paquete.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>El instalador fue terminado por una señal (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Vuelva a intentarlo; es posible que el sistema se quedara sin memoria o se apagara.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Falta el instalador «%1».</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>El instalador «%1» no es ejecutable.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Pida a un administrador que corrija sus permisos.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>El instalador «%1» falló con el código de salida %2.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>La salida del instalador puede indicar el motivo.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>No se pudo reiniciar el sistema, por lo que la imagen no está instalada.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Averigüe por qué falla «%1» y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>Se desconoce la causa y el instalador no escribió nada.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>Se desconoce la causa; el instalador dice: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Espere a que termine ese programa y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>No se pudo descargar: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>No hay espacio suficiente en «%1»: se necesitan %2 y hay %3 libres.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>El programa terminó antes de que finalizara la instalación.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>El certificado de %1 no es válido y se aceptó aquí. Tras el reinicio, es posible que el dispositivo lo rechace y entonces no reciba ninguna imagen.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>La imagen no está allí.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>El servidor exige autenticación para la imagen. El dispositivo no tiene más credenciales que las de la ubicación del repositorio.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>El proxy exige unas credenciales que el dispositivo no tiene.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>El servidor no tiene ninguna imagen allí: responde %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>No se puede leer la imagen: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>La imagen está vacía.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>En lugar de la imagen hay una página web.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>El archivo no es una imagen: no está comprimido con gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>La imagen tiene %1 bytes. Su descripción indica %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>No se puede iniciar el instalador «%1»: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>El paquete está dañado o no está completo.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>El instalador solo acepta archivos cuyo nombre termine en «.deb».</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>No queda espacio suficiente en %1.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>El archivo comprimido está dañado o se rechazó por su contenido.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>No queda ningún archivo comprimido por instalar.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>No hay ningún instalador para «%1»</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>No se puede instalar junto con las demás.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>No se instaló el service pack anterior.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>No se pudo acceder al directorio temporal «%1»</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Se interrumpió su descarga.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>La instalación iniciada el %1 sigue en curso.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>La instalación iniciada el %1 continuó sin su programa y terminó sin errores.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>La instalación iniciada el %1 continuó sin su programa y falló con el código de salida %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>La instalación iniciada el %1 continuó sin su programa y fue terminada por la señal %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>La instalación iniciada el %1 se interrumpió. Se desconoce cómo terminó.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>Otro proceso tiene bloqueada la base de datos de paquetes.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>El proceso %1 tiene bloqueada la base de datos de paquetes.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>%1 (proceso %2) tiene bloqueada la base de datos de paquetes.</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Este usuario no puede instalar actualizaciones: no se puede modificar «%1».</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Falta el programa «%1», que instala las actualizaciones.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>«%1» es de solo lectura y falta el programa «%2», que desbloquea el sistema.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Una instalación anterior de paquetes se interrumpió y primero hay que repararla (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Una instalación anterior de paquetes se interrumpió y primero hay que repararla.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Una instalación anterior sigue en curso.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Hay otra instalación en curso: %1 (proceso %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Instalación cancelada</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>La imagen se instalará al reiniciar</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Falló la instalación</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Instalación realizada, pero el sistema no puede confirmarla</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>Actualización instalada: %1 de %n</numerusform>
            <numerusform>Actualizaciones instaladas: %1 de %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 actualización instalada</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n actualización instalada</numerusform>
            <numerusform>%n actualizaciones instaladas</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>El instalador fue terminado por una señal.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>El instalador terminó con el código de salida %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>No se puede leer la base de datos de paquetes.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>El paquete no está en el sistema.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>El paquete está desempaquetado, pero sin configurar.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>El sistema tiene la versión %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>El instalador dejó el paquete instalado como estaba.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Ya estaba antes en la lista de service packs instalados.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Este sistema no tiene una lista de service packs instalados.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>No está en la lista de service packs instalados.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Firmado por %1, válido hasta %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Sin firmar: quien controla el servidor controla lo que se instala</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Sin firmar: quien controla el servidor o la red controla lo que se instala</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Se comprueban los daños, pero no está firmado: quien controla el servidor controla lo que se instala</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Solo se ofrecen e instalan los archivos que el editor ha incluido en su lista y firmado.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Este dispositivo no puede comprobar la firma del repositorio.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>El repositorio no es el que firmó su editor.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Falta la lista de archivos del repositorio o su firma.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Este dispositivo no puede recordar la lista más reciente, por lo que no detectaría una obsoleta.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>La definición de esta sección no exige firma. El editor puede firmar el repositorio.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>La firma del repositorio no es válida en este momento, o el reloj de este dispositivo no está en hora.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>La imagen se lee una vez y se compara con la lista del repositorio, lo que revela los daños. Tras el reinicio, el dispositivo vuelve a obtener la imagen sin comprobar nada: un servidor malintencionado puede entonces entregar otra.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URI de los repositorios</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Opciones para cambiar las ubicaciones de los repositorios de actualizaciones</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>«%1» no es un URI válido.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>«%1» no es un esquema de URI admitido.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, seleccionada</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, no seleccionada</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Obteniendo actualizaciones…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Versión
instalada</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Versión
nueva</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Selección</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>desconocida</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>sin configurar</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Interrumpido</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>No se puede enviar a un servidor FTP un nombre o una contraseña con un salto de línea o un carácter NUL</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Sin conexión con un servidor FTP</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>No se puede abrir la conexión de datos: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>El directorio es demasiado grande para listarlo</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>Falló la conexión de datos: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>La transferencia terminó antes de tiempo, tras %1 de %2 bytes</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>La respuesta del servidor es demasiado larga</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>El servidor cerró la conexión</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>No se encontró el servidor %1</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Se agotó el tiempo de conexión con el servidor %1</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Conexión rechazada por el servidor %1</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>El servidor no habla FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>El servidor pide una cuenta, lo que no se admite</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>El servidor responde %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>El servidor no indicó ningún puerto para la conexión de datos</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Respuesta inesperada del servidor: %1</translation>
    </message>
</context>
</TS>
