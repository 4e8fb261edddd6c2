<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>O diretório com as definições de repositórios, “%1”, não existe.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Um arquivo de definição em “%1” não é uma lista de repositórios válida. O arquivo de log informa qual.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>Os arquivos de definição em “%1” não definem nenhum repositório.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>Não foi possível abrir as páginas de atualizações: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>Não foi possível abrir as páginas de atualizações.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Sobre o Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Atualizações de software para thin clients.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 os desenvolvedores do Ravel. Este programa é software livre: você pode redistribuí-lo e alterá-lo nos termos da Licença Pública Geral GNU, versão 2 ou, a seu critério, qualquer versão posterior. Ele é fornecido sem nenhuma garantia.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Configuração do thin client</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>Mostrar &amp;ajuda</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Idio&amp;ma</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Idioma do &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;Sobre o Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Sobre o &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>Sistema modificado</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Foram instaladas atualizações ou alteradas opções desde que esta janela foi aberta.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Não é possível ler o arquivo que identifica a imagem instalada, “%1”.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>Não é possível ler as informações sobre o sistema instalado.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Uma operação ainda está em andamento. Aguarde até que ela termine.</translation>
    </message>
</context>
</TS>
