// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "network/XNetworkAccessManager.h"
#include "network/XNetworkReply.h"
#include "repository/RVDescFetch.h"
#include "repository/RVRepository.h"
#include "tests/support/EventLoop.h"
#include "tests/support/HttpServer.h"
#include "tests/support/LogFile.h"
#include "tests/support/Privileges.h"
#include "tests/support/WarningGuard.h"

#include <QAuthenticator>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

/// Puts a listing under way whose reply the test plays the backend of.
struct RVRepositoryTestAccess {
    static QPointer<XNetworkReply> startListing(RVRepository &repository)
    {
        repository.beginRefresh();
        auto *manager = new XNetworkAccessManager(&repository);
        auto *reply = new XNetworkReply;
        QObject::connect(reply, &XNetworkReply::finishedReply, manager,
                         &XNetworkAccessManager::directoryFinished);
        repository.follow(manager, reply);
        return reply;
    }
};

namespace
{

const QString organisation = QStringLiteral("Corvane");
const QString application = QStringLiteral("Ravel");
const QString key = QStringLiteral("TestUri");

QRegExp pattern(const char *text)
{
    return QRegExp(QLatin1String(text), Qt::CaseSensitive, QRegExp::RegExp);
}

/// A repository with the filter of the tests, and every signal that it gave, as text.
class Watched
{
public:
    explicit Watched(const QUrl &url, SortKey sortKey = SortByName, bool withFilter = true)
        : repository(organisation, application, QString(), url, QStringLiteral("Test site"),
                     sortKey)
    {
        if (withFilter) {
            repository.addFilter(pattern("\\.deb$"), pattern("\\.xml$"));
        }
        QObject::connect(&repository, &RVRepository::refreshEnded, &repository, [] {
            ++ended;
        });
        QObject::connect(&repository, &RVRepository::refreshDone, &repository,
                         [this](QNetworkReply::NetworkError error) {
                             add(QStringLiteral("refreshDone %1").arg(error));
                         });
        QObject::connect(&repository, &RVRepository::networkError, &repository,
                         [this](const QNetworkReply *reply) {
                             add(QStringLiteral("networkError %1").arg(reply->error()));
                         });
    }

    ~Watched()
    {
        if (repository.isRefreshing()) {
            ++destroyed;
        }
    }

    QPointer<XNetworkReply> startListing()
    {
        ++begun;
        return RVRepositoryTestAccess::startListing(repository);
    }

    void refresh()
    {
        ++begun;
        repository.refresh();
    }

    int count(const char *signal) const
    {
        return static_cast<int>(signalTexts.filter(QLatin1String(signal)).size());
    }

    QString archives() const
    {
        QStringList names;
        for (const RVData &entry : repository.entries()) {
            names.append(entry.archiveUrl().fileName());
        }
        return names.join(QLatin1Char(' '));
    }

    RVRepository repository;
    QStringList signalTexts;
    /// Runs inside the slot, after the signal was noted.
    std::function<void(const QString &)> reaction;

    /// Of all repositories of a test: refreshes, those that told their end, those whose repository
    /// went, and signals that came after the end.
    static inline int begun = 0;
    static inline int ended = 0;
    static inline int destroyed = 0;
    static inline QStringList late;

private:
    void add(const QString &text)
    {
        if (!repository.isRefreshing()) {
            late.append(text);
        }
        signalTexts.append(text);
        if (reaction) {
            reaction(text);
        }
    }
};

} // namespace

class tst_RVRepository : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void startsAtTheDefaultLocation();
    void startsAtTheStoredLocation();
    void setUrlStoresAndForgets();
    void settingsFileIsPrivate();
    void worksWithoutSettingsKey();

    void withoutLocationReportsAtOnce();
    void listsReadsAndSorts_data();
    void listsReadsAndSorts();
    void logsTheRefresh();
    void logsProgress();
    void emptyResultReportsTwice_data();
    void emptyResultReportsTwice();
    void filtersAreConcatenated();
    void refreshReplacesTheEntries();
    void awkwardNamesAreRead();

    void linksThatLeadElsewhere();
    void listingThatCannotStart_data();
    void listingThatCannotStart();
    void failedListingForgetsTheEntries();
    void descriptorThatCannotBeRead_data();
    void descriptorThatCannotBeRead();
    void onlyDescriptorCannotBeRead();
    void badDescriptorsAreKept();
    void readsTwoThousandDescriptors();

    void listingThatFailsLater();
    void listingThatEndsLater();
    void cancelWhenIdle();
    void cancelWhileListing();
    void cancelWhileFetching();
    void cancelAfterTheEnd();

    void secondRefreshDropsTheFetch();
    void secondRefreshDropsTheListing();
    void refreshFromTheSlots_data();
    void refreshFromTheSlots();
    void canBeDestroyedAtAnyTime_data();
    void canBeDestroyedAtAnyTime();
    void releasesWhatARefreshUsed();

    void proxy_data();
    void proxy();
    void authentication_data();
    void authentication();
    void loginsForOtherPlaces_data();
    void loginsForOtherPlaces();
    void answersProxies();
    void serverThatAsks_data();
    void serverThatAsks();
    void passesQuestionsOn();
    void passwordsStayOutOfTheLog();

private:
    void write(const QString &name, const QByteArray &content = {});
    void addUpdate(const QString &base, const QByteArray &name, const QByteArray &version);
    void addEntries(XNetworkReply *reply, std::initializer_list<const char *> names);
    QString path(const QString &name) const { return m_dir->filePath(name); }
    QUrl location() const { return QUrl::fromLocalFile(m_dir->path()); }

    QTemporaryDir m_settingsDir;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
};

void tst_RVRepository::initTestCase()
{
    QVERIFY(obeyFilePermissions());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsDir.path());
    qRegisterMetaType<QNetworkReply *>();
}

void tst_RVRepository::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    QSettings(organisation, application).clear();
    Watched::begun = 0;
    Watched::ended = 0;
    Watched::destroyed = 0;
    Watched::late.clear();
}

void tst_RVRepository::cleanup()
{
    runUntilIdle();
    m_guard.reset();
    m_log.reset();
    m_dir.reset();
    // Each refresh has ended once, after its other signals.
    QCOMPARE(Watched::ended + Watched::destroyed, Watched::begun);
    QCOMPARE(Watched::late, QStringList());
}

void tst_RVRepository::write(const QString &name, const QByteArray &content)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_RVRepository::addUpdate(const QString &base, const QByteArray &name,
                                 const QByteArray &version)
{
    write(base + QStringLiteral(".deb"));
    write(base + QStringLiteral(".xml"),
          "<update_data><name>" + name + "</name><version>" + version + "</version></update_data>");
}

void tst_RVRepository::addEntries(XNetworkReply *reply, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        XUrlInfo item;
        item.setName(QUrl::fromLocalFile(path(QLatin1String(name))).toString());
        reply->entries.append(item);
    }
}

void tst_RVRepository::startsAtTheDefaultLocation()
{
    const QUrl url(QStringLiteral("http://h/packages/"));
    const RVRepository repository(organisation, application, key, url, QStringLiteral("My site"),
                                  SortByName);
    QCOMPARE(repository.url(), url);
    QCOMPARE(repository.defaultUrl(), url);
    QCOMPARE(repository.settingsKey(), key);
    QCOMPARE(repository.description(), QStringLiteral("My site"));
    QVERIFY(repository.entries().isEmpty());
    QVERIFY(repository.user().isEmpty());
    QVERIFY(repository.proxyHost().isEmpty());
    QCOMPARE(repository.proxyPort(), 0);
    QCOMPARE(m_log->lines(), QStringList(QStringLiteral("Setting up repository('My site')")));
    QVERIFY(!QSettings(organisation, application).contains(key));
}

void tst_RVRepository::startsAtTheStoredLocation()
{
    QSettings(organisation, application).setValue(key, QStringLiteral("file:///srv/mine"));
    const QUrl standard(QStringLiteral("http://h/packages/"));
    const RVRepository repository(organisation, application, key, standard, QString(), SortByName);
    QCOMPARE(repository.url(), QUrl(QStringLiteral("file:///srv/mine")));
    QCOMPARE(repository.defaultUrl(), standard);
}

void tst_RVRepository::setUrlStoresAndForgets()
{
    const QUrl standard(QStringLiteral("http://h/packages/"));
    RVRepository repository(organisation, application, key, standard, QString(), SortByName);
    const auto stored = [] {
        return QSettings(organisation, application).value(key);
    };

    repository.setUrl(QUrl(QStringLiteral("ftp://me:pw@h/a%20b%2523/")));
    QCOMPARE(stored().toString(), QStringLiteral("ftp://me:pw@h/a b%2523/"));
    QCOMPARE(RVRepository(organisation, application, key, standard, QString(), SortByName).url(),
             repository.url());

    repository.setUrl(standard);
    QCOMPARE(repository.url(), standard);
    QVERIFY(!stored().isValid());

    repository.setUrl(QStringLiteral("/srv/mine"));
    QCOMPARE(repository.url(), QUrl(QStringLiteral("/srv/mine")));
    QCOMPARE(stored().toString(), QStringLiteral("/srv/mine"));

    repository.setUrl(QUrl());
    QVERIFY(repository.url().isEmpty());
    QCOMPARE(stored().toString(), QString());
    QVERIFY(stored().isValid());
    // An empty location that was chosen is not the default one.
    QVERIFY(RVRepository(organisation, application, key, standard, QString(), SortByName)
                .url()
                .isEmpty());

    repository.setUrl(standard.toString());
    QVERIFY(!stored().isValid());
}

void tst_RVRepository::settingsFileIsPrivate()
{
    QString fileName;
    {
        RVRepository repository(organisation, application, key, QUrl(), QString(), SortByName);
        fileName = QSettings(organisation, application).fileName();
        QFile::remove(fileName);
        repository.setUrl(QStringLiteral("ftp://me:pw@h/"));
    }
    QCOMPARE(QFile::permissions(fileName)
                 & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
             QFile::Permissions());
}

void tst_RVRepository::worksWithoutSettingsKey()
{
    const QUrl standard(QStringLiteral("http://h/"));
    RVRepository repository(organisation, application, QString(), standard, QString(), SortByName);
    QCOMPARE(repository.url(), standard);
    repository.setUrl(QUrl(QStringLiteral("http://other/")));
    QCOMPARE(repository.url(), QUrl(QStringLiteral("http://other/")));
    repository.setUrl(standard);
    QVERIFY(QSettings(organisation, application).allKeys().isEmpty());
}

void tst_RVRepository::withoutLocationReportsAtOnce()
{
    Watched watched{QUrl()};
    watched.refresh();
    QCOMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    QVERIFY(!watched.repository.findChild<QNetworkAccessManager *>());

    addUpdate(QStringLiteral("a"), "a", "1");
    watched.repository.setUrl(location());
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 2);
    QCOMPARE(watched.repository.entries().size(), 1);
    watched.repository.setUrl(QUrl());
    watched.refresh();
    QVERIFY(watched.repository.entries().isEmpty());
    QCOMPARE(watched.signalTexts.size(), 3);
    QVERIFY(m_log->contains(QStringLiteral("Refreshing repository('')")));
}

void tst_RVRepository::listsReadsAndSorts_data()
{
    QTest::addColumn<int>("sortKey");
    QTest::addColumn<QString>("archives");
    QTest::newRow("by version") << int(SortByVersion) << QStringLiteral("2.deb 3.deb 1.deb 4.deb");
    QTest::newRow("by name") << int(SortByName) << QStringLiteral("3.deb 4.deb 2.deb 1.deb");
    QTest::newRow("as listed") << 7 << QStringLiteral("1.deb 2.deb 3.deb 4.deb");
}

void tst_RVRepository::listsReadsAndSorts()
{
    QFETCH(int, sortKey);
    addUpdate(QStringLiteral("1"), "zoo", "1.2");
    addUpdate(QStringLiteral("2"), "zoo", "1.10");
    addUpdate(QStringLiteral("3"), "ant", "1.9");
    addUpdate(QStringLiteral("4"), "bee", "1.1");
    write(QStringLiteral("undescribed.deb"));
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder.deb")));
    Watched watched(location(), static_cast<SortKey>(sortKey));
    watched.refresh();
    QVERIFY(watched.signalTexts.isEmpty());
    QTRY_COMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    QTEST(watched.archives(), "archives");
    const RVData &first = watched.repository.entries().first();
    QCOMPARE(QFile::exists(first.archiveUrl().toLocalFile()), true);
    QVERIFY(!first.descriptor()->version().isEmpty());
    runUntilIdle();
    QCOMPARE(watched.signalTexts.size(), 1);
}

void tst_RVRepository::logsTheRefresh()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 1);
    const QString url = location().toString();
    QCOMPARE(m_log->lines(),
             (QStringList{QStringLiteral("Setting up repository('Test site')"),
                          QStringLiteral("Refreshing repository('%1')").arg(url),
                          QStringLiteral("Finished directory fetch('%1'), Err=0").arg(url),
                          QStringLiteral("Beginning descriptor fetch for '%1'").arg(url),
                          QStringLiteral("Descriptor fetch finished for '%1'").arg(url)}));
}

void tst_RVRepository::logsProgress()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    const auto refresh = [this] {
        Watched watched(location());
        watched.repository.setProxy(QStringLiteral("proxy"), 3128);
        watched.refresh();
        QTRY_COMPARE(watched.count("refreshDone"), 1);
    };
    refresh();
    const QStringList lines = m_log->lines();
    QCOMPARE(lines.size(), 6);
    QCOMPARE(lines[2], QStringLiteral("  Using proxy proxy:3128"));
    for (const QString &line : lines) {
        QCOMPARE(m_log->levelOf(line, refresh), 5);
    }
}

void tst_RVRepository::emptyResultReportsTwice_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("withFilter");
    QTest::newRow("empty directory") << QStringList() << true;
    QTest::newRow("no file matches") << QStringList{QStringLiteral("a.txt")} << true;
    QTest::newRow("archive without a descriptor") << QStringList{QStringLiteral("a.deb")} << true;
    QTest::newRow("no filter at all")
        << QStringList{QStringLiteral("a.deb"), QStringLiteral("a.xml")} << false;
}

void tst_RVRepository::emptyResultReportsTwice()
{
    QFETCH(QStringList, files);
    QFETCH(bool, withFilter);
    for (const QString &file : files) {
        write(file);
    }
    Watched watched(location(), SortByName, withFilter);
    watched.refresh();
    const QStringList twice{QStringLiteral("refreshDone 0"), QStringLiteral("refreshDone 0")};
    QCOMPARE(watched.signalTexts, twice);
    QVERIFY(watched.repository.entries().isEmpty());
    const QString url = location().toString();
    QCOMPARE(m_log->lines().mid(3),
             (QStringList{QStringLiteral("Descriptor fetch finished for '%1'").arg(url),
                          QStringLiteral("Beginning descriptor fetch for '%1'").arg(url),
                          QStringLiteral("Descriptor fetch finished for '%1'").arg(url)}));
    runUntilIdle();
    QCOMPARE(watched.signalTexts, twice);
}

void tst_RVRepository::filtersAreConcatenated()
{
    write(QStringLiteral("a.xml"), "<update_data><name>a</name></update_data>");
    write(QStringLiteral("b.xml"), "<update_data><name>b</name></update_data>");
    Watched watched(location(), static_cast<SortKey>(7), false);
    watched.repository.addFilter(pattern("b\\.xml$"), pattern("b\\.xml$"));
    watched.repository.addFilter(pattern("\\.xml$"), pattern("\\.xml$"));
    m_guard->allow(QString());
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 1);
    QCOMPARE(watched.archives(), QStringLiteral("b.xml a.xml b.xml"));
    for (const RVData &entry : watched.repository.entries()) {
        QVERIFY(!entry.descriptor()->name(QString()).isEmpty());
    }
}

void tst_RVRepository::refreshReplacesTheEntries()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 1);
    QVERIFY(QFile::remove(path(QStringLiteral("a.deb"))));
    addUpdate(QStringLiteral("b"), "b", "1");
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 2);
    QCOMPARE(watched.archives(), QStringLiteral("b.deb"));
}

void tst_RVRepository::awkwardNamesAreRead()
{
    const QStringList names{QStringLiteral("tool_1:2.0-1_all"), QStringLiteral("100% #1?"),
                            QString::fromUtf8("gr\xc3\xbcn \"quoted\""), QStringLiteral("-rf;ls")};
    for (const QString &name : names) {
        addUpdate(name, "n", "1.0");
    }
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    QCOMPARE(watched.repository.entries().size(), names.size());
    for (const RVData &entry : watched.repository.entries()) {
        QCOMPARE(entry.descriptor()->version().toString(), QStringLiteral("1.0"));
        QVERIFY(QFile::exists(entry.archiveUrl().toLocalFile()));
    }
}

// The page's links stay in the listing, of which positions count; no entry is made of some.
void tst_RVRepository::linksThatLeadElsewhere()
{
    HttpServer server;
    server.serve(QStringLiteral("/"),
                 "<a href='file:///dev/zero#.deb'></a><a href='file:///proc/kmsg%00.xml'></a>"
                 "<a href='data:,a.deb'></a><a href='qrc:/a.deb'></a><a href='odd://h/a.deb'></a>"
                 "<a href='a.deb'></a><a href='file:///etc/b.deb'></a><a href='c.deb'></a>");
    server.serve(QStringLiteral("/a.deb"), "a");
    server.serve(QStringLiteral("/c.deb"), "c");
    Watched watched(server.url(QStringLiteral("/")), SortByName, false);
    watched.repository.addFilter(pattern("\\.deb$"), pattern("\\.deb$"));
    watched.refresh();
    QTRY_VERIFY(watched.count("refreshDone") > 0);
    QCOMPARE(watched.archives(), QStringLiteral("a.deb c.deb"));
    QCOMPARE(watched.repository.listing().size(), 8);
}

void tst_RVRepository::listingThatCannotStart_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<int>("error");
    QTest::newRow("missing directory") << QStringLiteral("file://%1/missing") << 203;
    QTest::newRow("missing directory, bare path") << QStringLiteral("%1/missing") << 203;
    QTest::newRow("regular file") << QStringLiteral("file://%1/file") << 202;
    QTest::newRow("directory that is not readable") << QStringLiteral("file://%1/locked") << 201;
    QTest::newRow("scheme without a backend") << QStringLiteral("gopher://h/") << 302;
}

// The failure is there before the listing can be waited for. It is told as the end of a listing
// (networkError), and then as a listing that could not start (networkError and refreshDone), so
// that a page that waits for refreshDone shows an empty table; a listing that fails later gives no
// refreshDone.
void tst_RVRepository::listingThatCannotStart()
{
    QFETCH(QString, url);
    QFETCH(int, error);
    write(QStringLiteral("file"));
    const QString locked = path(QStringLiteral("locked"));
    QVERIFY(QDir().mkdir(locked));
    QVERIFY(QFile::setPermissions(locked, {}));
    const QUrl location(url.contains(QLatin1Char('%')) ? url.arg(m_dir->path()) : url);
    Watched watched(location);
    watched.refresh();
    const QString failure = QStringLiteral("networkError %1").arg(error);
    const QStringList expected{failure, failure, QStringLiteral("refreshDone %1").arg(error)};
    QCOMPARE(watched.signalTexts, expected);
    QVERIFY(m_log->contains(QStringLiteral("Finished directory fetch('%1'), Err=%2")
                                .arg(location.toString())
                                .arg(error)));
    runUntilIdle();
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(watched.signalTexts, expected);
    QVERIFY(watched.repository.entries().isEmpty());
}

void tst_RVRepository::failedListingForgetsTheEntries()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE(watched.repository.entries().size(), 1);
    QTRY_COMPARE(watched.count("refreshDone"), 1);
    watched.repository.setUrl(QStringLiteral("/does/not/exist"));
    watched.refresh();
    QVERIFY(watched.repository.entries().isEmpty());
}

void tst_RVRepository::descriptorThatCannotBeRead_data()
{
    QTest::addColumn<bool>("gone");
    QTest::addColumn<QString>("error");
    QTest::newRow("gone since the listing") << true << QStringLiteral("networkError 203");
    QTest::newRow("not readable") << false << QStringLiteral("networkError 201");
}

void tst_RVRepository::descriptorThatCannotBeRead()
{
    QFETCH(bool, gone);
    QFETCH(QString, error);
    addUpdate(QStringLiteral("a"), "a", "1");
    addUpdate(QStringLiteral("b"), "b", "1");
    addUpdate(QStringLiteral("c"), "c", "1");
    Watched watched(location());
    const QPointer<XNetworkReply> reply = watched.startListing();
    addEntries(reply, {"a.deb", "a.xml", "b.deb", "b.xml", "c.deb", "c.xml"});
    const QString bad = path(QStringLiteral("b.xml"));
    QVERIFY(gone ? QFile::remove(bad) : QFile::setPermissions(bad, {}));
    reply->finish();
    QTRY_COMPARE(watched.signalTexts, (QStringList{error, QStringLiteral("refreshDone 0")}));
    QCOMPARE(watched.archives(), QStringLiteral("b.deb a.deb c.deb"));
    QVERIFY(watched.repository.entries()[0].descriptor()->version().isEmpty());
    QVERIFY(!watched.repository.entries()[2].descriptor()->version().isEmpty());
}

void tst_RVRepository::onlyDescriptorCannotBeRead()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    QVERIFY(QFile::setPermissions(path(QStringLiteral("a.xml")), {}));
    Watched watched(location());
    watched.refresh();
    runUntilIdle();
    // Nothing could be asked for: the error is the last signal, and the page offers to try again.
    QCOMPARE(watched.signalTexts, QStringList(QStringLiteral("networkError 201")));
    QVERIFY(QFile::setPermissions(path(QStringLiteral("a.xml")), QFile::ReadOwner));
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 1);
}

void tst_RVRepository::badDescriptorsAreKept()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    write(QStringLiteral("b.deb"));
    write(QStringLiteral("b.xml"), "this is not XML");
    write(QStringLiteral("c.deb"));
    write(QStringLiteral("c.xml"), {});
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    QCOMPARE(watched.archives(), QStringLiteral("b.deb c.deb a.deb"));
}

void tst_RVRepository::readsTwoThousandDescriptors()
{
    constexpr int number = 2000;
    for (int i = 0; i < number; ++i) {
        addUpdate(QStringLiteral("tool-%1").arg(i), "tool-" + QByteArray::number(i % 100),
                  "1." + QByteArray::number(i));
    }
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")),
                              30000);
    QCOMPARE(watched.repository.entries().size(), number);
    const RVData *previous = nullptr;
    for (const RVData &entry : watched.repository.entries()) {
        const auto &descriptor = *entry.descriptor();
        QVERIFY(!descriptor.version().isEmpty());
        if (previous) {
            const auto &before = *previous->descriptor();
            const QString name = before.name(QString());
            QVERIFY(name < descriptor.name(QString())
                    || (name == descriptor.name(QString())
                        && before.version().compare(descriptor.version(), Qt::CaseSensitive) > 0));
        }
        previous = &entry;
    }
}

void tst_RVRepository::listingThatFailsLater()
{
    Watched watched(location());
    const QPointer<XNetworkReply> reply = watched.startListing();
    // A backend that announces its error and one that only carries it.
    reply->fail(QNetworkReply::TimeoutError, QStringLiteral("slow"));
    QCOMPARE(watched.signalTexts, QStringList(QStringLiteral("networkError 4")));
    reply->finish();
    QCOMPARE(watched.signalTexts.size(), 2);
    runUntilIdle();
    QVERIFY(!reply);

    const QPointer<XNetworkReply> silent = watched.startListing();
    silent->setError(QNetworkReply::TimeoutError, QStringLiteral("slow"));
    silent->finish();
    QCOMPARE(watched.signalTexts.size(), 3);
    runUntilIdle();
    QVERIFY(!silent);
    QCOMPARE(watched.count("refreshDone"), 0);
}

void tst_RVRepository::listingThatEndsLater()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    const QPointer<XNetworkReply> reply = watched.startListing();
    addEntries(reply, {"a.deb", "a.xml"});
    reply->finish();
    reply->finish();
    QTRY_COMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    QCOMPARE(watched.archives(), QStringLiteral("a.deb"));
    runUntilIdle();
    QVERIFY(!reply);
    QVERIFY(!watched.repository.findChild<QNetworkAccessManager *>());
}

void tst_RVRepository::cancelWhenIdle()
{
    Watched watched(location());
    QSignalSpy cancels(&watched.repository, &RVRepository::cancelRefresh);
    watched.repository.cancel();
    QCOMPARE(cancels.count(), 1);
    QVERIFY(watched.signalTexts.isEmpty());
}

void tst_RVRepository::cancelWhileListing()
{
    Watched watched(location());
    const QPointer<XNetworkReply> reply = watched.startListing();
    QObject::connect(reply, &XNetworkReply::abortOut, reply, [&] {
        reply->setError(QNetworkReply::OperationCanceledError, QStringLiteral("cancelled"));
        reply->finish();
    });
    watched.repository.cancel();
    watched.repository.cancel();
    QCOMPARE(watched.signalTexts, QStringList(QStringLiteral("networkError 5")));
    runUntilIdle();
    watched.repository.cancel();
    QCOMPARE(watched.signalTexts.size(), 1);
    QVERIFY(!reply);
}

void tst_RVRepository::cancelWhileFetching()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    addUpdate(QStringLiteral("b"), "b", "1");
    Watched watched(location());
    watched.refresh();
    QVERIFY(watched.signalTexts.isEmpty());
    watched.repository.cancel();
    QTRY_COMPARE(watched.count("refreshDone 0"), 1);
    QVERIFY(m_log->contains(QStringLiteral("DESCRIPTOR FETCH CANCEL, KILLING 2 FETCHES")));
    watched.repository.cancel();
    runUntilIdle();
    QCOMPARE(watched.count("refreshDone"), 1);
    QCOMPARE(m_log->lines().filter(QStringLiteral("CANCEL")).size(), 1);
}

void tst_RVRepository::cancelAfterTheEnd()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    watched.refresh();
    QTRY_COMPARE(watched.signalTexts.size(), 1);
    watched.repository.cancel();
    runUntilIdle();
    QCOMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
}

void tst_RVRepository::secondRefreshDropsTheFetch()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    const QString other = path(QStringLiteral("other"));
    QVERIFY(QDir().mkdir(other));
    addUpdate(QStringLiteral("other/b"), "b", "1");
    Watched watched(location());
    watched.refresh();
    watched.refresh();
    watched.repository.setUrl(other);
    watched.refresh();
    QTRY_COMPARE(watched.count("refreshDone"), 1);
    runUntilIdle();
    QCOMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    QCOMPARE(watched.archives(), QStringLiteral("b.deb"));
    QVERIFY(!watched.repository.entries()[0].descriptor()->version().isEmpty());
}

void tst_RVRepository::secondRefreshDropsTheListing()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    const QPointer<XNetworkReply> reply = watched.startListing();
    QSignalSpy aborts(reply, &XNetworkReply::abortOut);
    watched.refresh();
    QCOMPARE(aborts.count(), 1);
    // What the first one still says goes nowhere.
    reply->fail(QNetworkReply::OperationCanceledError, QStringLiteral("cancelled"));
    reply->finish();
    QTRY_COMPARE(watched.signalTexts, QStringList(QStringLiteral("refreshDone 0")));
    runUntilIdle();
    QVERIFY(!reply);
    QCOMPARE(watched.signalTexts.size(), 1);
    QCOMPARE(watched.archives(), QStringLiteral("a.deb"));
}

void tst_RVRepository::refreshFromTheSlots_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<QStringList>("expected");
    const QString done = QStringLiteral("refreshDone 0");
    const QString failed = QStringLiteral("networkError 203");
    QTest::newRow("after a refresh") << QStringLiteral("full") << done << QStringList{done, done};
    QTest::newRow("from the first of two reports")
        << QStringLiteral("empty") << done << QStringList{done, done};
    QTest::newRow("from the first error")
        << QStringLiteral("missing") << failed << QStringList{failed, done};
    QTest::newRow("from the end of a refresh that failed")
        << QStringLiteral("missing") << QStringLiteral("refreshDone 203")
        << QStringList{failed, failed, QStringLiteral("refreshDone 203"), done};
}

void tst_RVRepository::refreshFromTheSlots()
{
    QFETCH(QString, first);
    QFETCH(QString, trigger);
    QFETCH(QStringList, expected);
    QVERIFY(QDir().mkdir(path(QStringLiteral("empty"))));
    QVERIFY(QDir().mkdir(path(QStringLiteral("full"))));
    addUpdate(QStringLiteral("full/a"), "a", "1");
    Watched watched(QUrl(path(first)));
    bool reacted = false;
    watched.reaction = [&](const QString &signal) {
        if (signal == trigger && !reacted) {
            reacted = true;
            watched.repository.setUrl(path(QStringLiteral("full")));
            watched.refresh();
        }
    };
    watched.refresh();
    QTRY_COMPARE(watched.signalTexts, expected);
    runUntilIdle();
    QCOMPARE(watched.signalTexts, expected);
    QCOMPARE(watched.archives(), QStringLiteral("a.deb"));
    QVERIFY(!watched.repository.entries()[0].descriptor()->version().isEmpty());
}

void tst_RVRepository::canBeDestroyedAtAnyTime_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : {"idle", "listing", "fetching", "failed", "finished"}) {
        QTest::newRow(state) << QString::fromLatin1(state);
    }
}

void tst_RVRepository::canBeDestroyedAtAnyTime()
{
    QFETCH(QString, state);
    addUpdate(QStringLiteral("a"), "a", "1");
    QPointer<XNetworkReply> reply;
    {
        Watched watched(state == QLatin1String("failed") ? QUrl(QStringLiteral("/none"))
                                                         : location());
        if (state == QLatin1String("listing")) {
            reply = watched.startListing();
        } else if (state != QLatin1String("idle")) {
            watched.refresh();
        }
        if (state == QLatin1String("finished")) {
            QTRY_COMPARE(watched.signalTexts.size(), 1);
        }
    }
    QVERIFY(!reply);
}

void tst_RVRepository::releasesWhatARefreshUsed()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    for (int i = 1; i <= 3; ++i) {
        watched.refresh();
        QTRY_COMPARE(watched.signalTexts.size(), i);
    }
    runUntilIdle();
    QVERIFY(!watched.repository.findChild<QNetworkAccessManager *>());
    QVERIFY(!watched.repository.findChild<RVDescFetch *>());
}

void tst_RVRepository::proxy_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<int>("type");
    const int none = QNetworkProxy::DefaultProxy;
    const QString host = QStringLiteral("proxy");
    const QString http = QStringLiteral("http://h/");
    QTest::newRow("ftp") << QStringLiteral("ftp://h/") << host << 3128
                         << int(QNetworkProxy::FtpCachingProxy);
    QTest::newRow("http") << http << host << 3128 << int(QNetworkProxy::HttpProxy);
    QTest::newRow("https") << QStringLiteral("https://h/") << host << 3128
                           << int(QNetworkProxy::HttpProxy);
    QTest::newRow("file") << QStringLiteral("file:///") << host << 3128
                          << int(QNetworkProxy::HttpProxy);
    QTest::newRow("port 0") << http << host << 0 << none;
    QTest::newRow("negative port") << http << host << -2 << none;
    QTest::newRow("no host") << http << QString() << 3128 << none;
}

void tst_RVRepository::proxy()
{
    QFETCH(QString, url);
    QFETCH(QString, host);
    QFETCH(int, port);
    QFETCH(int, type);
    Watched watched{QUrl(url)};
    watched.repository.setProxy(host, port);
    QCOMPARE(watched.repository.proxyHost(), host);
    QCOMPARE(watched.repository.proxyPort(), port);
    watched.refresh();
    const auto *manager = watched.repository.findChild<XNetworkAccessManager *>();
    QVERIFY(manager);
    const QNetworkProxy used = manager->proxy();
    QCOMPARE(int(used.type()), type);
    const bool isUsed = type != QNetworkProxy::DefaultProxy;
    QCOMPARE(used.hostName(), isUsed ? host : QString());
    QCOMPARE(int(used.port()), isUsed ? port : 0);
    QVERIFY(used.user().isEmpty());
    QCOMPARE(m_log->count(QStringLiteral("  Using proxy proxy:3128")), isUsed ? 1 : 0);
}

void tst_RVRepository::authentication_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("tried");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<QString>("offered");
    const auto row = [](const char *title, const char *user, const char *password,
                        const char *tried, bool asked, const char *offered) {
        QTest::newRow(title) << QString::fromLatin1(user) << QString::fromLatin1(password)
                             << QString::fromLatin1(tried) << asked << QString::fromLatin1(offered);
    };
    row("nothing stored", "", "", "/", true, "/");
    row("nothing stored, something tried", "", "", "x/y", true, "x/y");
    row("stored", "me", "pw", "/", false, "me/pw");
    row("stored user alone", "me", "", "/", false, "me/");
    row("stored password alone", "", "pw", "/", false, "/pw");
    row("stored ones were refused", "me", "pw", "me/pw", true, "me/pw");
    row("other password was refused", "me", "pw", "me/old", false, "me/pw");
    row("other user was refused", "me", "pw", "you/pw", false, "me/pw");
}

void tst_RVRepository::authentication()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, tried);
    QFETCH(bool, asked);
    QFETCH(QString, offered);
    Watched watched(QUrl(QStringLiteral("http://updates.example/")));
    watched.repository.setAuthenticationCredentials(user, password);
    QCOMPARE(watched.repository.user(), user);
    QCOMPARE(watched.repository.password(), password);
    int questions = 0;
    connect(&watched.repository, &RVRepository::authenticationRequired, this,
            [&](QNetworkReply *, QAuthenticator *) {
                ++questions;
            });
    QAuthenticator auth;
    auth.setUser(tried.section(QLatin1Char('/'), 0, 0));
    auth.setPassword(tried.section(QLatin1Char('/'), 1));
    // As a server's challenge to the listing arrives.
    const QPointer<XNetworkReply> reply = watched.startListing();
    reply->setUrl(watched.repository.url());
    QVERIFY(QMetaObject::invokeMethod(&watched.repository, "attemptAuthentication",
                                      Q_ARG(QNetworkReply *, reply.data()),
                                      Q_ARG(QAuthenticator *, &auth)));
    QCOMPARE(questions, asked ? 1 : 0);
    QCOMPARE(auth.user() + QLatin1Char('/') + auth.password(), offered);
    // The same credentials are not offered twice.
    QVERIFY(QMetaObject::invokeMethod(&watched.repository, "attemptAuthentication",
                                      Q_ARG(QNetworkReply *, reply.data()),
                                      Q_ARG(QAuthenticator *, &auth)));
    QCOMPARE(questions, asked ? 2 : 1);
}

void tst_RVRepository::loginsForOtherPlaces_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("asking");
    QTest::addColumn<QString>("offered");
    const auto row = [](const char *title, const char *location, const char *asking,
                        const char *offered) {
        QTest::newRow(title) << QString::fromLatin1(location) << QString::fromLatin1(asking)
                             << QString::fromLatin1(offered);
    };
    row("the location", "http://h/dir/", "http://h/dir/", "me");
    row("elsewhere on its server", "http://h/dir/", "http://h/x/a.deb", "me");
    row("its port in words", "http://h/", "http://h:80/", "me");
    row("in capitals", "http://h/", "HTTP://H/", "me");
    row("an FTP location", "ftp://h/", "ftp://h:21/dir/", "me");
    row("another server", "http://h/", "http://other/", "");
    row("another port", "http://h/", "http://h:81/", "");
    row("another scheme", "http://h/", "https://h/", "");
    row("another server with a login", "http://h/", "http://known/", "you");
    row("that one's other port", "http://h/", "http://known:81/", "");
}

void tst_RVRepository::loginsForOtherPlaces()
{
    QFETCH(QString, location);
    QFETCH(QString, asking);
    QFETCH(QString, offered);
    Watched watched{QUrl(location)};
    watched.repository.setAuthenticationCredentials(QStringLiteral("me"), QStringLiteral("pw"));
    const auto keyring = QSharedPointer<RVKeyring>::create();
    keyring->keep(QStringLiteral("http://known:80"),
                  {QStringLiteral("you"), QStringLiteral("word")});
    watched.repository.setKeyring(keyring);
    int questions = 0;
    connect(&watched.repository, &RVRepository::authenticationRequired, this, [&] {
        ++questions;
    });
    const QPointer<XNetworkReply> reply = watched.startListing();
    reply->setUrl(QUrl(asking));
    QAuthenticator auth;
    QVERIFY(QMetaObject::invokeMethod(&watched.repository, "attemptAuthentication",
                                      Q_ARG(QNetworkReply *, reply.data()),
                                      Q_ARG(QAuthenticator *, &auth)));
    QTEST(auth.user(), "offered");
    QCOMPARE(questions, offered.isEmpty() ? 1 : 0);
}

void tst_RVRepository::answersProxies()
{
    Watched watched(location());
    const QNetworkProxy proxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy"), 3128);
    int questions = 0;
    connect(&watched.repository, &RVRepository::proxyAuthenticationRequired, this, [&] {
        ++questions;
    });
    QAuthenticator auth;
    const auto challenge = [&] {
        return QMetaObject::invokeMethod(&watched.repository, "relayProxyAuthenticationRequired",
                                         Q_ARG(QNetworkProxy, proxy),
                                         Q_ARG(QAuthenticator *, &auth));
    };
    QVERIFY(challenge());
    QCOMPARE(questions, 1);
    watched.repository.keyring()->keep(QStringLiteral("proxy:3128"),
                                       {QStringLiteral("me"), QStringLiteral("pw")});
    QVERIFY(challenge());
    QCOMPARE(questions, 1);
    QCOMPARE(auth.user() + QLatin1Char('/') + auth.password(), QStringLiteral("me/pw"));
}

void tst_RVRepository::serverThatAsks_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("questions");
    QTest::addColumn<QStringList>("expected");
    const QString done = QStringLiteral("refreshDone 0");
    const QString refused = QStringLiteral("networkError 204");
    QTest::newRow("right password") << QStringLiteral("pw") << 0 << QStringList{done};
    QTest::newRow("wrong password") << QStringLiteral("old") << 1 << QStringList{refused, done};
}

void tst_RVRepository::serverThatAsks()
{
    QFETCH(QString, password);
    HttpServer server;
    server.protect(QStringLiteral("me"), QStringLiteral("pw"));
    server.serve(QStringLiteral("/a.xml"), "<update_data><version>1</version></update_data>");
    Watched watched(server.url(QStringLiteral("/")));
    watched.repository.setAuthenticationCredentials(QStringLiteral("me"), password);
    int questions = 0;
    connect(&watched.repository, &RVRepository::authenticationRequired, this, [&] {
        ++questions;
    });
    const QPointer<XNetworkReply> reply = watched.startListing();
    for (const char *name : {"/a.deb", "/a.xml"}) {
        XUrlInfo item;
        item.setName(server.url(QLatin1String(name)).toString());
        reply->entries.append(item);
    }
    reply->finish();
    QTRY_COMPARE(watched.count("refreshDone"), 1);
    QTEST(watched.signalTexts, "expected");
    QTEST(questions, "questions");
    QCOMPARE(watched.repository.entries()[0].descriptor()->version().isEmpty(), questions > 0);
}

void tst_RVRepository::passesQuestionsOn()
{
    addUpdate(QStringLiteral("a"), "a", "1");
    Watched watched(location());
    int calls = 0;
    connect(&watched.repository, &RVRepository::proxyAuthenticationRequired, this,
            [&](const QNetworkProxy &proxy, QAuthenticator *) {
                calls += proxy.hostName() == QLatin1String("proxy");
            });
    connect(&watched.repository, &RVRepository::sslErrors, this,
            [&](QNetworkReply *, const QList<QSslError> &errors) {
                calls += errors.size();
            });
    connect(&watched.repository, &RVRepository::authenticationRequired, this,
            [&](QNetworkReply *, QAuthenticator *) {
                ++calls;
            });
    QAuthenticator auth;
    const QNetworkProxy proxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy"));
    const QList<QSslError> errors{QSslError(QSslError::HostNameMismatch)};

    XNetworkReply reply;
    watched.refresh();
    auto *manager = watched.repository.findChild<XNetworkAccessManager *>();
    QVERIFY(manager);
    manager->relayProxyAuthenticationRequired(proxy, &auth);
    QCOMPARE(calls, 1);
    manager->relaySslErrors(&reply, errors);
    QCOMPARE(calls, 2);
    manager->relayAuthenticationRequired(&reply, &auth);
    QCOMPARE(calls, 3);
    auto *fetch = watched.repository.findChild<RVDescFetch *>();
    QVERIFY(fetch);
    Q_EMIT fetch->proxyAuthenticationRequired(proxy, &auth);
    QCOMPARE(calls, 4);
    Q_EMIT fetch->sslErrors(&reply, errors);
    QCOMPARE(calls, 5);
    Q_EMIT fetch->authenticationRequired(&reply, &auth);
    QCOMPARE(calls, 6);
    QTRY_COMPARE(watched.count("refreshDone"), 1);
}

void tst_RVRepository::passwordsStayOutOfTheLog()
{
    Watched watched(QUrl(QStringLiteral("gopher://me:secret@h/")));
    watched.refresh();
    watched.repository.setUrl(location());
    QUrl local = location();
    local.setUserInfo(QStringLiteral("me:secret"));
    watched.repository.setUrl(local);
    watched.refresh();
    QVERIFY(m_log->contains(QStringLiteral("Refreshing repository('gopher://me@h/')")));
    QVERIFY(m_log->contains(QStringLiteral("Finished directory fetch('gopher://me@h/'), Err=302")));
    QVERIFY(!m_log->raw().contains("secret"));
}

QTEST_GUILESS_MAIN(tst_RVRepository)
#include "tst_RVRepository.moc"
