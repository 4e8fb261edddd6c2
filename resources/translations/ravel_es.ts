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
        <source>Shows what the installer writes.</source>
        <translation>Muestra lo que escribe el instalador.</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Firmado por %1, válido hasta %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Aquí no se puede guardar nada: no se detecta un estado antiguo del repositorio.</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>La definición de esta sección no exige una firma. El editor del repositorio puede firmarlo.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Este dispositivo no puede comprobar la firma del repositorio.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>La firma del repositorio no es válida en este momento o el reloj de este dispositivo no está en hora.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>El repositorio no es el que firmó su editor.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>La imagen se lee una vez y se compara con la lista del repositorio. Así se detectan los daños. Tras el reinicio, el dispositivo vuelve a obtener la imagen y no comprueba nada: un servidor malintencionado puede darle entonces otra.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Falta la lista de archivos del repositorio o su firma.</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>El servidor no indica ningún puerto para la conexión de datos</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Respuesta inesperada del servidor: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>El servidor pide una cuenta, lo que no se admite</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>El servidor responde %1</translation>
    </message>
</context>
</TS>
