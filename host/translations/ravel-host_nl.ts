<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>De map met de repositorydefinities, ‘%1’, bestaat niet.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Een definitiebestand in ‘%1’ is geen geldige repositorylijst. In het logbestand staat welk.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>De definitiebestanden in ‘%1’ definiëren geen repository.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>De updatepagina’s konden niet worden geopend: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>De updatepagina’s konden niet worden geopend.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Over Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Software-updates voor thin clients.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 de Ravel-ontwikkelaars. Dit programma is vrije software: u mag het verspreiden en wijzigen onder de voorwaarden van de GNU General Public License, versie 2 of naar keuze een latere versie. Er wordt geen enkele garantie gegeven.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Thin-clientconfiguratie</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Bee&amp;ld</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>&amp;Help tonen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Systeemtaal</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;Over Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Over &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina’s</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>Systeem gewijzigd</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Er zijn updates geïnstalleerd of opties gewijzigd sinds dit venster is geopend.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Het bestand dat de geïnstalleerde image identificeert, ‘%1’, kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>De informatie over het geïnstalleerde systeem kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Er is nog een bewerking bezig. Wacht tot deze is voltooid.</translation>
    </message>
</context>
</TS>
