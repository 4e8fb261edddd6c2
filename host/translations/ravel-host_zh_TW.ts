<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>軟體庫定義所在的目錄「%1」不存在。</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>「%1」中有一個定義檔不是有效的軟體庫清單。記錄檔中有註明是哪一個。</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>「%1」中的定義檔未定義任何軟體庫。</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>無法開啟更新頁面：%1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>無法開啟更新頁面。</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>關於 Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>適用於精簡型電腦的軟體更新。</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>版權所有 2026 Ravel 開發者。本程式為自由軟體：您可以依據 GNU 通用公共授權條款第 2 版或（由您選擇）任何後續版本的條款重新散布和修改它。本程式不提供任何擔保。</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>精簡型電腦設定</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>顯示說明(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>系統語言(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>關於 Ravel(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>關於 Qt(&amp;Q)</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>系統已變更</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>自開啟此視窗以來已安裝更新或變更選項。</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>無法讀取用於識別已安裝映像檔的檔案「%1」。</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>無法讀取已安裝系統的資訊。</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>仍有操作正在執行。請等待其完成。</translation>
    </message>
</context>
</TS>
