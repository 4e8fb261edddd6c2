<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>Каталог с определениями репозиториев «%1» не существует.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>Файл определений в «%1» не является правильным списком репозиториев. Имя файла указано в журнале.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>Файлы определений в «%1» не определяют ни одного репозитория.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>Не удалось открыть страницы обновлений: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>Не удалось открыть страницы обновлений.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>О программе Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>Обновления программного обеспечения для тонких клиентов.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>© 2026 Разработчики Ravel. Эта программа является свободной: вы можете распространять и изменять её на условиях Стандартной общественной лицензии GNU версии 2 или, по вашему выбору, любой более поздней. Программа поставляется без каких-либо гарантий.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>Настройка тонкого клиента</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>Показать &amp;справку</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Системный язык</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Спр&amp;авка</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;О программе Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>О &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>Система изменена</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>С момента открытия этого окна были установлены обновления или изменены параметры.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>Не удалось прочитать файл «%1», определяющий установленный образ.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>Не удалось прочитать сведения об установленной системе.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>Операция ещё выполняется. Дождитесь её завершения.</translation>
    </message>
</context>
</TS>
