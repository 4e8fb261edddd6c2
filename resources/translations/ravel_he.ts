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
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>הצגת הפלט של תוכנית ההתקנה.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>תוצאות</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>⁨%1⁩ ⁨%2⁩: ⁨%3⁩</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>הותקן</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>נכשל</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>יותקן בעת ההפעלה מחדש</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>הותקן, אך המערכת אינה יכולה לאשר זאת</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>הושמט</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>לא בוצע ניסיון</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>בוטל</translation>
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
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>לא הסתיים</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>הותקן</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>נכשל</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>יותקן בעת ההפעלה מחדש</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>הותקן, לא אושר</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>הושמט</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>לא בוצע ניסיון</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>בוטל</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>לא ידוע</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>היסטוריית ההתקנות</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>עדכונים שהותקנו</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>מועד</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>עדכון</translation>
    </message>
    <message>
        <source>From</source>
        <translation>מגרסה</translation>
    </message>
    <message>
        <source>To</source>
        <translation>לגרסה</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>תוצאה</translation>
    </message>
    <message>
        <source>User</source>
        <translation>משתמש</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>מוצגות רק הרשומות החדשות ביותר.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>חלק מהרשומות פגומות ולא ניתן להציג אותן.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;היסטוריית ההתקנות</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>המתנה של %n שנייה נוספת...</numerusform>
            <numerusform>המתנה של %n שניות נוספות...</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>מתבצע תיקון של מסד הנתונים של החבילות...</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
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
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>ניסיון חוזר</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>תיקון</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>התיקון לא הצליח. ניתן להסיר את החבילות האלה. כדי להתקין אותן מחדש במקום זאת, יש לבטל ולבחור אותן.</translation>
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
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>לא ניתן לקרוא בחזרה את ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>התוכן של ⁨%1⁩ שונה ממה שנכתב אליו.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>רק מנהל מערכת רשאי להתקין במערכת זו.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>יש להפעיל את התוכנית כ־root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>החבילה ⁨%1⁩ זקוקה לחבילה ⁨%2⁩, שאינה מותקנת.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>יש להתקין את ⁨%2⁩ תחילה, או יחד עם ⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>החבילה ⁨%1⁩ זקוקה לחבילה ⁨%2⁩, אך מותקנת גרסה ⁨%3⁩.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>החבילה ⁨%1⁩ זקוקה לחבילה ⁨%2⁩, שאינה מוגדרת.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>יש להתקין מחדש את ⁨%2⁩ תחילה.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>החבילה ⁨%1⁩ זקוקה לחבילה ⁨%2⁩, שמותקנת רק באופן חלקי.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>לא ניתן להתקין את ⁨%1⁩ לצד ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>יש להתקין רק אחת מהשתיים, או להסיר אחת מהן תחילה.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>התקנת ⁨%1⁩ תמנע את השימוש בחבילה המותקנת ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>יש לעדכן או להסיר את ⁨%2⁩ תחילה.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>החבילה מכילה את &quot;⁨%1⁩&quot;, ששייך לחבילה ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>יש לעדכן או להסיר את ⁨%2⁩ תחילה, או לבקש מהמפרסם חבילה מתוקנת.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>לא נותר מקום בדיסק.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>המערכת היא לקריאה בלבד.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>יש לאפשר כתיבה במערכת ולנסות שוב.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>המערכת היא לקריאה בלבד, והרצת &quot;⁨%1⁩&quot; לא שינתה זאת.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>יש להריץ את &quot;⁨%1⁩&quot; כדי לראות מדוע, ולנסות שוב.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>המערכת אינה מאפשרת לשנות את &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>יש לבדוק את המאפיינים של הקובץ ולנסות שוב.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>קובץ החבילה &quot;⁨%1⁩&quot; אינו שלם.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>יש לנסות שוב; אם הבעיה חוזרת, הקובץ במאגר פגום.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>קובץ החבילה &quot;⁨%1⁩&quot; פגום.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>הקובץ &quot;⁨%1⁩&quot; אינו חבילת Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>יש לבקש ממנהל המאגר להחליף אותו.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>המבנה של קובץ החבילה &quot;⁨%1⁩&quot; אינו ניתן לקריאה במערכת זו.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>יש לעדכן את dpkg תחילה, או לבקש מהמפרסם חבילה שמתאימה למערכת זו.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>נתוני הבקרה של &quot;⁨%1⁩&quot; שגויים.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>יש לבקש מהמפרסם חבילה מתוקנת.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>החבילה מיועדת ל־⁨%1⁩, אך מערכת זו היא ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>יש להתקין את החבילה המיועדת ל־⁨%2⁩.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>גרסה ⁨%2⁩ של ⁨%1⁩ מותקנת, והיא חדשה יותר מגרסה ⁨%3⁩.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>כדי לקבל את הגרסה הישנה יותר, יש להסיר את ⁨%1⁩ תחילה.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>הסקריפט &quot;⁨%2⁩&quot; של ⁨%1⁩ נכשל עם קוד יציאה ⁨%3⁩.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>ייתכן שהסיבה מופיעה בפלט תוכנית ההתקנה; אם לא, יש לפנות למפרסם של ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>הסקריפט &quot;⁨%2⁩&quot; של ⁨%1⁩ הופסק על ידי אות (⁨%3⁩).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>יש לנסות שוב; אם הבעיה חוזרת, יש לפנות למפרסם של ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>הסקריפט &quot;⁨%2⁩&quot; של ⁨%1⁩ אינו מורשה לרוץ ממיקומו.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>יש לבדוק אם מערכת הקבצים של &quot;⁨%3⁩&quot; מעוגנת עם האפשרות &quot;noexec&quot;.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>לא ניתן להריץ את הסקריפט &quot;⁨%2⁩&quot; של ⁨%1⁩, כי המפרש שלו חסר.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>יש להתקין את התוכנית שמצוינת בשורה הראשונה של הסקריפט, או לפנות למפרסם של ⁨%1⁩.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>טריגר של ⁨%1⁩ נכשל עם קוד יציאה ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>יש להתקין מחדש את ⁨%1⁩; ייתכן שהסיבה לכשל הטריגר מופיעה בפלט תוכנית ההתקנה.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>החבילה ⁨%1⁩ מותקנת רק באופן חלקי.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>יש להתקין מחדש את ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>תוכנית ההתקנה הפסיקה לאחר שגיאות רבות מדי.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>יש להתקין פחות חבילות בבת אחת.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>מסד הנתונים של החבילות פגום: לא ניתן לקרוא את &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>יש לבקש ממנהל המערכת לשחזר את מסד הנתונים של החבילות מעותק.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>במסד הנתונים של החבילות מופיע השם &quot;⁨%1⁩&quot;, שאינו מוכר במערכת זו.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>יש להוסיף את המשתמש או הקבוצה, או להסיר את הרשומה באמצעות dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>התוכנית &quot;⁨%1⁩&quot; חסרה.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>יש לבקש ממנהל המערכת להתקין אותה, ולנסות שוב.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>לא ניתן להריץ את התוכנית &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>יש לבקש ממנהל המערכת לתקן אותה, ולנסות שוב.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>אף חבילה לא הגיעה לתוכנית ההתקנה.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>תוכנית ההתקנה הופסקה על ידי אות (⁨%1⁩).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>יש לנסות שוב; ייתכן שלמערכת חסר זיכרון או שהיא הייתה בתהליך כיבוי.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>תוכנית ההתקנה &quot;⁨%1⁩&quot; חסרה.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>תוכנית ההתקנה &quot;⁨%1⁩&quot; אינה ניתנת להרצה.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>יש לבקש ממנהל המערכת לתקן את ההרשאות שלה.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>תוכנית ההתקנה &quot;⁨%1⁩&quot; נכשלה עם קוד יציאה ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>ייתכן שהסיבה מופיעה בפלט תוכנית ההתקנה.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>לא ניתן היה להפעיל מחדש את המערכת, ולכן תמונת המערכת לא הותקנה.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>יש לברר מדוע &quot;⁨%1⁩&quot; נכשל ולנסות שוב.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>הסיבה אינה ידועה, ותוכנית ההתקנה לא כתבה דבר.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>הסיבה אינה ידועה; הודעת תוכנית ההתקנה: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>יש להמתין עד שתוכנית זו תסתיים, ולנסות שוב.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>לא ניתן להוריד אותו: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>אין די מקום ב־&quot;⁨%1⁩&quot;: נדרשים ⁨%2⁩, פנויים ⁨%3⁩.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>התוכנית הופסקה לפני שההתקנה הסתיימה.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>האישור של ⁨%1⁩ אינו תקף, והוא התקבל כאן. לאחר ההפעלה מחדש המכשיר עלול לדחות אותו, ואז לא יקבל תמונת מערכת.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>תמונת המערכת אינה נמצאת שם.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>השרת דורש כניסה לחשבון עבור תמונת המערכת. למכשיר אין פרטי כניסה מלבד אלה שבמיקום המאגר.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>המתווך דורש כניסה לחשבון, ולמכשיר אין פרטי כניסה.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>לשרת אין תמונת מערכת במיקום זה: הוא השיב ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>לא ניתן לקרוא את תמונת המערכת: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>תמונת המערכת ריקה.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>במקום תמונת המערכת נמצא עמוד.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>הקובץ אינו תמונת מערכת: הוא אינו דחוס באמצעות gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>גודל תמונת המערכת הוא ⁨%1⁩ בתים. לפי התיאור שלה, הגודל הוא ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>לא ניתן להפעיל את תוכנית ההתקנה &quot;⁨%1⁩&quot;: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>החבילה פגומה או אינה שלמה.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>תוכנית ההתקנה מקבלת רק קבצים ששמם מסתיים ב־&quot;⁨.deb⁩&quot;.</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>לא נותר עבורו מקום ב־⁨%1⁩.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>הארכיון פגום, או שנדחה בשל תוכנו.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>לא נותר ארכיון להתקנה.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>אין תוכנית התקנה עבור &quot;⁨%1⁩&quot;</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>לא ניתן להתקין אותו יחד עם האחרים.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>ערכת השירות שלפניה לא הותקנה.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>לא ניתן להיכנס לתיקייה הזמנית &quot;⁨%1⁩&quot;</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>ההורדה שלו הופסקה.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>ההתקנה שהתחילה ב־⁨%1⁩ עדיין פועלת.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>ההתקנה שהתחילה ב־⁨%1⁩ המשיכה ללא התוכנית שהפעילה אותה והסתיימה ללא שגיאות.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>ההתקנה שהתחילה ב־⁨%1⁩ המשיכה ללא התוכנית שהפעילה אותה ונכשלה עם קוד יציאה ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>ההתקנה שהתחילה ב־⁨%1⁩ המשיכה ללא התוכנית שהפעילה אותה והופסקה על ידי אות ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>ההתקנה שהתחילה ב־⁨%1⁩ נקטעה. לא ידוע כיצד הסתיימה.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>מסד הנתונים של החבילות נעול על ידי תהליך אחר.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>מסד הנתונים של החבילות נעול על ידי תהליך ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>מסד הנתונים של החבילות נעול על ידי ⁨%1⁩ (תהליך ⁨%2⁩).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>משתמש זה אינו רשאי להתקין עדכונים: לא ניתן לשנות את &quot;⁨%1⁩&quot;.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>התוכנית &quot;⁨%1⁩&quot;, שמתקינה את העדכונים, חסרה.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>התיקייה &quot;⁨%1⁩&quot; היא לקריאה בלבד, והתוכנית &quot;⁨%2⁩&quot;, שמבטלת את נעילת המערכת, חסרה.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>התקנה קודמת של חבילות נקטעה ויש לתקן אותה תחילה (⁨%1⁩).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>התקנה קודמת של חבילות נקטעה ויש לתקן אותה תחילה.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>התקנה קודמת עדיין מתבצעת.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>מתבצעת התקנה אחרת: ⁨%1⁩ (תהליך ⁨%2⁩).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>ההתקנה בוטלה</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>תמונת המערכת תותקן בעת ההפעלה מחדש</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>ההתקנה נכשלה</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>הותקן, אך המערכת אינה יכולה לאשר זאת</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>עדכונים שהותקנו: ⁨%1⁩ מתוך %n</numerusform>
            <numerusform>עדכונים שהותקנו: ⁨%1⁩ מתוך %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>הותקן עדכון אחד</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>הותקן %n עדכון</numerusform>
            <numerusform>הותקנו %n עדכונים</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>תוכנית ההתקנה הופסקה על ידי אות.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>תוכנית ההתקנה הסתיימה עם קוד יציאה ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>לא ניתן לקרוא את מסד הנתונים של החבילות.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>החבילה אינה נמצאת במערכת.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>החבילה חולצה, אך אינה מוגדרת.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>במערכת נמצאת גרסה ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>תוכנית ההתקנה השאירה את החבילה המותקנת כפי שהייתה.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>היא כבר הופיעה קודם לכן ברשימת ערכות השירות המותקנות.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>במערכת זו אין רשימה של ערכות שירות מותקנות.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>היא אינה ברשימת ערכות השירות המותקנות.</translation>
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
        <source>This device cannot check the signature of the repository.</source>
        <translation>מכשיר זה אינו יכול לבדוק את חתימת המאגר.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>המאגר אינו מה שהמפרסם שלו חתם עליו.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>רשימת הקבצים של המאגר או החתימה שלה חסרה.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>מכשיר זה אינו יכול לזכור את הרשימה העדכנית ביותר, ולכן לא יבחין ברשימה מיושנת.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>ההגדרה של מקטע זה אינה דורשת חתימה. המפרסם יכול לחתום על המאגר.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>חתימת המאגר אינה תקפה כעת, או שהשעון של מכשיר זה שגוי.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>תמונת המערכת נקראת פעם אחת ומושווית לרשימה של המאגר, וכך מתגלים נזקים. לאחר ההפעלה מחדש המכשיר מאחזר את תמונת המערכת שוב ואינו בודק דבר: אז שרת עוין יכול לספק תמונת מערכת אחרת.</translation>
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
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>לא מוגדר</translation>
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
        <source>The server asks for an account, which is not supported</source>
        <translation>השרת מבקש חשבון, דבר שאינו נתמך</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>השרת השיב ⁨%1⁩</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>השרת לא מסר יציאה לחיבור הנתונים</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>תשובה לא צפויה מהשרת: ⁨%1⁩</translation>
    </message>
</context>
</TS>
