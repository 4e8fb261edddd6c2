<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>Le répertoire des définitions de dépôts, « %1 », n’existe pas.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Un fichier de définition dans « %1 » n’est pas une liste de dépôts valide. Le journal dit lequel.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>Les fichiers de définition dans « %1 » ne définissent aucun dépôt.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>Les pages de mise à jour n’ont pas pu être ouvertes : %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>Les pages de mise à jour n’ont pas pu être ouvertes.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>À propos de Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Mises à jour logicielles pour clients légers.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 les développeurs de Ravel. Ce programme est un logiciel libre : vous pouvez le redistribuer et le modifier selon les termes de la licence publique générale GNU, version 2 ou, à votre choix, toute version ultérieure. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Configuration du client léger</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>Afficher l’&amp;aide</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Langue du &amp;système</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>À &amp;propos de Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>Système modifié</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Des mises à jour ont été installées ou des options modifiées depuis l’ouverture de cette fenêtre.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Le fichier qui identifie l’image installée, «&#xa0;%1&#xa0;», ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>Impossible de lire les informations sur le système installé.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Une opération est encore en cours. Veuillez attendre qu’elle soit terminée.</translation>
    </message>
</context>
</TS>
