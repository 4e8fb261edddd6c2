<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Instalação de imagem completa pendente.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>A instalação de uma nova imagem forçará uma reinicialização e apagará completamente a imagem de disco existente no thin client, incluindo todas as configurações. Deseja continuar?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>Em andamento…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar detalhes</translation>
    </message>
    <message>
        <source>Shows what the installer writes.</source>
        <translation>Mostra o que o instalador escreve.</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Saída do instalador</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v de %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Instalando atualizações…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  Concluído</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(O início da saída foi omitido.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Falha ao iniciar o processo.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>O processo travou.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>O processo excedeu o tempo limite.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Erro ao ler do processo.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Erro ao escrever no processo.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Erro desconhecido do processo.</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Aceitar certificado</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Rejeitar certificado</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Não foi possível validar o certificado:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar detalhes</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Emitido para</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Nome comum:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Organização:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Unidade organizacional:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Número de série:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Emitido por</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datas</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Data de emissão:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Data de expiração:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Impressões digitais</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>Impressão digital SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>Impressão digital MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>Impressão digital SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Título:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Versão:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Para as versões:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tamanho da atualização:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tamanho descompactado:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Tamanho instalado:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Conteúdo do service pack: </translation>
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
        <translation>Português (Brasil)</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>Falha ao resolver o nome do servidor FTP “%1”.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Operação cancelada</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>O URI não existe</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>O URI não é um diretório</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>O diretório não pode ser lido</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>O protocolo não permite a leitura de diretórios</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>A listagem do diretório é muito grande</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>A transação FTP excedeu o tempo limite</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operação cancelada</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Conexão recusada pelo servidor FTP</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>O certificado do servidor foi revogado</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Opções avançadas do Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Opções avançadas do Ravel, como modificar os URIs dos repositórios ou configurar proxies de internet.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Locais dos repositórios</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URIs dos locais dos repositórios do Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Proxies de rede</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Servidores proxy para acesso à internet</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>Esta página permite alterar os URIs dos repositórios de atualizações para valores locais ou específicos do cliente. Os padrões são os repositórios da CV com atualizações para thin clients.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Nenhuma atualização deste tipo está disponível.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalhes</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>At&amp;ualizar</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;Nenhuma</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Obtenção de dados</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Nome de usuário: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Senha: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Tentar &amp;novamente</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Obtendo dados do repositório&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>É necessária autenticação para acessar &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Não foi possível obter dados do repositório&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>É necessária autenticação para usar o proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>Conexão de rede recusada para o URI “%1”. O servidor remoto não está aceitando solicitações.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>O servidor remoto do URI “%1” fechou a conexão antes do término da transação.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>O servidor do URI “%1” não foi encontrado. Verifique o URI, a rede, os firewalls e o DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Tempo esgotado ao tentar se comunicar com o servidor do URI “%1”. Verifique o URI, a rede, os firewalls e o DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>A busca na rede do URI “%1” foi interrompida.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Não foi possível estabelecer um canal seguro via SSL/TLS para o URI “%1”.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>Ocorreu um erro de rede ao acessar o URI “%1”. Todas as partes do URI são válidas? A rede está funcionando?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Não foi possível estabelecer uma conexão com o servidor proxy para o URI “%1”.</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>O servidor proxy fechou a conexão prematuramente para o URI “%1”.</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>Não foi possível contatar o servidor proxy para o URI “%1”. Verifique as configurações do proxy, o URI, a rede, os firewalls e o DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Tempo esgotado ao se comunicar com o servidor proxy para o URI “%1”.</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>A autenticação no servidor proxy falhou para o URI “%1”. Verifique as credenciais a serem fornecidas ao servidor proxy.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>Ocorreu um erro de rede ao contatar o servidor proxy para o URI “%1”.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>O acesso ao URI “%1” foi negado. O URI é válido? O conteúdo pode ser lido?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Não foi possível obter o conteúdo do URI “%1”. O URI é válido? O conteúdo pode ser lido?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Não foi possível encontrar o URI “%1”. O URI é válido? O conteúdo pode ser lido?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>É necessária autenticação para acessar o URI “%1”. Verifique o URI e os nomes de usuário e senhas fornecidos.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>O conteúdo do URI “%1” precisa ser reenviado, mas não está mais disponível.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>Ocorreu um erro ao processar o conteúdo obtido do URI “%1”</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>O protocolo usado pelo URI “%1” não é válido para este programa.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>O protocolo usado pelo URI “%1” não permitiu obter o conteúdo.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>Não foi possível concluir a negociação entre cliente e servidor para o protocolo usado pelo URI “%1”.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Erro de rede imprevisto “%1” para o URI “%2”.</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Mensagem</translation>
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
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>O Ravel permite instalar as atualizações mais recentes do software do seu thin client</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;O &lt;b&gt;Ravel&lt;/b&gt; permite instalar:&lt;ol&gt;  &lt;li&gt;Imagens de software completas&lt;/li&gt;  &lt;li&gt;Service packs de software&lt;/li&gt;  &lt;li&gt;Atualizações de pacotes individuais&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Para personalizar o Ravel, os locais dos repositórios podem apontar para os sites de atualização padrão da CV, para repositórios da empresa ou da unidade ou até para um armazenamento local.&lt;/p&gt;</translation>
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
        <translation>Proxies de rede</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Opções para escolher os proxies de rede</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Sem proxies</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Configuração manual de proxies:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Usar o mesmo proxy para todos</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Tipo de conexão, por exemplo, HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Número da porta de rede</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>A porta para %1 deve ser um número de 1 a 65535.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Assinado por %1, válido até %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Nada pode ser armazenado aqui: um estado antigo do repositório não é percebido.</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Não assinado: quem controla o servidor controla o que é instalado</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Não assinado: quem controla o servidor ou a rede controla o que é instalado</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Verificado quanto a danos, mas não assinado: quem controla o servidor controla o que é instalado</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Somente os arquivos que o editor listou e assinou são oferecidos e instalados.</translation>
    </message>
    <message>
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>A definição desta seção não exige assinatura. O editor do repositório pode assiná-lo.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Este dispositivo não pode verificar a assinatura do repositório.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>A assinatura do repositório não é válida no momento ou o relógio deste dispositivo está errado.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>O repositório não é o que seu editor assinou.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>A imagem é lida uma vez e comparada com a lista do repositório. Isso detecta danos. Após a reinicialização, o dispositivo obtém a imagem novamente e não verifica nada: um servidor mal-intencionado pode então fornecer outra.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>A lista de arquivos do repositório ou sua assinatura está ausente.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URIs dos repositórios</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Opções para alterar os locais dos repositórios de atualizações</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>“%1” não é um URI válido.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>“%1” não é um esquema de URI aceito.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, selecionada</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, não selecionada</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Obtendo atualizações…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Versão
instalada</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Versão
nova</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>desconhecida</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>nenhuma</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Interrompido</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Um nome ou senha com quebra de linha ou NUL não pode ser enviado a um servidor FTP</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Não conectado a um servidor FTP</translation>
    </message>
    <message>
        <source>The server names no port for the data connection</source>
        <translation>O servidor não informa nenhuma porta para a conexão de dados</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>Não é possível abrir a conexão de dados: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>O diretório é muito grande para ser listado</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>A conexão de dados falhou: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>A transferência terminou antes do tempo, após %1 de %2 bytes</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>A resposta do servidor é muito longa</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>O servidor fechou a conexão</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Servidor %1 não encontrado</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Tempo esgotado na conexão com o servidor %1</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Conexão recusada pelo servidor %1</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>O servidor não usa FTP</translation>
    </message>
    <message>
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Resposta inesperada do servidor: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>O servidor solicita uma conta, o que não é suportado</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>O servidor responde %1</translation>
    </message>
</context>
</TS>
