<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>La cartella con le definizioni dei repository, «%1», non esiste.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Un file di definizione in «%1» non è un elenco di repository valido. Il file di registro indica quale.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>I file di definizione in «%1» non definiscono alcun repository.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>Impossibile aprire le pagine degli aggiornamenti: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>Impossibile aprire le pagine degli aggiornamenti.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Informazioni su Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Aggiornamenti software per thin client.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 gli sviluppatori di Ravel. Questo programma è software libero: è possibile ridistribuirlo e modificarlo secondo i termini della GNU General Public License, versione 2 o, a scelta, una versione successiva. È fornito senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Configurazione del thin client</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>Mostra &amp;aiuto</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Lingua di &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;uto</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;Informazioni su Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Informazioni su &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>Sistema modificato</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Dall’apertura di questa finestra sono stati installati aggiornamenti o modificate opzioni.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Impossibile leggere il file che identifica l’immagine installata, «%1».</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>Impossibile leggere le informazioni sul sistema installato.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Un’operazione è ancora in corso. Attendere il completamento.</translation>
    </message>
</context>
</TS>
