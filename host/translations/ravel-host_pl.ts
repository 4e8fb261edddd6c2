<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>Katalog z definicjami repozytoriów, „%1”, nie istnieje.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Plik definicji w „%1” nie jest prawidłową listą repozytoriów. Plik dziennika podaje, który to plik.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>Pliki definicji w „%1” nie definiują żadnego repozytorium.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>Nie udało się otworzyć stron aktualizacji: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>Nie udało się otworzyć stron aktualizacji.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>O programie Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Aktualizacje oprogramowania dla cienkich klientów.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 Twórcy programu Ravel. Ten program jest wolnym oprogramowaniem: można go rozpowszechniać i zmieniać na warunkach Powszechnej Licencji Publicznej GNU w wersji 2 lub, według wyboru, dowolnej nowszej. Program jest dostarczany bez żadnej gwarancji.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Konfiguracja cienkiego klienta</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>Pokaż &amp;pomoc</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Język &amp;systemu</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;O programie Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Informacje o &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>System zmieniony</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Od otwarcia tego okna zainstalowano aktualizacje lub zmieniono opcje.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Nie można odczytać pliku „%1”, który określa zainstalowany obraz.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>Nie można odczytać informacji o zainstalowanym systemie.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Operacja jeszcze trwa. Proszę zaczekać na jej zakończenie.</translation>
    </message>
</context>
</TS>
