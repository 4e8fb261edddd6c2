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
        <source>Shows what the installer writes.</source>
        <translation>Показывает вывод программы установки.</translation>
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
    <name>RVTrustTexts</name>
    <message>
        <source>Signed by %1, valid until %2</source>
        <comment>The arguments are the name of a key&apos;s owner and a date.</comment>
        <translation>Подпись: %1, действительна до %2</translation>
    </message>
    <message>
        <source>Nothing can be stored here: an old state of the repository is not noticed.</source>
        <translation>Здесь ничего нельзя сохранить: устаревшее состояние репозитория не будет замечено.</translation>
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
        <source>The definition of this section does not ask for a signature. The publisher of the repository can sign it.</source>
        <translation>Определение этого раздела не требует подписи. Издатель репозитория может его подписать.</translation>
    </message>
    <message>
        <source>This device cannot check the signature of the repository.</source>
        <translation>Это устройство не может проверить подпись репозитория.</translation>
    </message>
    <message>
        <source>The signature of the repository is not valid now, or the clock of this device is wrong.</source>
        <translation>Подпись репозитория сейчас недействительна, или часы этого устройства идут неверно.</translation>
    </message>
    <message>
        <source>The repository is not what its publisher signed.</source>
        <translation>Репозиторий не соответствует тому, что подписал его издатель.</translation>
    </message>
    <message>
        <source>The image is read once and compared with the list of the repository. This finds damage. The device fetches the image again after the restart and checks nothing: a hostile server can give it another one then.</source>
        <translation>Образ считывается один раз и сравнивается со списком репозитория. Так обнаруживаются повреждения. После перезагрузки устройство снова получает образ и ничего не проверяет: враждебный сервер может передать ему другой.</translation>
    </message>
    <message>
        <source>The list of the repository&apos;s files, or its signature, is missing.</source>
        <translation>Отсутствует список файлов репозитория или подпись этого списка.</translation>
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
        <source>The server names no port for the data connection</source>
        <translation>Сервер не указал порт для соединения данных</translation>
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
        <source>The server&apos;s answer is out of place: %1</source>
        <translation>Неожиданный ответ сервера: %1</translation>
    </message>
    <message>
        <source>The server asks for an account, which is not supported</source>
        <translation>Сервер запрашивает учётную запись, что не поддерживается</translation>
    </message>
    <message>
        <source>The server answers %1</source>
        <translation>Сервер отвечает %1</translation>
    </message>
</context>
</TS>
