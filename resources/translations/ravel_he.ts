<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>התקנת תמונת מערכת מלאה ממתינה.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>התקנת תמונת מערכת חדשה תאלץ הפעלה מחדש ותמחק לחלוטין את תמונת הדיסק הקיימת בלקוח הדק, כולל כל ההגדרות. האם להמשיך?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>הפעולה מתבצעת...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>הצגת פרטים</translation>
    </message>
    <message>
        <source>Shows what the installer writes.</source>
        <translation>מציג את מה שתוכנית ההתקנה כותבת.</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>פלט תוכנית ההתקנה</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v מתוך %m KiB</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>העדכונים מותקנים...</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  הסתיים</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(תחילת הפלט הושמטה.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>הפעלת התהליך נכשלה.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>התהליך קרס.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>תם הזמן שהוקצב לתהליך.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>שגיאה בקריאה מהתהליך.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>שגיאה בכתיבה אל התהליך.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>שגיאת תהליך לא ידועה.</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>קבלת האישור</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>דחיית האישור</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>לא ניתן לאמת את האישור:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>הצגת פרטים</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>הונפק עבור</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>שם נפוץ:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>ארגון:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>יחידה ארגונית:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>מספר סידורי:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>הונפק על ידי</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>תאריכים</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>תאריך הנפקה:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>תאריך תפוגה:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>טביעות אצבע</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>טביעת אצבע SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>טביעת אצבע MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>טביעת אצבע SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>תוכן</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>הערות</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ועוד %n</numerusform>
            <numerusform>ועוד %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>כותרת:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>גרסה:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>עבור מהדורות:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>גודל העדכון:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>גודל לאחר חילוץ:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>גודל לאחר התקנה:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>תוכן ערכת השירות: ‏</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <comment>KiB = kibibyte:  1024 bytes</comment>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <comment>MiB = mebibyte:  1024*1024 bytes</comment>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <comment>GiB = gibibyte:  1024*1024*1024 bytes</comment>
        <translation>%1 GiB</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>עברית</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>איתור שם מארח ה־FTP &quot;⁨%1⁩&quot; נכשל.</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>הפעולה בוטלה</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>ה־URI אינו קיים</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>ה־URI אינו תיקייה</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>לא ניתן לקרוא את התיקייה</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>הפרוטוקול אינו תומך בקריאת תיקיות</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>רשימת התיקייה גדולה מדי</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>תם הזמן שהוקצב לפעולת ה־FTP</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>הפעולה בוטלה</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>האימות נכשל</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>מארח ה־FTP סירב להתחברות</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>אישור השרת נשלל</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>אפשרויות</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>אפשרויות מתקדמות עבור Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>אפשרויות מתקדמות עבור Ravel, כגון שינוי כתובות URI של מאגרים או הגדרת מתווכים לאינטרנט.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>מיקומי מאגרים</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>כתובות URI של מיקומי המאגרים עבור Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>מתווכי רשת</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>שרתים מתווכים לגישה לאינטרנט</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>בעמוד זה ניתן לשנות את כתובות ה־URI של מאגרי העדכונים לערכים מקומיים או ייחודיים ללקוח. ברירות המחדל הן המאגרים הרגילים של CV לעדכוני לקוח דק.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>אין עדכונים זמינים מסוג זה.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>ה&amp;תקנה</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;פרטים</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;רענון</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>ה&amp;כול</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;ללא</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>אחזור</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>שם משתמש: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>ססמה: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;ניסיון חוזר</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>מתבצע אחזור נתונים מהמאגר&lt;br /&gt; &lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>נדרש אימות לצורך גישה אל&lt;br /&gt;&lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>לא ניתן לאחזר נתונים מהמאגר&lt;br /&gt; &lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>נדרש אימות לצורך שימוש במתווך&lt;br /&gt;&lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>החיבור לרשת עבור ה־URI &quot;⁨%1⁩&quot; נדחה. השרת המרוחק אינו מקבל בקשות.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>השרת המרוחק של ה־URI &quot;⁨%1⁩&quot; סגר את החיבור לפני שהפעולה הושלמה.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>המארח של ה־URI &quot;⁨%1⁩&quot; לא נמצא. נא לבדוק את ה־URI, הרשת, חומות האש וה־DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>תם הזמן שהוקצב לתקשורת עם השרת של ה־URI &quot;⁨%1⁩&quot;. נא לבדוק את ה־URI, הרשת, חומות האש וה־DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>האחזור מהרשת עבור ה־URI &quot;⁨%1⁩&quot; בוטל.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>לא ניתן ליצור ערוץ מאובטח באמצעות SSL/TLS עבור ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>אירעה שגיאת רשת בפנייה אל ה־URI &quot;⁨%1⁩&quot;. האם כל חלקי ה־URI תקינים? האם הרשת פועלת כשורה?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>לא ניתן ליצור חיבור אל השרת המתווך עבור ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>השרת המתווך סגר את החיבור טרם זמנו עבור ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>לא ניתן ליצור קשר עם השרת המתווך עבור ה־URI &quot;⁨%1⁩&quot;. נא לבדוק את הגדרות המתווך, ה־URI, הרשת, חומות האש וה־DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>תם הזמן שהוקצב לתקשורת עם השרת המתווך עבור ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>האימות מול השרת המתווך נכשל עבור ה־URI &quot;⁨%1⁩&quot;. נא לבדוק את פרטי הגישה הנמסרים לשרת המתווך.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>אירעה שגיאת רשת בפנייה אל השרת המתווך עבור ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>הגישה אל ה־URI &quot;⁨%1⁩&quot; נדחתה. האם ה־URI תקין? האם התוכן ניתן לקריאה?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>לא ניתן לאחזר את התוכן של ה־URI &quot;⁨%1⁩&quot;. האם ה־URI תקין? האם התוכן ניתן לקריאה?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>לא ניתן למצוא את ה־URI &quot;⁨%1⁩&quot;. האם ה־URI תקין? האם התוכן ניתן לקריאה?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>נדרש אימות לצורך גישה אל ה־URI &quot;⁨%1⁩&quot;. נא לבדוק את ה־URI ואת שמות המשתמשים והססמאות שסופקו.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>יש לשלוח מחדש את התוכן עבור ה־URI &quot;⁨%1⁩&quot;, אך הוא אינו זמין עוד.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>אירעה שגיאה בטיפול בתוכן שאוחזר מה־URI &quot;⁨%1⁩&quot;</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>הפרוטוקול של ה־URI &quot;⁨%1⁩&quot; אינו תקף עבור תוכנית זו.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>לא ניתן לאחזר תוכן באמצעות הפרוטוקול של ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>לא ניתן להשלים את לחיצת היד בין הלקוח לשרת עבור הפרוטוקול של ה־URI &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>שגיאת רשת בלתי צפויה &quot;⁨%1⁩&quot; עבור ה־URI &quot;⁨%2⁩&quot;.</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>הודעה</translation>
    </message>
</context>
<context>
    <name>RVMainPage</name>
    <message>
        <source>Ravel</source>
        <translation>Ravel</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>עדכונים</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel מאפשר להתקין את העדכונים האחרונים לתוכנת הלקוח הדק שלך</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; מאפשר להתקין:&lt;ol&gt;  &lt;li&gt;תמונות תוכנה מלאות&lt;/li&gt;  &lt;li&gt;ערכות שירות של תוכנות&lt;/li&gt;  &lt;li&gt;עדכונים של חבילות בודדות&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;ניתן להתאים את Ravel אישית: מיקומי המאגרים יכולים להצביע על אתרי העדכון הרגילים של CV, על מאגרים של החברה או של האתר ואפילו על אחסון מקומי.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>הכול</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>מתווכי רשת</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>אפשרויות לבחירת מתווכי רשת</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>ללא מתווכים</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>הגדרת מתווך ידנית:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>שימוש באותו מתווך עבור הכול</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>סכמה</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>סוג החיבור, למשל HTTP,‏ FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>שרת</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>מספר יציאת רשת</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>היציאה עבור ⁨%1⁩ חייבת להיות מספר בין 1 ל־65535.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>נחתם על ידי ⁨%1⁩, בתוקף עד ⁨%2⁩</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>לא ניתן לאחסן כאן דבר: מצב ישן של המאגר לא יתגלה.</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>לא חתום: מי ששולט בשרת שולט במה שמותקן</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>לא חתום: מי ששולט בשרת או ברשת שולט במה שמותקן</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>נבדק לאיתור נזקים, אך לא חתום: מי ששולט בשרת שולט במה שמותקן</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>רק קבצים שהמפרסם כלל ברשימה וחתם עליהם מוצעים ומותקנים.</translation>
    </message>
    <message>
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>ההגדרה של מקטע זה אינה דורשת חתימה. מפרסם המאגר יכול לחתום עליו.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>מכשיר זה אינו יכול לבדוק את חתימת המאגר.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>חתימת המאגר אינה תקפה כעת, או שהשעון של מכשיר זה שגוי.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>המאגר אינו מה שהמפרסם שלו חתם עליו.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>תמונת המערכת נקראת פעם אחת ומושווית לרשימת המאגר. כך מתגלים נזקים. המכשיר מאחזר את תמונת המערכת שוב לאחר ההפעלה מחדש ואינו בודק דבר: שרת עוין יכול לתת לו אז תמונה אחרת.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>רשימת הקבצים של המאגר או החתימה שלה חסרה.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>כתובות URI של מאגרים</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>אפשרויות לשינוי מיקומי מאגרי העדכונים</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>&quot;⁨%1⁩&quot; אינו URI תקין.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>&quot;⁨%1⁩&quot; אינו סכמת URI נתמכת.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>⁨%1⁩, נבחר</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>⁨%1⁩, לא נבחר</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>מתבצע אחזור עדכונים...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>עדכונים</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>עדכון</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>גרסה
מותקנת</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>גרסה
חדשה</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>בחירה</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>לא ידוע</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>אין</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>הופסק</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>לא ניתן לשלוח לשרת FTP שם או ססמה עם מעבר שורה או תו NUL</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>אין חיבור לשרת FTP</translation>
    </message>
    <message>
        <source>The server names no port for the data connection</source>
        <translation>השרת לא ציין יציאה לחיבור הנתונים</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>לא ניתן לפתוח את חיבור הנתונים: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>התיקייה גדולה מכדי להציג את תוכנה</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>חיבור הנתונים נכשל: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>ההעברה הסתיימה מוקדם מדי, לאחר ⁨%1⁩ מתוך ⁨%2⁩ בתים</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>תשובת השרת ארוכה מדי</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>השרת סגר את החיבור</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>המארח ⁨%1⁩ לא נמצא</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>תם הזמן שהוקצב להתחברות אל המארח ⁨%1⁩</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>המארח ⁨%1⁩ סירב להתחברות</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>השרת אינו תומך ב־FTP</translation>
    </message>
    <message>
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>תשובת השרת אינה במקומה: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>השרת מבקש חשבון, דבר שאינו נתמך</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>השרת השיב ⁨%1⁩</translation>
    </message>
</context>
</TS>
