<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>تثبيت صورة كاملة قيد الانتظار.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>سيؤدي تثبيت صورة جديدة إلى إعادة تشغيل الجهاز ومحو صورة القرص الحالية على العميل الرقيق بالكامل، بما في ذلك جميع الإعدادات. هل تريد المتابعة؟</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>قيد التنفيذ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>إظهار التفاصيل</translation>
    </message>
    <message>
        <source>Shows what the installer writes.</source>
        <translation>يعرض ما يكتبه برنامج التثبيت.</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>مخرجات برنامج التثبيت</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v من %m ك.بايت</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>يجري تثبيت التحديثات...</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  تم</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(حُذفت بداية المخرجات.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>تعذّر بدء العملية.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>انهارت العملية.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>انتهت مهلة العملية.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>حدث خطأ أثناء القراءة من العملية.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>حدث خطأ أثناء الكتابة إلى العملية.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>خطأ غير معروف في العملية.</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>قبول الشهادة</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>رفض الشهادة</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>الشهادة</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>تعذّر التحقق من صحة الشهادة:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>إظهار التفاصيل</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>صادرة إلى</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>الاسم الشائع:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>المؤسسة:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>الوحدة التنظيمية:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>الرقم التسلسلي:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>صادرة عن</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>التواريخ</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>تاريخ الإصدار:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>تاريخ انتهاء الصلاحية:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>البصمات</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>بصمة SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>بصمة MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>بصمة SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>المحتويات</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>ملاحظات</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n آخر</numerusform>
            <numerusform>و%n آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>العنوان:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>الإصدار:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>المعرّف (URI):  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>للإصدارات:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>حجم التحديث:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>الحجم بعد فك الضغط:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>الحجم بعد التثبيت:  &lt;b&gt;⁨%1⁩&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>محتويات حزمة الخدمة: ‏</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <comment>KiB = kibibyte:  1024 bytes</comment>
        <translation>%1 ك.بايت</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <comment>MiB = mebibyte:  1024*1024 bytes</comment>
        <translation>%1 م.بايت</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <comment>GiB = gibibyte:  1024*1024*1024 bytes</comment>
        <translation>%1 ج.بايت</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>العربية</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>فشل البحث عن اسم مضيف FTP «⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>أُلغيت العملية</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>المعرّف URI غير موجود</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>المعرّف URI ليس مجلدًا</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>لا يمكن قراءة المجلد</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>البروتوكول لا يدعم قراءة المجلدات</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>قائمة المجلد كبيرة جدًا</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>انتهت مهلة معاملة FTP</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>أُلغيت العملية</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>فشلت المصادقة</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>رفض مضيف FTP الاتصال</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>أُبطلت شهادة الخادم</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>خيارات Ravel المتقدمة</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>خيارات متقدمة في Ravel، مثل تعديل المعرّفات URI للمستودعات أو إعداد وكلاء الإنترنت.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>مواقع المستودعات</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>المعرّفات URI لمواقع المستودعات في Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>وكلاء الشبكة</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>الخوادم الوكيلة للوصول إلى الإنترنت</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>تتيح لك هذه الصفحة تغيير المعرّفات URI لمستودعات التحديثات إلى قيم محلية أو خاصة بالعميل. القيم المبدئية هي مستودعات CV القياسية لتحديثات العميل الرقيق.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>لا تتوفر تحديثات من هذا النوع.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;تثبيت</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>التفا&amp;صيل</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>ت&amp;حديث</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>ال&amp;كل</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;لا شيء</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>جلب البيانات</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>اسم المستخدم: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>كلمة المرور: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>إ&amp;عادة المحاولة</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>يجري جلب البيانات من المستودع&lt;br /&gt; &lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>المصادقة مطلوبة للوصول إلى&lt;br /&gt;&lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>تعذّر جلب البيانات من المستودع&lt;br /&gt; &lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>المصادقة مطلوبة لاستخدام الوكيل&lt;br /&gt;&lt;i&gt;⁨%1⁩&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>رُفض الاتصال الشبكي للمعرّف URI «⁨%1⁩». الخادم البعيد لا يقبل الطلبات.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>أغلق الخادم البعيد للمعرّف URI «⁨%1⁩» الاتصال قبل اكتمال المعاملة.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>لم يُعثر على مضيف المعرّف URI «⁨%1⁩». تحقق من المعرّف URI والشبكة والجدران النارية وDNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>انتهت مهلة الاتصال بخادم المعرّف URI «⁨%1⁩». تحقق من المعرّف URI والشبكة والجدران النارية وDNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>أُوقف الجلب عبر الشبكة للمعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>تعذّر إنشاء قناة آمنة عبر SSL/TLS للمعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>حدث خطأ في الشبكة أثناء الاتصال بالمعرّف URI «⁨%1⁩». هل جميع أجزاء المعرّف URI صالحة؟ هل تعمل الشبكة؟</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>تعذّر إنشاء اتصال بالخادم الوكيل للمعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>أغلق الخادم الوكيل الاتصال قبل الأوان للمعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>تعذّر الاتصال بالخادم الوكيل للمعرّف URI «⁨%1⁩». تحقق من إعدادات الوكيل والمعرّف URI والشبكة والجدران النارية وDNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>انتهت مهلة الاتصال بالخادم الوكيل للمعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>فشلت المصادقة لدى الخادم الوكيل للمعرّف URI «⁨%1⁩». تحقق من بيانات الدخول المقدَّمة إلى الخادم الوكيل.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>حدث خطأ في الشبكة أثناء الاتصال بالخادم الوكيل للمعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>رُفض الوصول إلى المعرّف URI «⁨%1⁩». هل المعرّف URI صالح؟ هل المحتوى قابل للقراءة؟</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>تعذّر جلب محتوى المعرّف URI «⁨%1⁩». هل المعرّف URI صالح؟ هل المحتوى قابل للقراءة؟</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>لم يُعثر على المعرّف URI «⁨%1⁩». هل المعرّف URI صالح؟ هل المحتوى قابل للقراءة؟</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>المصادقة مطلوبة للوصول إلى المعرّف URI «⁨%1⁩». تحقق من المعرّف URI ومن أسماء المستخدمين وكلمات المرور المقدَّمة.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>يجب إعادة إرسال محتوى المعرّف URI «⁨%1⁩»، لكنه لم يعد متاحًا.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>حدث خطأ أثناء معالجة المحتوى المجلوب من المعرّف URI «⁨%1⁩»</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>البروتوكول المستخدم في المعرّف URI «⁨%1⁩» غير صالح لهذا البرنامج.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>تعذّر جلب المحتوى بالبروتوكول المستخدم في المعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>تعذّر إكمال التفاوض بين العميل والخادم بالبروتوكول المستخدم في المعرّف URI «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>خطأ شبكة غير متوقع «⁨%1⁩» للمعرّف URI «⁨%2⁩».</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>رسالة</translation>
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
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>يتيح لك Ravel تثبيت أحدث التحديثات لبرمجيات العميل الرقيق</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;يتيح &lt;b&gt;Ravel&lt;/b&gt; تثبيت:&lt;ol&gt;  &lt;li&gt;صور البرمجيات الكاملة&lt;/li&gt;  &lt;li&gt;حزم الخدمة المجمّعة&lt;/li&gt;  &lt;li&gt;تحديثات الحزم المفردة&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;لتخصيص Ravel يمكن ضبط مواقع المستودعات على مواقع التحديث القياسية لدى CV، أو على مستودعات خاصة بالشركة أو الموقع، أو حتى على وحدة تخزين محلية.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>وكلاء الشبكة</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>خيارات تحديد وكلاء الشبكة</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>بلا وكلاء</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>إعداد الوكيل يدويًا:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>استخدام الوكيل نفسه للكل</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>المخطط</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>نوع الاتصال، مثل HTTP أو FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>الخادم</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>رقم منفذ الشبكة</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>يجب أن يكون منفذ ⁨%1⁩ رقمًا من 1 إلى 65535.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>موقَّع من ⁨%1⁩، صالح حتى ⁨%2⁩</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>لا يمكن تخزين أي شيء هنا: لن تُلاحَظ حالة قديمة للمستودع.</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>غير موقَّع: من يتحكم في الخادم يتحكم في ما يُثبَّت</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>غير موقَّع: من يتحكم في الخادم أو الشبكة يتحكم في ما يُثبَّت</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>جرى التحقق من عدم التلف، لكنه غير موقَّع: من يتحكم في الخادم يتحكم في ما يُثبَّت</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>لا تُعرَض ولا تُثبَّت إلا الملفات التي أدرجها الناشر في قائمته ووقّعها.</translation>
    </message>
    <message>
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>لا يطلب تعريف هذا القسم توقيعًا. يستطيع ناشر المستودع توقيعه.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>لا يستطيع هذا الجهاز التحقق من توقيع المستودع.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>توقيع المستودع غير صالح الآن، أو أن ساعة هذا الجهاز غير صحيحة.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>المستودع ليس ما وقّعه ناشره.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>تُقرأ الصورة مرة واحدة وتُقارَن بقائمة المستودع. يكشف ذلك التلف. يجلب الجهاز الصورة مجددًا بعد إعادة التشغيل ولا يتحقق من شيء: يمكن لخادم خبيث أن يعطيه حينها صورة أخرى.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>قائمة ملفات المستودع أو توقيعها غير موجود.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>معرّفات URI للمستودعات</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>خيارات لتغيير مواقع مستودعات التحديثات</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>«⁨%1⁩» ليس معرّف URI صالحًا.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>«⁨%1⁩» ليس مخطط URI مدعومًا.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>⁨%1⁩، محدد</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>⁨%1⁩، غير محدد</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>يجري جلب التحديثات...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>التحديث</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>الإصدار
المثبّت</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>الإصدار
الجديد</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>التحديد</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>لا يوجد</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>أُجهضت العملية</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>لا يمكن إرسال اسم أو كلمة مرور فيهما فاصل أسطر أو محرف NUL إلى خادم FTP</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>لا يوجد اتصال بخادم FTP</translation>
    </message>
    <message>
        <source>The server names no port for the data connection</source>
        <translation>لم يذكر الخادم منفذًا لاتصال البيانات</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>تعذّر فتح اتصال البيانات: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>المجلد أكبر من أن يُسرد</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>فشل اتصال البيانات: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>انتهى النقل مبكرًا بعد ⁨%1⁩ من ⁨%2⁩ بايت</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>إجابة الخادم طويلة جدًا</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>أغلق الخادم الاتصال</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>لم يُعثر على المضيف ⁨%1⁩</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>انتهت مهلة الاتصال بالمضيف ⁨%1⁩</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>رفض المضيف ⁨%1⁩ الاتصال</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>الخادم لا يدعم FTP</translation>
    </message>
    <message>
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>إجابة الخادم في غير موضعها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>يطلب الخادم حسابًا، وهذا غير مدعوم</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>أجاب الخادم ⁨%1⁩</translation>
    </message>
</context>
</TS>
