<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>软件仓库定义所在的目录“%1”不存在。</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>“%1”中有一个定义文件不是有效的软件仓库列表。日志文件中注明了是哪一个。</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>“%1”中的定义文件未定义任何软件仓库。</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>无法打开更新页面：%1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>无法打开更新页面。</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>关于 Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>面向瘦客户机的软件更新。</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>版权所有 2026 Ravel 开发者。本程序是自由软件：您可以根据 GNU 通用公共许可证第 2 版或（由您选择）任何更新版本的条款重新分发和修改它。本程序不提供任何担保。</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>瘦客户机配置</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>显示帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>系统语言(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>关于 Ravel(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>关于 Qt(&amp;Q)</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>系统已修改</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>自打开此窗口以来已安装更新或更改选项。</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>无法读取用于标识已安装映像的文件“%1”。</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>无法读取已安装系统的信息。</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>仍有操作正在运行。请等待其完成。</translation>
    </message>
</context>
</TS>
