<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>リポジトリ定義のディレクトリ「%1」が存在しません。</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>「%1」にある定義ファイルの 1 つが有効なリポジトリ一覧ではありません。該当するファイルはログファイルに記録されています。</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>「%1」の定義ファイルにはリポジトリが定義されていません。</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>更新ページを開けませんでした: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>更新ページを開けませんでした。</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Ravel について</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>シンクライアント向けのソフトウェア更新。</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 Ravel 開発者。このプログラムはフリーソフトウェアです。GNU 一般公衆ライセンスのバージョン 2 またはそれ以降のバージョンの条件のもとで、再配布および変更できます。このプログラムは無保証です。</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>シンクライアントの設定</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>ヘルプを表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>システムの言語(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>Ravel について(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Qt について(&amp;Q)</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>システムが変更されました</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>このウィンドウを開いてから、更新がインストールされたか、オプションが変更されました。</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>インストールされているイメージを識別するファイル「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>インストールされているシステムの情報を読み取れません。</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>操作がまだ実行中です。完了するまでお待ちください。</translation>
    </message>
</context>
</TS>
