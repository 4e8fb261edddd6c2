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
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Mostra a saída do instalador.</translation>
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
        <translation>falhou</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>será instalada na reinicialização</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>instalada, mas o sistema não pode confirmar isso</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ignorada</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>não tentada</translation>
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
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>não concluída</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>instalada</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falhou</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>será instalada na reinicialização</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>instalada, não confirmada</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ignorada</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>não tentada</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelada</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>Histórico de instalação</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Atualizações instaladas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da versão</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Para a versão</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuário</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Somente as entradas mais recentes são mostradas.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Algumas entradas estão danificadas e não podem ser mostradas.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;Histórico de instalação</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Aguardando mais %n segundo…</numerusform>
            <numerusform>Aguardando mais %n segundos…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Reparando o banco de dados de pacotes…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>O reparo não teve êxito. Estes pacotes podem ser removidos. Se preferir instalá-los novamente, cancele e selecione-os.</translation>
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
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>Não é possível reler %1: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>%1 não contém o que foi gravado nele.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Somente um administrador pode fazer instalações neste sistema.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Inicie o programa como root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>%1 requer %2, que não está instalado.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Instale %2 primeiro ou junto com %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>%1 requer %2, mas a versão %3 está instalada.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>%1 requer %2, que não está configurado.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Primeiro, instale %2 novamente.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>%1 requer %2, que está instalado apenas parcialmente.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>%1 não pode ser instalado junto com %2.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Instale apenas um dos dois ou remova o outro primeiro.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>%1 tornaria inutilizável o pacote instalado %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Atualize ou remova %2 primeiro.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>O pacote contém “%1”, que pertence a %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Atualize ou remova %2 primeiro, ou peça um pacote corrigido ao editor.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Não há mais espaço livre no disco.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>O sistema está em modo somente leitura.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Habilite a gravação e tente novamente.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>O sistema está em modo somente leitura, e “%1” não mudou isso.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Execute “%1” para ver o motivo e tente novamente.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>O sistema não permite que “%1” seja alterado.</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Verifique os atributos desse arquivo e tente novamente.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>O arquivo de pacote “%1” não está completo.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Tente novamente; se o erro se repetir, o arquivo no repositório está danificado.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>O arquivo de pacote “%1” está danificado.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>O arquivo “%1” não é um pacote Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Peça ao administrador do repositório que o substitua.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>O arquivo de pacote “%1” tem um formato que este sistema não consegue ler.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Atualize o dpkg primeiro ou peça ao editor um pacote para este sistema.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>Os dados de controle de “%1” estão incorretos.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Peça um pacote corrigido ao editor.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>O pacote é para %1, mas este sistema é %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Instale o pacote para %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>A versão %2 de %1 está instalada e é mais recente que %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Remova %1 primeiro se quiser a versão mais antiga.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>O script “%2” de %1 falhou com o código de saída %3.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>A saída do instalador pode informar o motivo; caso contrário, consulte o editor de %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>O script “%2” de %1 foi encerrado por um sinal (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Tente novamente; se o erro se repetir, consulte o editor de %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>O script “%2” de %1 não pode ser executado no local em que está.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Verifique se o sistema de arquivos de “%3” está montado com “noexec”.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>O script “%2” de %1 não pode ser executado porque seu interpretador está ausente.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Instale o programa indicado na primeira linha do script ou consulte o editor de %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Um gatilho de %1 falhou com o código de saída %2.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Instale %1 novamente; a saída do instalador pode informar por que o gatilho falhou.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>%1 está instalado apenas parcialmente.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Instale %1 novamente.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>O instalador desistiu após muitos erros.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Instale menos pacotes de cada vez.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>O banco de dados de pacotes está danificado: não é possível ler “%1”.</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Peça a um administrador que restaure o banco de dados de pacotes a partir de uma cópia.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>O banco de dados de pacotes menciona “%1”, um usuário ou grupo que este sistema não conhece.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Adicione esse usuário ou grupo ou remova a entrada com dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>O programa “%1” está ausente.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Peça a um administrador que o instale e tente novamente.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Não é possível executar o programa “%1”.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Peça a um administrador que o repare e tente novamente.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>O instalador não recebeu nenhum pacote.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Tente novamente.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>O instalador foi encerrado por um sinal (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Tente novamente; o sistema pode ter ficado sem memória ou sido desligado.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>O instalador “%1” está ausente.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>O instalador “%1” não é executável.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Peça a um administrador que corrija suas permissões.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>O instalador “%1” falhou com o código de saída %2.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>A saída do instalador pode informar o motivo.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Não foi possível reiniciar o sistema; por isso, a imagem não está instalada.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Descubra por que “%1” falha e tente novamente.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>A causa é desconhecida, e o instalador não informou nada.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>A causa é desconhecida; o instalador informa: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Aguarde até que esse programa termine e tente novamente.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Não foi possível baixar a atualização: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Espaço insuficiente em “%1”: %2 necessários, %3 livres.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>O programa foi encerrado antes do término da instalação.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>O certificado de %1 não é válido, mas foi aceito aqui. Após a reinicialização, o dispositivo pode rejeitá-lo e, nesse caso, não obterá a imagem.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>A imagem não está lá.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>O servidor exige autenticação para a imagem. O dispositivo só tem as credenciais contidas no local do repositório.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>O proxy exige autenticação, mas o dispositivo não tem as credenciais.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>O servidor não tem nenhuma imagem nesse local: ele responde %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>Não é possível ler a imagem: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>A imagem está vazia.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>Há uma página da web no lugar da imagem.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>O arquivo não é uma imagem: não está compactado com gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>A imagem tem %1 bytes. Sua descrição indica %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Não é possível iniciar o instalador “%1”: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>O pacote está danificado ou incompleto.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>O instalador só aceita arquivos cujo nome termina em “.deb”.</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>Não há mais espaço livre para a atualização em %1.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>O arquivo compactado está danificado ou foi rejeitado por causa do seu conteúdo.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Não restou nenhum arquivo compactado para instalar.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Não há instalador para “%1”</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>A atualização não pode ser instalada junto com as outras.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>O service pack anterior a este não foi instalado.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Não foi possível entrar no diretório temporário “%1”</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>O download foi encerrado.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>A instalação iniciada em %1 ainda está em andamento.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>A instalação iniciada em %1 continuou sem seu programa e terminou sem erros.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>A instalação iniciada em %1 continuou sem seu programa e falhou com o código de saída %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>A instalação iniciada em %1 continuou sem seu programa e foi encerrada pelo sinal %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>A instalação iniciada em %1 foi interrompida. Não se sabe como ela terminou.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>O banco de dados de pacotes está bloqueado por outro processo.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>O banco de dados de pacotes está bloqueado pelo processo %1.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>O banco de dados de pacotes está bloqueado por %1 (processo %2).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Este usuário não pode instalar atualizações: não é possível alterar “%1”.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>O programa “%1”, que instala as atualizações, está ausente.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>“%1” está em modo somente leitura, e o programa “%2”, que desbloqueia o sistema, está ausente.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Uma instalação anterior de pacotes foi interrompida e precisa ser reparada primeiro (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Uma instalação anterior de pacotes foi interrompida e precisa ser reparada primeiro.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Uma instalação anterior ainda está em andamento.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Outra instalação está em andamento: %1 (processo %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Instalação cancelada</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>A imagem será instalada na reinicialização</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Falha na instalação</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Instalação concluída, mas o sistema não pode confirmá-la</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>Atualização instalada: %1 de %n</numerusform>
            <numerusform>Atualizações instaladas: %1 de %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>1 atualização instalada</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>%n atualização instalada</numerusform>
            <numerusform>%n atualizações instaladas</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>O instalador foi encerrado por um sinal.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>O instalador terminou com o código de saída %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>Não é possível ler o banco de dados de pacotes.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>O pacote não está presente no sistema.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>O pacote está descompactado, mas não configurado.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>O sistema tem a versão %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>O instalador deixou o pacote instalado como estava.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>O service pack já estava na lista de service packs instalados.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>Este sistema não tem uma lista de service packs instalados.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>O service pack não está na lista de service packs instalados.</translation>
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
        <source>This device cannot check the signature of the repository.</source>
        <translation>Este dispositivo não pode verificar a assinatura do repositório.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>O repositório não é o que seu editor assinou.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>A lista de arquivos do repositório ou sua assinatura está ausente.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Este dispositivo não consegue memorizar a lista mais recente e, portanto, não perceberia uma lista desatualizada.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>A definição desta seção não exige assinatura. O editor pode assinar o repositório.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>A assinatura do repositório não é válida no momento, ou o relógio deste dispositivo está errado.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>A imagem é lida uma vez e comparada com a lista do repositório, o que revela danos. Após a reinicialização, o dispositivo obtém a imagem novamente e não verifica nada: um servidor mal-intencionado pode então fornecer outra.</translation>
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
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>não configurada</translation>
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
        <source>The server asks for an account, which is not supported</source>
        <translation>O servidor solicita uma conta, o que não é suportado</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>O servidor responde %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>O servidor não informou nenhuma porta para a conexão de dados</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Resposta inesperada do servidor: %1</translation>
    </message>
</context>
</TS>
