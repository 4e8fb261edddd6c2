<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>HostWindow</name>
    <message>
        <source>The directory with the repository definitions, &quot;%1&quot;, does not exist.</source>
        <translation>התיקייה עם הגדרות המאגרים, &quot;⁨%1⁩&quot;, אינה קיימת.</translation>
    </message>
    <message>
        <source>A repository definition file in &quot;%1&quot; is not a valid repository list. The log file says which one.</source>
        <translation>קובץ הגדרות ב־&quot;⁨%1⁩&quot; אינו רשימת מאגרים תקינה. קובץ היומן מציין איזה.</translation>
    </message>
    <message>
        <source>The definition files in &quot;%1&quot; define no repository.</source>
        <translation>קובצי ההגדרות ב־&quot;⁨%1⁩&quot; אינם מגדירים אף מאגר.</translation>
    </message>
    <message>
        <source>The update pages could not be opened: %1</source>
        <translation>לא ניתן לפתוח את עמודי העדכונים: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The update pages could not be opened.</source>
        <translation>לא ניתן לפתוח את עמודי העדכונים.</translation>
    </message>
    <message>
        <source>About Ravel</source>
        <translation>על אודות Ravel</translation>
    </message>
    <message>
        <source>Software updates for thin clients.</source>
        <translation>עדכוני תוכנה ללקוחות דקים.</translation>
    </message>
    <message>
        <source>Copyright 2026 the Ravel developers. This program is free software: you may redistribute and change it under the terms of the GNU General Public License, version 2 or, at your option, any later version. It comes without any warranty.</source>
        <translation>כל הזכויות שמורות 2026 למפתחי Ravel. תוכנית זו היא תוכנה חופשית: ניתן להפיצה מחדש ולשנותה לפי תנאי הרישיון הציבורי הכללי של GNU, גרסה 2 או, לבחירתך, כל גרסה מאוחרת יותר. היא ניתנת ללא כל אחריות.</translation>
    </message>
    <message>
        <source>Thin Client Configuration</source>
        <translation>הגדרת לקוח דק</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;קובץ</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;יציאה</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>ת&amp;צוגה</translation>
    </message>
    <message>
        <source>Show &amp;Help</source>
        <translation>הצגת &amp;עזרה</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;שפה</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>שפת ה&amp;מערכת</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;עזרה</translation>
    </message>
    <message>
        <source>&amp;About Ravel</source>
        <translation>&amp;על אודות Ravel</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>על אודות &amp;Qt</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>עמודים</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>עזרה</translation>
    </message>
    <message>
        <source>System modified</source>
        <translation>המערכת שונתה</translation>
    </message>
    <message>
        <source>Updates were installed or options set since this window was opened.</source>
        <translation>הותקנו עדכונים או שונו אפשרויות מאז שחלון זה נפתח.</translation>
    </message>
    <message>
        <source>The file that identifies the installed image, &quot;%1&quot;, cannot be read.</source>
        <translation>לא ניתן לקרוא את הקובץ &quot;⁨%1⁩&quot;, שמזהה את תמונת המערכת המותקנת.</translation>
    </message>
    <message>
        <source>Information about the installed system cannot be read.</source>
        <translation>לא ניתן לקרוא מידע על המערכת המותקנת.</translation>
    </message>
    <message>
        <source>An operation is still running. Please wait until it has finished.</source>
        <translation>פעולה עדיין מתבצעת. נא להמתין עד שתסתיים.</translation>
    </message>
</context>
</TS>
