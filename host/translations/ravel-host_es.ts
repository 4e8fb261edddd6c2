<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>El directorio con las definiciones de repositorios, «%1», no existe.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Un archivo de definición de «%1» no es una lista de repositorios válida. El archivo de registro indica cuál.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>Los archivos de definición de «%1» no definen ningún repositorio.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>No se pudieron abrir las páginas de actualizaciones: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>No se pudieron abrir las páginas de actualizaciones.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Acerca de Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Actualizaciones de software para clientes ligeros.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 los desarrolladores de Ravel. Este programa es software libre: puede redistribuirlo y modificarlo según los términos de la Licencia Pública General de GNU, versión 2 o, a su elección, cualquier versión posterior. Se ofrece sin garantía alguna.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Configuración del cliente ligero</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>Mostrar &amp;ayuda</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Idio&amp;ma</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Idioma del &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;Acerca de Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Acerca de &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>Sistema modificado</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>Se han instalado actualizaciones o cambiado opciones desde que se abrió esta ventana.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>No se puede leer el archivo que identifica la imagen instalada, «%1».</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>No se puede leer la información sobre el sistema instalado.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Todavía hay una operación en curso. Espere a que termine.</translation>
    </message>
</context>
</TS>
