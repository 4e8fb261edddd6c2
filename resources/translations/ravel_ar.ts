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
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>يعرض مخرجات برنامج التثبيت.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>⁨%1⁩ ⁨%2⁩: ⁨%3⁩</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>تم التثبيت</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>سيُثبَّت عند إعادة التشغيل</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>تم التثبيت، لكن لا يستطيع النظام تأكيده</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>استُبعد</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>لم تُجرَ محاولة</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>أُلغي</translation>
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
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>لم ينتهِ</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>تم التثبيت</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>سيُثبَّت عند إعادة التشغيل</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>تم التثبيت دون تأكيد</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>استُبعد</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>لم تُجرَ محاولة</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>سجل التثبيت</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>التحديثات المثبّتة</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>التحديث</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من الإصدار</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى الإصدار</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>لا تُعرض إلا أحدث المدخلات.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>بعض المدخلات تالفة ولا يمكن عرضها.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;سجل التثبيت</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>يجري الانتظار %n ثانية أخرى...</numerusform>
            <numerusform>يجري الانتظار %n ثانية أخرى...</numerusform>
            <numerusform>يجري الانتظار ثانيتين أخريين (%n)...</numerusform>
            <numerusform>يجري الانتظار %n ثوانٍ أخرى...</numerusform>
            <numerusform>يجري الانتظار %n ثانية أخرى...</numerusform>
            <numerusform>يجري الانتظار %n ثانية أخرى...</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>يجري إصلاح قاعدة بيانات الحزم...</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
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
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>إصلاح</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>لم ينجح الإصلاح. يمكن إزالة هذه الحزم. لإعادة تثبيتها بدلًا من ذلك، ألغِ العملية وحدّدها.</translation>
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
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>تعذّرت إعادة قراءة ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>محتوى ⁨%1⁩ يختلف عمّا كُتب فيه.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>لا يُسمح بالتثبيت على هذا النظام إلا للمسؤول.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>ابدأ البرنامج بصلاحيات الجذر (root).</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>تتطلب الحزمة ⁨%1⁩ الحزمة ⁨%2⁩، وهي غير مثبّتة.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>ثبّت ⁨%2⁩ أولًا، أو ثبّتها مع ⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>تتطلب الحزمة ⁨%1⁩ الحزمة ⁨%2⁩، لكن الإصدار المثبّت هو ⁨%3⁩.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>تتطلب الحزمة ⁨%1⁩ الحزمة ⁨%2⁩، وهي غير مهيّأة.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>أعد تثبيت ⁨%2⁩ أولًا.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>تتطلب الحزمة ⁨%1⁩ الحزمة ⁨%2⁩، وهي مثبّتة جزئيًا فقط.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>لا يمكن تثبيت ⁨%1⁩ إلى جانب ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>ثبّت واحدة منهما فقط، أو أزل إحداهما أولًا.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>سيؤدي تثبيت ⁨%1⁩ إلى تعطّل الحزمة المثبّتة ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>حدّث ⁨%2⁩ أو أزلها أولًا.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>تحتوي الحزمة على «⁨%1⁩»، وهو تابع للحزمة ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>حدّث ⁨%2⁩ أو أزلها أولًا، أو اطلب من الناشر حزمة مصحّحة.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>لا توجد مساحة متبقية على القرص.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>أخلِ بعض المساحة، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>النظام للقراءة فقط.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>اجعله قابلًا للكتابة، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>النظام للقراءة فقط، ولم يغيّر «⁨%1⁩» ذلك.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>شغّل «⁨%1⁩» لمعرفة السبب، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>لا يسمح النظام بتغيير «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>تحقق من سمات ذلك الملف، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>ملف الحزمة «⁨%1⁩» غير مكتمل.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>أعد المحاولة؛ إذا تكرر ذلك فالملف الموجود في المستودع تالف.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>ملف الحزمة «⁨%1⁩» تالف.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>الملف «⁨%1⁩» ليس حزمة Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>اطلب من مسؤول المستودع استبداله.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>لا يستطيع هذا النظام قراءة تنسيق ملف الحزمة «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>حدّث dpkg أولًا، أو اطلب من الناشر حزمة مناسبة لهذا النظام.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>بيانات التحكم في «⁨%1⁩» خاطئة.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>اطلب من الناشر حزمة مصحّحة.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>الحزمة مخصصة للمعمارية ⁨%1⁩، لكن معمارية هذا النظام هي ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>ثبّت الحزمة المخصصة للمعمارية ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>الإصدار ⁨%2⁩ من ⁨%1⁩ مثبّت، وهو أحدث من ⁨%3⁩.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>أزل ⁨%1⁩ أولًا إذا كنت تريد الإصدار الأقدم.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>فشل السكربت «⁨%2⁩» التابع للحزمة ⁨%1⁩ برمز الخروج ⁨%3⁩.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>قد توضّح مخرجات برنامج التثبيت السبب؛ وإن لم توضّحه فاسأل ناشر ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>أُنهي السكربت «⁨%2⁩» التابع للحزمة ⁨%1⁩ بإشارة (⁨%3⁩).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>أعد المحاولة؛ إذا تكرر ذلك فاسأل ناشر ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>لا يُسمح بتشغيل السكربت «⁨%2⁩» التابع للحزمة ⁨%1⁩ من موقعه الحالي.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>تحقق مما إذا كان نظام ملفات «⁨%3⁩» موصولًا بالخيار «noexec».</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>لا يمكن تشغيل السكربت «⁨%2⁩» التابع للحزمة ⁨%1⁩، لأن مفسّره غير موجود.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>ثبّت البرنامج المذكور في السطر الأول من السكربت، أو اسأل ناشر ⁨%1⁩.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>فشل أحد محفّزات الحزمة ⁨%1⁩ برمز الخروج ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>أعد تثبيت ⁨%1⁩؛ قد توضّح مخرجات برنامج التثبيت سبب فشل محفّزها.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>الحزمة ⁨%1⁩ مثبّتة جزئيًا فقط.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>أعد تثبيت ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>توقف برنامج التثبيت بسبب كثرة الأخطاء.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>ثبّت عددًا أقل من الحزم في كل مرة.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>قاعدة بيانات الحزم تالفة: تعذّرت قراءة «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>اطلب من مسؤول النظام استعادة قاعدة بيانات الحزم من نسخة.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>تذكر قاعدة بيانات الحزم الاسم «⁨%1⁩»، وهو غير معروف في هذا النظام.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>أضف ذلك المستخدم أو تلك المجموعة، أو أزل المدخلة باستخدام dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>البرنامج «⁨%1⁩» غير موجود.</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>اطلب من مسؤول النظام تثبيته، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>لا يمكن تشغيل البرنامج «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>اطلب من مسؤول النظام إصلاحه، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>لم تصل أي حزمة إلى برنامج التثبيت.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>أعد المحاولة.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>أُنهي برنامج التثبيت بإشارة (⁨%1⁩).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>أعد المحاولة؛ ربما نفدت ذاكرة النظام أو كان قيد إيقاف التشغيل.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>برنامج التثبيت «⁨%1⁩» غير موجود.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>برنامج التثبيت «⁨%1⁩» غير قابل للتنفيذ.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>اطلب من مسؤول النظام تصحيح أذوناته.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>فشل برنامج التثبيت «⁨%1⁩» برمز الخروج ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>قد توضّح مخرجات برنامج التثبيت السبب.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>تعذّرت إعادة تشغيل النظام، لذلك لم تُثبَّت الصورة.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>اكتشف سبب فشل «⁨%1⁩»، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>السبب غير معروف، ولم يكتب برنامج التثبيت شيئًا.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>السبب غير معروف؛ رسالة برنامج التثبيت: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>انتظر حتى ينتهي ذلك البرنامج، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>تعذّر تنزيله: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>لا توجد مساحة كافية في «⁨%1⁩»: المطلوب ⁨%2⁩، والمتاح ⁨%3⁩.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>أُنهي البرنامج قبل انتهاء التثبيت.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>شهادة ⁨%1⁩ غير صالحة، وقد قُبلت هنا. بعد إعادة التشغيل قد يرفضها الجهاز، وعندها لن يحصل على أي صورة.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>الصورة غير موجودة هناك.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>يطلب الخادم تسجيل الدخول للوصول إلى الصورة. ليست لدى الجهاز بيانات دخول سوى المذكورة في موقع المستودع.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>يطلب الوكيل تسجيل الدخول، وليست لدى الجهاز بيانات الدخول.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>لا توجد صورة هناك على الخادم: أجاب ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>تعذّرت قراءة الصورة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>الصورة فارغة.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>توجد صفحة مكان الصورة.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>الملف ليس صورة: فهو غير مضغوط باستخدام gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>حجم الصورة بالبايت هو ⁨%1⁩. ويذكر وصفها ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>تعذّر تشغيل برنامج التثبيت «⁨%1⁩»: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>الحزمة تالفة أو غير مكتملة.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>لا يقبل برنامج التثبيت إلا الملفات التي ينتهي اسمها بـ«⁨.deb⁩».</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>لا توجد مساحة متبقية له في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>الأرشيف تالف، أو رُفض بسبب محتواه.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>لم يبقَ أي أرشيف لتثبيته.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>لا يوجد برنامج تثبيت لـ«⁨%1⁩»</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>لا يمكن تثبيته مع التحديثات الأخرى.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>لم تُثبَّت حزمة الخدمة التي تسبقها.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>تعذّر الدخول إلى المجلد المؤقت «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>أُنهي تنزيله.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>التثبيت الذي بدأ في ⁨%1⁩ ما زال قيد التشغيل.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>استمر التثبيت الذي بدأ في ⁨%1⁩ دون البرنامج الذي بدأه، وانتهى دون أخطاء.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>استمر التثبيت الذي بدأ في ⁨%1⁩ دون البرنامج الذي بدأه، وفشل برمز الخروج ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>استمر التثبيت الذي بدأ في ⁨%1⁩ دون البرنامج الذي بدأه، وأُنهي بالإشارة ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>قوطع التثبيت الذي بدأ في ⁨%1⁩. ولا يُعرف كيف انتهى.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>قاعدة بيانات الحزم مقفلة من عملية أخرى.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>قاعدة بيانات الحزم مقفلة من العملية ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>قاعدة بيانات الحزم مقفلة من ⁨%1⁩ (العملية ⁨%2⁩).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>لا يحق لهذا المستخدم تثبيت التحديثات: لا يمكن تغيير «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>البرنامج «⁨%1⁩» الذي يثبّت التحديثات غير موجود.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>المجلد «⁨%1⁩» للقراءة فقط، والبرنامج «⁨%2⁩» الذي يلغي قفل النظام غير موجود.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>قوطع تثبيت سابق للحزم، ويجب إصلاحه أولًا (⁨%1⁩).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>قوطع تثبيت سابق للحزم، ويجب إصلاحه أولًا.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>ما زال تثبيت سابق جاريًا.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>يجري تثبيت آخر: ⁨%1⁩ (العملية ⁨%2⁩).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>أُلغي التثبيت</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>ستُثبَّت الصورة عند إعادة التشغيل</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>فشل التثبيت</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>تم التثبيت، لكن لا يستطيع النظام تأكيده</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>التحديثات المثبّتة: ⁨%1⁩ من %n</numerusform>
            <numerusform>التحديثات المثبّتة: ⁨%1⁩ من %n</numerusform>
            <numerusform>التحديثات المثبّتة: ⁨%1⁩ من %n</numerusform>
            <numerusform>التحديثات المثبّتة: ⁨%1⁩ من %n</numerusform>
            <numerusform>التحديثات المثبّتة: ⁨%1⁩ من %n</numerusform>
            <numerusform>التحديثات المثبّتة: ⁨%1⁩ من %n</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>ثُبّت تحديث واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>ثُبّت %n تحديث</numerusform>
            <numerusform>ثُبّت %n تحديث</numerusform>
            <numerusform>ثُبّت تحديثان (%n)</numerusform>
            <numerusform>ثُبّتت %n تحديثات</numerusform>
            <numerusform>ثُبّت %n تحديثًا</numerusform>
            <numerusform>ثُبّت %n تحديث</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>أُنهي برنامج التثبيت بإشارة.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>انتهى برنامج التثبيت برمز الخروج ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>تعذّرت قراءة قاعدة بيانات الحزم.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>الحزمة غير موجودة في النظام.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>فُكّ ضغط الحزمة، لكنها غير مهيّأة.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>الإصدار الموجود في النظام هو ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>ترك برنامج التثبيت الحزمة المثبّتة كما كانت.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>كانت موجودة من قبل في قائمة حزم الخدمة المثبّتة.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>لا توجد قائمة بحزم الخدمة المثبّتة في هذا النظام.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>ليست في قائمة حزم الخدمة المثبّتة.</translation>
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
        <source>This device cannot check the signature of the repository.</source>
        <translation>لا يستطيع هذا الجهاز التحقق من توقيع المستودع.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>المستودع ليس ما وقّعه ناشره.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>قائمة ملفات المستودع أو توقيعها غير موجود.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>لا يستطيع هذا الجهاز تذكّر أحدث قائمة، ولذلك لن يلاحظ قائمة قديمة.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>لا يشترط تعريف هذا القسم وجود توقيع. يستطيع الناشر توقيع المستودع.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>توقيع المستودع غير صالح حاليًا، أو ساعة هذا الجهاز غير صحيحة.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>تُقرأ الصورة مرة واحدة وتُقارن بقائمة المستودع، مما يكشف التلف. وبعد إعادة التشغيل يجلب الجهاز الصورة مجددًا ولا يتحقق من شيء: وعندها يستطيع خادم خبيث تقديم صورة أخرى.</translation>
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
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>غير مهيّأ</translation>
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
        <source>The server asks for an account, which is not supported</source>
        <translation>يطلب الخادم حسابًا، وهذا غير مدعوم</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>أجاب الخادم ⁨%1⁩</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>لم يحدد الخادم منفذًا لاتصال البيانات</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>إجابة غير متوقعة من الخادم: ⁨%1⁩</translation>
    </message>
</context>
</TS>
