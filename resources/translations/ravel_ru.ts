<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ArchiveDDImage</name>
    <message>
        <source>Full-Image install pending.</source>
        <translation>Ожидается установка полного образа.</translation>
    </message>
    <message>
        <source>Installation of a new image will force a reboot and completely wipe out the existing disk image on the thin client, including all settings.  Do you want to continue?</source>
        <translation>Установка нового образа приведёт к перезагрузке и полностью сотрёт имеющийся образ диска тонкого клиента, включая все настройки. Продолжить?</translation>
    </message>
</context>
<context>
    <name>BusyDialog</name>
    <message>
        <source>In progress...</source>
        <translation>Выполняется…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Показать подробности</translation>
    </message>
    <message>
        <source>Installer output</source>
        <translation>Вывод программы установки</translation>
    </message>
    <message>
        <source>%v of %m KiB</source>
        <comment>e.g. 500 of 1000 KiB</comment>
        <translation>%v из %m КиБ</translation>
    </message>
    <message>
        <source>Installing updates...</source>
        <translation>Установка обновлений…</translation>
    </message>
    <message>
        <source>%p%:  Done</source>
        <comment>%p is percentage done.</comment>
        <translation>%p%:  Готово</translation>
    </message>
    <message>
        <source>(The beginning of the output is left out.)</source>
        <translation>(Начало вывода пропущено.)</translation>
    </message>
    <message>
        <source>The process failed to start.</source>
        <translation>Не удалось запустить процесс.</translation>
    </message>
    <message>
        <source>The process crashed.</source>
        <translation>Процесс аварийно завершился.</translation>
    </message>
    <message>
        <source>The process timed out.</source>
        <translation>Время ожидания процесса истекло.</translation>
    </message>
    <message>
        <source>Error reading from the process.</source>
        <translation>Ошибка чтения из процесса.</translation>
    </message>
    <message>
        <source>Error writing to the process.</source>
        <translation>Ошибка записи в процесс.</translation>
    </message>
    <message>
        <source>Unknown process error.</source>
        <translation>Неизвестная ошибка процесса.</translation>
    </message>
    <message>
        <source>Shows the installer&apos;s output.</source>
        <translation>Показывает вывод программы установки.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>An update, its version, and how it ended.</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>установлено</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>будет установлено при перезагрузке</translation>
    </message>
    <message>
        <source>installed, but the system cannot confirm it</source>
        <translation>установлено, но система не может это подтвердить</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>пропущено</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>не устанавливалось</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
</context>
<context>
    <name>CertDialog</name>
    <message>
        <source>Accept Certificate</source>
        <translation>Принять сертификат</translation>
    </message>
    <message>
        <source>Reject Certificate</source>
        <translation>Отклонить сертификат</translation>
    </message>
    <message>
        <source>Certificate</source>
        <comment>SSL authentication certificate</comment>
        <translation>Сертификат</translation>
    </message>
    <message>
        <source>Certificate could not be validated:  </source>
        <translation>Не удалось проверить сертификат:  </translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Показать подробности</translation>
    </message>
    <message>
        <source>Issued To</source>
        <translation>Кому выдан</translation>
    </message>
    <message>
        <source>Common Name:  </source>
        <comment>(CN), an LDAP term.</comment>
        <translation>Общее имя:  </translation>
    </message>
    <message>
        <source>Organization:  </source>
        <comment>(O), an LDAP term.</comment>
        <translation>Организация:  </translation>
    </message>
    <message>
        <source>Organizational Unit:  </source>
        <comment>(OU), an LDAP term.</comment>
        <translation>Подразделение:  </translation>
    </message>
    <message>
        <source>Serial Number:  </source>
        <translation>Серийный номер:  </translation>
    </message>
    <message>
        <source>Issued By</source>
        <translation>Кем выдан</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Даты</translation>
    </message>
    <message>
        <source>Issue Date:  </source>
        <translation>Дата выдачи:  </translation>
    </message>
    <message>
        <source>Expires Date:  </source>
        <translation>Дата окончания:  </translation>
    </message>
    <message>
        <source>Fingerprints</source>
        <comment>identification string for certificates</comment>
        <translation>Отпечатки</translation>
    </message>
    <message>
        <source>SHA1 Fingerprint:  </source>
        <translation>Отпечаток SHA1:  </translation>
    </message>
    <message>
        <source>MD5 Fingerprint:  </source>
        <translation>Отпечаток MD5:  </translation>
    </message>
    <message>
        <source>SHA256 Fingerprint:  </source>
        <translation>Отпечаток SHA256:  </translation>
    </message>
</context>
<context>
    <name>ItemDetailsDialog</name>
    <message>
        <source>Contents</source>
        <translation>Содержимое</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Примечания</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Название:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Version:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Версия:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>URI:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>URI:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>For Releases:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Для выпусков:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>, </source>
        <comment>list join character</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Update Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Размер обновления:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unpacked Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Размер после распаковки:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Installed Size:  &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Размер после установки:  &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Service Pack Contents: </source>
        <translation>Содержимое пакета обновления: </translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <comment>KiB = kibibyte:  1024 bytes</comment>
        <translation>%1 КиБ</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <comment>MiB = mebibyte:  1024*1024 bytes</comment>
        <translation>%1 МиБ</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <comment>GiB = gibibyte:  1024*1024*1024 bytes</comment>
        <translation>%1 ГиБ</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Русский</translation>
    </message>
</context>
<context>
    <name>NetworkDirRequestFtp</name>
    <message>
        <source>FTP hostname lookup failed &apos;%1&apos;.</source>
        <translation>Не удалось найти узел FTP «%1».</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Operation canceled</source>
        <translation>Операция отменена</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>URI does not exist</source>
        <translation>URI не существует</translation>
    </message>
    <message>
        <source>URI is not a directory</source>
        <translation>URI не является каталогом</translation>
    </message>
    <message>
        <source>Directory is not readable</source>
        <translation>Каталог недоступен для чтения</translation>
    </message>
    <message>
        <source>Protocol does not support directory reads</source>
        <translation>Протокол не поддерживает чтение каталогов</translation>
    </message>
    <message>
        <source>Directory listing is too large</source>
        <translation>Список каталога слишком велик</translation>
    </message>
    <message>
        <source>FTP transaction timed out</source>
        <translation>Время ожидания операции FTP истекло</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Операция отменена</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ошибка аутентификации</translation>
    </message>
    <message>
        <source>Connection to FTP host refused</source>
        <translation>Узел FTP отказал в соединении</translation>
    </message>
</context>
<context>
    <name>QSslSocket</name>
    <message>
        <source>The server&apos;s certificate has been revoked</source>
        <translation>Сертификат сервера отозван</translation>
    </message>
</context>
<context>
    <name>RVAdvPage</name>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Advanced Options for Ravel</source>
        <translation>Дополнительные параметры Ravel</translation>
    </message>
    <message>
        <source>Advanced options for Ravel such as the ability to modify repository URIs or to configure internet proxies.</source>
        <translation>Дополнительные параметры Ravel, например изменение URI репозиториев или настройка прокси-серверов.</translation>
    </message>
    <message>
        <source>Repository Locations</source>
        <translation>Расположение репозиториев</translation>
    </message>
    <message>
        <source>Repository Location URIs for Ravel</source>
        <translation>URI репозиториев для Ravel</translation>
    </message>
    <message>
        <source>Networking Proxies</source>
        <translation>Сетевые прокси-серверы</translation>
    </message>
    <message>
        <source>Proxy servers for internet access</source>
        <translation>Прокси-серверы для доступа в Интернет</translation>
    </message>
    <message>
        <source>This page lets you change the URIs for update content repositories to local or customer-specific values.  The defaults are CV&apos;s standard repositories for Thin Client update content.</source>
        <translation>На этой странице можно заменить URI репозиториев обновлений локальными или собственными значениями заказчика. По умолчанию используются стандартные репозитории CV с обновлениями для тонких клиентов.</translation>
    </message>
</context>
<context>
    <name>RVControlFrame</name>
    <message>
        <source>&lt;i&gt;No updates of this type are available.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Обновлений этого типа нет.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Подробности</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <comment>as in &apos;Select All Choices&apos;</comment>
        <translation>В&amp;се</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <comment>as in &apos;Select No Choices&apos;</comment>
        <translation>&amp;Ничего</translation>
    </message>
    <message>
        <source>Retrieval</source>
        <translation>Получение данных</translation>
    </message>
    <message>
        <source>User Name: </source>
        <translation>Имя пользователя: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Пароль: </translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Пов&amp;торить</translation>
    </message>
    <message>
        <source>Retrieving data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <comment>The argument is a repository URI.</comment>
        <translation>Получение данных из репозитория&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to access &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Для доступа требуется аутентификация: &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Could not retrieve data from repository&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Не удалось получить данные из репозитория&lt;br /&gt; &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Authentication is required to use the proxy &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Для использования прокси-сервера требуется аутентификация &lt;br /&gt;&lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>RVErrorDialog</name>
    <message>
        <source>Network connection refused for URI &apos;%1&apos;.  The remote server is not accepting requests.</source>
        <translation>Отказано в сетевом соединении для URI «%1». Удалённый сервер не принимает запросы.</translation>
    </message>
    <message>
        <source>The remote server for URI &apos;%1&apos; closed the connection before the transaction was complete.</source>
        <translation>Удалённый сервер для URI «%1» закрыл соединение до завершения операции.</translation>
    </message>
    <message>
        <source>The host was not found for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Не найден узел для URI «%1». Проверьте URI, сеть, межсетевые экраны и DNS.</translation>
    </message>
    <message>
        <source>Timed out trying to communicate with server for URI &apos;%1&apos;.  Check the URI, networking, firewalls, and DNS.</source>
        <translation>Истекло время ожидания связи с сервером для URI «%1». Проверьте URI, сеть, межсетевые экраны и DNS.</translation>
    </message>
    <message>
        <source>Network fetch aborted for  URI &apos;%1&apos;.</source>
        <translation>Получение данных по сети для URI «%1» прервано.</translation>
    </message>
    <message>
        <source>A secure channel via SSL/TLS handshaking could not be established for URI &apos;%1&apos;.</source>
        <translation>Не удалось установить защищённый канал SSL/TLS для URI «%1».</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the URI &apos;%1&apos;.  Are all parts of the URI valid?  Is networking okay?</source>
        <translation>При обращении к URI «%1» произошла ошибка сети. Все ли части URI правильны? Работает ли сеть?</translation>
    </message>
    <message>
        <source>A connection could not be established to the proxyserver for URI &apos;%1&apos;.</source>
        <translation>Не удалось установить соединение с прокси-сервером для URI «%1».</translation>
    </message>
    <message>
        <source>The proxy server closed the connection prematurely for URI &apos;%1&apos;.</source>
        <translation>Прокси-сервер преждевременно закрыл соединение для URI «%1».</translation>
    </message>
    <message>
        <source>The proxy server could not be contacted for URI &apos;%1&apos;.  Check the proxy settings, URI, networking, firewalls, and DNS.</source>
        <translation>Не удалось связаться с прокси-сервером для URI «%1». Проверьте параметры прокси-сервера, URI, сеть, межсетевые экраны и DNS.</translation>
    </message>
    <message>
        <source>Timed out communicating with the proxy server for URI &apos;%1&apos;.</source>
        <translation>Истекло время ожидания связи с прокси-сервером для URI «%1».</translation>
    </message>
    <message>
        <source>Authentication against the proxy server failed for URI &apos;%1&apos;.  Check the credentials to be supplied to the proxy server.</source>
        <translation>Не удалось пройти аутентификацию на прокси-сервере для URI «%1». Проверьте учётные данные для прокси-сервера.</translation>
    </message>
    <message>
        <source>A network error was detected in contacting the proxy server for the URI &apos;%1&apos;.</source>
        <translation>При обращении к прокси-серверу для URI «%1» произошла ошибка сети.</translation>
    </message>
    <message>
        <source>Access was denied for URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>В доступе к URI «%1» отказано. Правилен ли URI? Доступно ли содержимое для чтения?</translation>
    </message>
    <message>
        <source>Could not retreive the contents of URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>Не удалось получить содержимое URI «%1». Правилен ли URI? Доступно ли содержимое для чтения?</translation>
    </message>
    <message>
        <source>Could not find URI &apos;%1&apos;.  Is the URI valid?  Is the content readable?</source>
        <translation>URI «%1» не найден. Правилен ли URI? Доступно ли содержимое для чтения?</translation>
    </message>
    <message>
        <source>Authentication is required to access URI &apos;%1&apos;.  Check the URI and any user names or passwords supplied.</source>
        <translation>Для доступа к URI «%1» требуется аутентификация. Проверьте URI и указанные имена пользователей и пароли.</translation>
    </message>
    <message>
        <source>Content requires a re-send for URI &apos;%1&apos;, but that content is no longer available.</source>
        <translation>Содержимое для URI «%1» нужно отправить повторно, но оно больше недоступно.</translation>
    </message>
    <message>
        <source>An error was detected in handling the content retreived for the URI &apos;%1&apos;</source>
        <translation>При обработке содержимого, полученного по URI «%1», произошла ошибка</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; is not valid for this program.</source>
        <translation>Протокол URI «%1» не подходит для этой программы.</translation>
    </message>
    <message>
        <source>The protocol used by URI &apos;%1&apos; could not be used to retrieve URI contents.</source>
        <translation>Не удалось получить содержимое по протоколу URI «%1».</translation>
    </message>
    <message>
        <source>The handshaking between client and server for the protocol used by URI &apos;%1&apos; could not be completed.</source>
        <translation>Не удалось завершить согласование между клиентом и сервером по протоколу URI «%1».</translation>
    </message>
    <message>
        <source>Unanticipated network error &apos;%1&apos; for the URI &apos;%2&apos;.</source>
        <translation>Непредвиденная ошибка сети «%1» для URI «%2».</translation>
    </message>
    <message>
        <source>Message</source>
        <comment>For screen readers: the dialog and the text in it.</comment>
        <translation>Сообщение</translation>
    </message>
</context>
<context>
    <name>RVHistoryDialog</name>
    <message>
        <source>not ended</source>
        <translation>не завершено</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>установлено</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>will be installed at the restart</source>
        <translation>будет установлено при перезагрузке</translation>
    </message>
    <message>
        <source>installed, not confirmed</source>
        <translation>установлено, не подтверждено</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>пропущено</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>не устанавливалось</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>Installation History</source>
        <translation>История установок</translation>
    </message>
    <message>
        <source>Installed updates</source>
        <translation>Установленные обновления</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С версии</translation>
    </message>
    <message>
        <source>To</source>
        <translation>До версии</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Only the newest entries are shown.</source>
        <translation>Показаны только самые новые записи.</translation>
    </message>
    <message>
        <source>Some entries are damaged and cannot be shown.</source>
        <translation>Некоторые записи повреждены и не могут быть показаны.</translation>
    </message>
</context>
<context>
    <name>RVHistoryLink</name>
    <message>
        <source>Installation &amp;history</source>
        <translation>&amp;История установок</translation>
    </message>
</context>
<context>
    <name>RVInstallGate</name>
    <message numerus="yes">
        <source>Waiting for %n more second(s)...</source>
        <translation>
            <numerusform>Осталось ждать %n секунду…</numerusform>
            <numerusform>Осталось ждать %n секунды…</numerusform>
            <numerusform>Осталось ждать %n секунд…</numerusform>
        </translation>
    </message>
    <message>
        <source>Repairing the package database...</source>
        <translation>Исправление базы данных пакетов…</translation>
    </message>
</context>
<context>
    <name>RVLastRun</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
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
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Ravel allows you to install the latest updates to your Thin Client software</source>
        <translation>Ravel позволяет устанавливать последние обновления программного обеспечения тонкого клиента</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; enables the installation of:&lt;ol&gt;  &lt;li&gt;Full software images&lt;/li&gt;  &lt;li&gt;Bundled software service packs&lt;/li&gt;  &lt;li&gt;Individual package updates&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;To customize Ravel, repository locations can be set to look for data in CV&apos;s standard update sites, company or site-specific repositories, or even local storage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ravel&lt;/b&gt; позволяет устанавливать:&lt;ol&gt;  &lt;li&gt;полные образы программного обеспечения&lt;/li&gt;  &lt;li&gt;пакеты обновлений (service pack)&lt;/li&gt;  &lt;li&gt;обновления отдельных пакетов&lt;/li&gt;&lt;/ol&gt;&lt;/p&gt;&lt;p&gt;Ravel можно настроить: репозитории могут указывать на стандартные сайты обновлений CV, на репозитории компании или подразделения и даже на локальное хранилище.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>RVObstacleBox</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Исправить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>The repair did not succeed. These packages can be removed. To install them again instead, cancel and select them.</source>
        <translation>Исправить не удалось. Эти пакеты можно удалить. Чтобы вместо этого установить их заново, нажмите «Отмена» и выберите их.</translation>
    </message>
</context>
<context>
    <name>RVProxies</name>
    <message>
        <source>All</source>
        <comment>All connection types (short word)</comment>
        <translation>Все</translation>
    </message>
    <message>
        <source>Network Proxies</source>
        <translation>Сетевые прокси-серверы</translation>
    </message>
    <message>
        <source>Options for selecting networking proxies</source>
        <translation>Параметры выбора сетевых прокси-серверов</translation>
    </message>
    <message>
        <source>No proxies</source>
        <translation>Без прокси-серверов</translation>
    </message>
    <message>
        <source>Manual Proxy Configuration:</source>
        <translation>Настройка прокси-серверов вручную:</translation>
    </message>
    <message>
        <source>Use same proxy for all</source>
        <translation>Использовать один прокси-сервер для всех</translation>
    </message>
    <message>
        <source>Scheme</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Type of connection, e.g. HTTP, FTP</source>
        <translation>Тип соединения, например HTTP, FTP</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Сервер</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Networking port number</source>
        <translation>Номер сетевого порта</translation>
    </message>
    <message>
        <source>The port for %1 must be a number from 1 to 65535.</source>
        <comment>The argument is a connection type, e.g. HTTP, or the word for all.</comment>
        <translation>Порт для %1 должен быть числом от 1 до 65535.</translation>
    </message>
</context>
<context>
    <name>RVSentence</name>
    <message>
        <source>%1 cannot be read back: %2</source>
        <translation>Не удалось прочитать записанный файл %1: %2</translation>
    </message>
    <message>
        <source>%1 does not hold what was written to it.</source>
        <translation>Содержимое файла %1 отличается от записанного.</translation>
    </message>
    <message>
        <source>Only an administrator may install on this system.</source>
        <translation>Установка в этой системе разрешена только администратору.</translation>
    </message>
    <message>
        <source>Start the program as root.</source>
        <translation>Запустите программу от имени root.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not installed.</source>
        <translation>Для %1 требуется пакет %2, который не установлен.</translation>
    </message>
    <message>
        <source>Install %2 first, or together with %1.</source>
        <translation>Сначала установите %2 либо установите его вместе с %1.</translation>
    </message>
    <message>
        <source>%1 needs %2, but version %3 is installed.</source>
        <translation>Для %1 требуется %2, но установлена версия %3.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is not configured.</source>
        <translation>Для %1 требуется пакет %2, который не настроен.</translation>
    </message>
    <message>
        <source>Install %2 again first.</source>
        <translation>Сначала переустановите %2.</translation>
    </message>
    <message>
        <source>%1 needs %2, which is only partly installed.</source>
        <translation>Для %1 требуется пакет %2, который установлен лишь частично.</translation>
    </message>
    <message>
        <source>%1 cannot be installed beside %2.</source>
        <translation>Пакеты %1 и %2 не могут быть установлены одновременно.</translation>
    </message>
    <message>
        <source>Install only one of the two, or remove one first.</source>
        <translation>Установите только один из двух пакетов или сначала удалите один из них.</translation>
    </message>
    <message>
        <source>%1 would make the installed %2 unusable.</source>
        <translation>Из-за %1 установленный пакет %2 перестанет работать.</translation>
    </message>
    <message>
        <source>Update or remove %2 first.</source>
        <translation>Сначала обновите или удалите %2.</translation>
    </message>
    <message>
        <source>The package contains &apos;%1&apos;, which belongs to %2.</source>
        <translation>Содержащийся в пакете путь «%1» принадлежит пакету %2.</translation>
    </message>
    <message>
        <source>Update or remove %2 first, or ask the publisher for a corrected package.</source>
        <translation>Сначала обновите или удалите %2 либо запросите у издателя исправленный пакет.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>На диске не осталось места.</translation>
    </message>
    <message>
        <source>Free some space, then try again.</source>
        <translation>Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>The system is read-only.</source>
        <translation>Система доступна только для чтения.</translation>
    </message>
    <message>
        <source>Make it writable, then try again.</source>
        <translation>Сделайте её доступной для записи и повторите попытку.</translation>
    </message>
    <message>
        <source>The system is read-only, and &apos;%1&apos; did not change that.</source>
        <translation>Система доступна только для чтения, и команда «%1» этого не изменила.</translation>
    </message>
    <message>
        <source>Run &apos;%1&apos; to see why, then try again.</source>
        <translation>Запустите «%1», чтобы узнать причину, и повторите попытку.</translation>
    </message>
    <message>
        <source>The system does not allow &apos;%1&apos; to be changed.</source>
        <translation>Система не разрешает изменять «%1».</translation>
    </message>
    <message>
        <source>Check the attributes of that file, then try again.</source>
        <translation>Проверьте атрибуты этого файла и повторите попытку.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is not complete.</source>
        <translation>Файл пакета «%1» неполный.</translation>
    </message>
    <message>
        <source>Try again; if it happens again, the file in the repository is damaged.</source>
        <translation>Повторите попытку; если ошибка возникнет снова, значит, файл в репозитории повреждён.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; is damaged.</source>
        <translation>Файл пакета «%1» повреждён.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a Debian package.</source>
        <translation>Файл «%1» не является пакетом Debian.</translation>
    </message>
    <message>
        <source>Ask the administrator of the repository to replace it.</source>
        <translation>Попросите администратора репозитория заменить его.</translation>
    </message>
    <message>
        <source>The package file &apos;%1&apos; has a format that this system cannot read.</source>
        <translation>Файл пакета «%1» имеет формат, который эта система не может прочитать.</translation>
    </message>
    <message>
        <source>Update dpkg first, or ask the publisher for a package for this system.</source>
        <translation>Сначала обновите dpkg либо запросите у издателя пакет для этой системы.</translation>
    </message>
    <message>
        <source>The control data of &apos;%1&apos; are wrong.</source>
        <translation>Управляющие данные в «%1» неверны.</translation>
    </message>
    <message>
        <source>Ask the publisher for a corrected package.</source>
        <translation>Запросите у издателя исправленный пакет.</translation>
    </message>
    <message>
        <source>The package is for %1, but this system is %2.</source>
        <translation>Пакет предназначен для %1, а эта система — %2.</translation>
    </message>
    <message>
        <source>Install the package for %2.</source>
        <translation>Установите пакет для %2.</translation>
    </message>
    <message>
        <source>Version %2 of %1 is installed, which is newer than %3.</source>
        <translation>Установлена версия %2 пакета %1, которая новее, чем %3.</translation>
    </message>
    <message>
        <source>Remove %1 first if you want the older version.</source>
        <translation>Если нужна более старая версия, сначала удалите %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 failed with exit code %3.</source>
        <translation>Сценарий «%2» пакета %1 завершился с ошибкой (код завершения %3).</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why; if not, ask the publisher of %1.</source>
        <translation>Причина может быть указана в выводе программы установки; если её там нет, обратитесь к издателю %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 was ended by a signal (%3).</source>
        <translation>Сценарий «%2» пакета %1 был завершён сигналом (%3).</translation>
    </message>
    <message>
        <source>Try again; if it happens again, ask the publisher of %1.</source>
        <translation>Повторите попытку; если ошибка возникнет снова, обратитесь к издателю %1.</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 may not be run where it lies.</source>
        <translation>Сценарий «%2» пакета %1 нельзя выполнять там, где он находится.</translation>
    </message>
    <message>
        <source>Check whether the file system of &apos;%3&apos; is mounted with &apos;noexec&apos;.</source>
        <translation>Проверьте, не подключена ли файловая система, где находится «%3», с параметром «noexec».</translation>
    </message>
    <message>
        <source>The script &apos;%2&apos; of %1 cannot be run, since its interpreter is missing.</source>
        <translation>Сценарий «%2» пакета %1 нельзя выполнить: отсутствует его интерпретатор.</translation>
    </message>
    <message>
        <source>Install the program that the script&apos;s first line names, or ask the publisher of %1.</source>
        <translation>Установите программу, указанную в первой строке сценария, или обратитесь к издателю %1.</translation>
    </message>
    <message>
        <source>A trigger of %1 failed with exit code %2.</source>
        <translation>Триггер пакета %1 завершился с ошибкой (код завершения %2).</translation>
    </message>
    <message>
        <source>Install %1 again; the installer&apos;s output may say why its trigger failed.</source>
        <translation>Переустановите %1; причина сбоя триггера может быть указана в выводе программы установки.</translation>
    </message>
    <message>
        <source>%1 is only partly installed.</source>
        <translation>Пакет %1 установлен лишь частично.</translation>
    </message>
    <message>
        <source>Install %1 again.</source>
        <translation>Переустановите %1.</translation>
    </message>
    <message>
        <source>The installer gave up after too many errors.</source>
        <translation>Программа установки прекратила работу: слишком много ошибок.</translation>
    </message>
    <message>
        <source>Install fewer packages at a time.</source>
        <translation>Устанавливайте меньше пакетов за один раз.</translation>
    </message>
    <message>
        <source>The package database is damaged: &apos;%1&apos; cannot be read.</source>
        <translation>База данных пакетов повреждена: не удалось прочитать «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to restore the package database from a copy.</source>
        <translation>Попросите администратора восстановить базу данных пакетов из копии.</translation>
    </message>
    <message>
        <source>The package database names &apos;%1&apos;, whom this system does not know.</source>
        <translation>В базе данных пакетов указано имя «%1», неизвестное этой системе.</translation>
    </message>
    <message>
        <source>Add that user or group, or remove the entry with dpkg-statoverride.</source>
        <translation>Добавьте этого пользователя или эту группу либо удалите запись с помощью dpkg-statoverride.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; is missing.</source>
        <translation>Отсутствует программа «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to install it, then try again.</source>
        <translation>Попросите администратора установить её, затем повторите попытку.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos; cannot be run.</source>
        <translation>Не удаётся запустить программу «%1».</translation>
    </message>
    <message>
        <source>Ask an administrator to repair it, then try again.</source>
        <translation>Попросите администратора исправить её, затем повторите попытку.</translation>
    </message>
    <message>
        <source>No package reached the installer.</source>
        <translation>Программа установки не получила ни одного пакета.</translation>
    </message>
    <message>
        <source>Try again.</source>
        <translation>Повторите попытку.</translation>
    </message>
    <message>
        <source>The installer was ended by a signal (%1).</source>
        <translation>Программа установки была завершена сигналом (%1).</translation>
    </message>
    <message>
        <source>Try again; the system may have been short of memory, or shut down.</source>
        <translation>Повторите попытку; возможно, системе не хватило памяти или она завершала работу.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is missing.</source>
        <translation>Отсутствует программа установки «%1».</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; is not executable.</source>
        <translation>Программа установки «%1» не является исполняемым файлом.</translation>
    </message>
    <message>
        <source>Ask an administrator to correct its permissions.</source>
        <translation>Попросите администратора исправить права доступа к ней.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; failed with exit code %2.</source>
        <translation>Программа установки «%1» завершилась с ошибкой (код завершения %2).</translation>
    </message>
    <message>
        <source>The installer&apos;s output may say why.</source>
        <translation>Причина может быть указана в выводе программы установки.</translation>
    </message>
    <message>
        <source>The system could not be restarted, so the image is not installed.</source>
        <translation>Не удалось перезагрузить систему, поэтому образ не установлен.</translation>
    </message>
    <message>
        <source>Find out why &apos;%1&apos; fails, then try again.</source>
        <translation>Выясните, почему не удаётся выполнить «%1», и повторите попытку.</translation>
    </message>
    <message>
        <source>The cause is not known, and the installer wrote nothing.</source>
        <translation>Причина неизвестна, программа установки ничего не вывела.</translation>
    </message>
    <message>
        <source>The cause is not known; the installer says: %1</source>
        <translation>Причина неизвестна; сообщение программы установки: %1</translation>
    </message>
    <message>
        <source>Wait until that program has ended, then try again.</source>
        <translation>Дождитесь завершения этой программы и повторите попытку.</translation>
    </message>
    <message>
        <source>It could not be downloaded: %1</source>
        <translation>Не удалось загрузить обновление: %1</translation>
    </message>
    <message>
        <source>Not enough space in &apos;%1&apos;: %2 needed, %3 free.</source>
        <translation>Недостаточно места в «%1»: требуется %2, свободно %3.</translation>
    </message>
    <message>
        <source>The program was ended before the installation was over.</source>
        <translation>Программа была завершена до окончания установки.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid, and was accepted here. After the restart the device may refuse it, and then it gets no image.</source>
        <translation>Сертификат %1 недействителен и был принят здесь. После перезагрузки устройство может отклонить его и тогда не получит образ.</translation>
    </message>
    <message>
        <source>The image is not there.</source>
        <translation>Образ по этому адресу отсутствует.</translation>
    </message>
    <message>
        <source>The server wants a login for the image. The device has none but the one in the repository&apos;s location.</source>
        <translation>Сервер требует входа для получения образа. У устройства есть только данные для входа из расположения репозитория.</translation>
    </message>
    <message>
        <source>The proxy wants a login, which the device does not have.</source>
        <translation>Прокси-сервер требует входа, данных для которого у устройства нет.</translation>
    </message>
    <message>
        <source>The server has no image there: it answers %1.</source>
        <translation>На сервере нет этого образа: он отвечает %1.</translation>
    </message>
    <message>
        <source>The image cannot be read: %1</source>
        <translation>Не удалось прочитать образ: %1</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>Образ пуст.</translation>
    </message>
    <message>
        <source>There is a page in place of the image.</source>
        <translation>Вместо образа получена веб-страница.</translation>
    </message>
    <message>
        <source>The file is no image: it is not packed by gzip.</source>
        <translation>Файл не является образом: он не сжат с помощью gzip.</translation>
    </message>
    <message>
        <source>The image has %1 bytes. Its description says %2.</source>
        <translation>Размер образа в байтах: %1. В его описании указано %2.</translation>
    </message>
    <message>
        <source>The installer &apos;%1&apos; cannot be started: %2</source>
        <translation>Не удалось запустить программу установки «%1»: %2</translation>
    </message>
    <message>
        <source>The package is damaged or not complete.</source>
        <translation>Пакет повреждён или неполный.</translation>
    </message>
    <message>
        <source>The installer takes only files whose name ends in &apos;.deb&apos;.</source>
        <translation>Программа установки принимает только файлы, имя которых заканчивается на «.deb».</translation>
    </message>
    <message>
        <source>There is no space left for it in %1.</source>
        <translation>В каталоге %1 не осталось места для этого обновления.</translation>
    </message>
    <message>
        <source>The archive is damaged, or refused for what it holds.</source>
        <translation>Архив повреждён или отклонён из-за своего содержимого.</translation>
    </message>
    <message>
        <source>No archive is left to install.</source>
        <translation>Не осталось архивов для установки.</translation>
    </message>
    <message>
        <source>There is no installer for &apos;%1&apos;</source>
        <translation>Нет программы установки для «%1»</translation>
    </message>
    <message>
        <source>It cannot be installed together with the others.</source>
        <translation>Это обновление нельзя установить вместе с остальными.</translation>
    </message>
    <message>
        <source>The service pack before it was not installed.</source>
        <translation>Предыдущий пакет обновления не был установлен.</translation>
    </message>
    <message>
        <source>Could not enter the temporary directory &apos;%1&apos;</source>
        <translation>Не удалось перейти во временный каталог «%1»</translation>
    </message>
    <message>
        <source>Its download was ended.</source>
        <translation>Загрузка была прекращена.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 still runs.</source>
        <translation>Установка, начатая %1, ещё выполняется.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and ended without an error.</source>
        <translation>Установка, начатая %1, продолжилась без запустившей её программы и завершилась без ошибок.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and failed with exit code %2.</source>
        <translation>Установка, начатая %1, продолжилась без запустившей её программы и завершилась с ошибкой (код завершения %2).</translation>
    </message>
    <message>
        <source>The installation that was started on %1 went on without its program, and was ended by signal %2.</source>
        <translation>Установка, начатая %1, продолжилась без запустившей её программы и была завершена сигналом %2.</translation>
    </message>
    <message>
        <source>The installation that was started on %1 was interrupted. How it ended is not known.</source>
        <translation>Установка, начатая %1, была прервана. Чем она закончилась, неизвестно.</translation>
    </message>
    <message>
        <source>The package database is locked by another process.</source>
        <translation>База данных пакетов заблокирована другим процессом.</translation>
    </message>
    <message>
        <source>The package database is locked by process %1.</source>
        <translation>База данных пакетов заблокирована процессом %1.</translation>
    </message>
    <message>
        <source>The package database is locked by %1 (process %2).</source>
        <translation>База данных пакетов заблокирована программой %1 (процесс %2).</translation>
    </message>
    <message>
        <source>This user may not install updates: &apos;%1&apos; cannot be changed.</source>
        <translation>Этот пользователь не может устанавливать обновления: «%1» нельзя изменить.</translation>
    </message>
    <message>
        <source>The program &apos;%1&apos;, which installs the updates, is missing.</source>
        <translation>Отсутствует программа «%1», которая устанавливает обновления.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is read-only, and the program &apos;%2&apos;, which unlocks the system, is missing.</source>
        <translation>Каталог «%1» доступен только для чтения, а программа «%2», снимающая блокировку системы, отсутствует.</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first (%1).</source>
        <translation>Предыдущая установка пакетов была прервана; сначала нужно исправить её последствия (%1).</translation>
    </message>
    <message>
        <source>An earlier installation of packages was interrupted and has to be repaired first.</source>
        <translation>Предыдущая установка пакетов была прервана; сначала нужно исправить её последствия.</translation>
    </message>
    <message>
        <source>An earlier installation is still under way.</source>
        <translation>Предыдущая установка ещё выполняется.</translation>
    </message>
    <message>
        <source>Another installation is under way: %1 (process %2).</source>
        <translation>Выполняется другая установка: %1 (процесс %2).</translation>
    </message>
    <message>
        <source>Installation cancelled</source>
        <translation>Установка отменена</translation>
    </message>
    <message>
        <source>The image will be installed at the restart</source>
        <translation>Образ будет установлен при перезагрузке</translation>
    </message>
    <message>
        <source>Installation failed</source>
        <translation>Не удалось выполнить установку</translation>
    </message>
    <message>
        <source>Installed, but the system cannot confirm it</source>
        <translation>Установлено, но система не может это подтвердить</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n updates installed</source>
        <translation>
            <numerusform>Установлено %1 из %n обновления</numerusform>
            <numerusform>Установлено %1 из %n обновлений</numerusform>
            <numerusform>Установлено %1 из %n обновлений</numerusform>
        </translation>
    </message>
    <message>
        <source>1 update installed</source>
        <translation>Установлено 1 обновление</translation>
    </message>
    <message numerus="yes">
        <source>%n updates installed</source>
        <translation>
            <numerusform>Установлено %n обновление</numerusform>
            <numerusform>Установлено %n обновления</numerusform>
            <numerusform>Установлено %n обновлений</numerusform>
        </translation>
    </message>
    <message>
        <source>The installer was ended by a signal.</source>
        <translation>Программа установки была завершена сигналом.</translation>
    </message>
    <message>
        <source>The installer ended with exit code %1.</source>
        <translation>Программа установки завершилась с кодом %1.</translation>
    </message>
    <message>
        <source>The package database cannot be read.</source>
        <translation>Не удалось прочитать базу данных пакетов.</translation>
    </message>
    <message>
        <source>The system does not have it.</source>
        <translation>Этого пакета нет в системе.</translation>
    </message>
    <message>
        <source>It is unpacked, but not configured.</source>
        <translation>Пакет распакован, но не настроен.</translation>
    </message>
    <message>
        <source>The system has version %1.</source>
        <translation>В системе установлена версия %1.</translation>
    </message>
    <message>
        <source>The installer left the installed package as it was.</source>
        <translation>Программа установки оставила установленный пакет без изменений.</translation>
    </message>
    <message>
        <source>It was in the list of installed service packs before.</source>
        <translation>Этот пакет обновления уже был в списке установленных.</translation>
    </message>
    <message>
        <source>This system has no list of installed service packs.</source>
        <translation>В этой системе нет списка установленных пакетов обновления.</translation>
    </message>
    <message>
        <source>It is not in the list of installed service packs.</source>
        <translation>Этого пакета обновления нет в списке установленных.</translation>
    </message>
</context>
<context>
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Подпись: %1, действительна до %2</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server controls what is installed</source>
        <translation>Не подписано: кто контролирует сервер, тот определяет, что будет установлено</translation>
    </message>
    <message>
        <source>Not signed: whoever controls the server or the network controls what is installed</source>
        <translation>Не подписано: кто контролирует сервер или сеть, тот определяет, что будет установлено</translation>
    </message>
    <message>
        <source>Checked for damage, but not signed: whoever controls the server controls what is installed</source>
        <translation>Проверяется на повреждения, но не подписано: кто контролирует сервер, тот определяет, что будет установлено</translation>
    </message>
    <message>
        <source>Only files that the publisher has listed and signed are offered and installed.</source>
        <translation>Предлагаются и устанавливаются только файлы, которые издатель внёс в список и подписал.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Это устройство не может проверить подпись репозитория.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Репозиторий не соответствует тому, что подписал его издатель.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Отсутствует список файлов репозитория или подпись этого списка.</translation>
    </message>
    <message>
        <source>This device cannot remember the newest list, so it would not notice an outdated one.</source>
        <translation>Это устройство не может запомнить самый новый список и потому не заметит устаревший.</translation>
    </message>
    <message>
        <source>The definition of this section does not require a signature. The publisher can sign the repository.</source>
        <translation>Определение этого раздела не требует подписи. Издатель может подписать репозиторий.</translation>
    </message>
    <message>
        <source>The repository&apos;s signature is not currently valid, or this device&apos;s clock is wrong.</source>
        <translation>Подпись репозитория сейчас недействительна, или часы этого устройства показывают неверное время.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the repository&apos;s list, which reveals damage. After the restart, the device fetches the image again and checks nothing: a hostile server can then deliver another one.</source>
        <translation>Образ считывается один раз и сверяется со списком репозитория, что позволяет обнаружить повреждения. После перезагрузки устройство получает образ снова и ничего не проверяет: злонамеренный сервер может передать тогда другой образ.</translation>
    </message>
</context>
<context>
    <name>RepURLFrame</name>
    <message>
        <source>Repository URIs</source>
        <translation>URI репозиториев</translation>
    </message>
    <message>
        <source>Options to change update repository locations</source>
        <translation>Параметры изменения расположения репозиториев обновлений</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid URI.</source>
        <translation>«%1» — недопустимый URI.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a supported URI scheme.</source>
        <translation>«%1» — неподдерживаемая схема URI.</translation>
    </message>
</context>
<context>
    <name>SelectionTable</name>
    <message>
        <source>%1, selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, выбрано</translation>
    </message>
    <message>
        <source>%1, not selected</source>
        <comment>accessible text; the argument is an update</comment>
        <translation>%1, не выбрано</translation>
    </message>
    <message>
        <source>Retrieving updates...</source>
        <translation>Получение обновлений…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Update</source>
        <comment>Short column header -- the noun, not the verb, e.g. &apos;Title&apos;</comment>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Installed
Version</source>
        <comment>Short column header --Version currently installed on the system</comment>
        <translation>Установленная
версия</translation>
    </message>
    <message>
        <source>Update
Version</source>
        <comment>Short column header -- the version available from the repository</comment>
        <translation>Новая
версия</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>accessible text of the column of check boxes</comment>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>small word for &apos;cannot determine version installed&apos;</comment>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>none</source>
        <comment>small word for &apos;not currently installed&apos;</comment>
        <translation>нет</translation>
    </message>
    <message>
        <source>not configured</source>
        <comment>small words for &apos;its installation was not completed&apos;</comment>
        <translation>не настроено</translation>
    </message>
</context>
<context>
    <name>XFtp</name>
    <message>
        <source>Aborted</source>
        <translation>Прервано</translation>
    </message>
    <message>
        <source>A name or password with a line break or a NUL cannot be sent to an FTP server</source>
        <translation>Имя или пароль с переводом строки или символом NUL нельзя отправить на сервер FTP</translation>
    </message>
    <message>
        <source>Not connected to an FTP server</source>
        <translation>Нет соединения с сервером FTP</translation>
    </message>
    <message>
        <source>The data connection cannot be opened: %1</source>
        <translation>Не удалось открыть соединение данных: %1</translation>
    </message>
    <message>
        <source>The directory is too large to be listed</source>
        <translation>Каталог слишком велик для вывода списка</translation>
    </message>
    <message>
        <source>The data connection failed: %1</source>
        <translation>Ошибка соединения данных: %1</translation>
    </message>
    <message>
        <source>The transfer ended early, after %1 of %2 bytes</source>
        <translation>Передача завершилась преждевременно, после %1 из %2 байт</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too long</source>
        <translation>Ответ сервера слишком длинный</translation>
    </message>
    <message>
        <source>The server closed the connection</source>
        <translation>Сервер закрыл соединение</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Узел %1 не найден</translation>
    </message>
    <message>
        <source>Connection timed out to host %1</source>
        <translation>Истекло время ожидания соединения с узлом %1</translation>
    </message>
    <message>
        <source>Connection refused to host %1</source>
        <translation>Узел %1 отказал в соединении</translation>
    </message>
    <message>
        <source>The server does not speak FTP</source>
        <translation>Сервер не поддерживает FTP</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Сервер запрашивает учётную запись, что не поддерживается</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Сервер отвечает %1</translation>
    </message>
    <message>
        <source>The server gave no port for the data connection</source>
        <translation>Сервер не указал порт для соединения данных</translation>
    </message>
    <message>
        <source>Unexpected answer from the server: %1</source>
        <translation>Неожиданный ответ сервера: %1</translation>
    </message>
</context>
</TS>
