<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>저장소 정의 디렉터리 &apos;%1&apos;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>&apos;%1&apos;의 정의 파일 중 올바른 저장소 목록이 아닌 파일이 있습니다. 해당 파일은 로그 파일에 나와 있습니다.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>&apos;%1&apos;의 정의 파일에 정의된 저장소가 없습니다.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>업데이트 페이지를 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>업데이트 페이지를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>Ravel 정보</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>씬 클라이언트용 소프트웨어 업데이트입니다.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>Copyright 2026 Ravel 개발자. 이 프로그램은 자유 소프트웨어입니다. GNU 일반 공중 사용 허가서 버전 2 또는 그 이후 버전의 조건에 따라 재배포하고 변경할 수 있습니다. 어떠한 보증도 제공되지 않습니다.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>씬 클라이언트 설정</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>도움말 표시(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>시스템 언어(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>Ravel 정보(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Qt 정보(&amp;Q)</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>시스템 변경됨</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>이 창을 연 뒤에 업데이트가 설치되었거나 옵션이 변경되었습니다.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>설치된 이미지를 식별하는 파일 &apos;%1&apos;을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>설치된 시스템의 정보를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>작업이 아직 실행 중입니다. 끝날 때까지 기다리십시오.</translation>
    </message>
</context>
</TS>
