<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>مجلد تعريفات المستودعات «⁨%1⁩» غير موجود.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>أحد ملفات التعريف في «⁨%1⁩» ليس قائمة مستودعات صالحة. يذكر ملف السجل أيّها.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>لا تعرّف ملفات التعريف في «⁨%1⁩» أي مستودع.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>تعذّر فتح صفحات التحديثات: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>تعذّر فتح صفحات التحديثات.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>حول Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>تحديثات البرمجيات للعملاء الرقيقين.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>حقوق النشر 2026 لمطوّري Ravel. هذا البرنامج برمجية حرة: يمكنك إعادة توزيعه وتعديله وفق شروط رخصة جنو العمومية العامة، الإصدار 2 أو أي إصدار لاحق حسب اختيارك. يُقدَّم دون أي ضمان.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>إعداد العميل الرقيق</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>عر&amp;ض</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>إظهار ال&amp;مساعدة</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>الل&amp;غة</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>لغة ال&amp;نظام</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مس&amp;اعدة</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;حول Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>حول &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>المساعدة</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>عُدِّل النظام</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>ثُبّتت تحديثات أو ضُبطت خيارات منذ فتح هذه النافذة.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>تعذّرت قراءة الملف «⁨%1⁩» الذي يحدد هوية الصورة المثبّتة.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>تعذّرت قراءة معلومات النظام المثبّت.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>ما زالت هناك عملية قيد التنفيذ. يُرجى الانتظار حتى تنتهي.</translation>
    </message>
</context>
</TS>
