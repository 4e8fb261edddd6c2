<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>Das Verzeichnis mit den Repository-Definitionen, „%1“, ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Eine Definitionsdatei in „%1“ ist keine gültige Repository-Liste. Die Protokolldatei nennt sie.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>Die Definitionsdateien in „%1“ definieren kein Repository.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>Die Seiten für Updates konnten nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>Die Seiten für Updates konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Über Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Software-Updates für Thin Clients.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 die Ravel-Entwickler. Dieses Programm ist freie Software: Sie dürfen es unter den Bedingungen der GNU General Public License, Version 2 oder nach Ihrer Wahl einer späteren, weitergeben und ändern. Es gibt keinerlei Gewährleistung.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Thin-Client-Konfiguration</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>&amp;Hilfe anzeigen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Systemsprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>Ü&amp;ber Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>System geändert</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Seit dem Öffnen dieses Fensters wurden Updates installiert oder Optionen gesetzt.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Die Datei „%1“, die das installierte Abbild kennzeichnet, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>Die Informationen über das installierte System können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Ein Vorgang läuft noch. Bitte warten Sie, bis er abgeschlossen ist.</translation>
    </message>
</context>
</TS>
