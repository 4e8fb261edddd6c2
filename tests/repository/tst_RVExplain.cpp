// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVExplain.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(RVEligibility)

namespace
{

class TestSystem : public OSInfoBaseClass
{
public:
    VersionString baseOSName() const override { return VersionString(QStringLiteral("6.1.2")); }
    QList<VersionString> servicePackList() const override
    {
        return {VersionString(QStringLiteral("SP1"))};
    }
    QString versionInstalled(const QString & /*name*/) const override { return {}; }
    QString architecture() const override { return QStringLiteral("armel"); }
    QString thinClient() const override { return QStringLiteral("X90"); }
    void refresh() override { }
};

} // namespace

class tst_RVExplain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneReasonEach_data();
    void oneReasonEach();
    void listingOrderAndOnlyArchives();
    void anOfferDecidesBetweenTwoFilters();
    void refreshingUntilTheLastSignal();

private:
    void write(const QString &name, const QByteArray &content = "x") const;
    void describe(const QString &name, const QByteArray &fields) const;
    QList<RVVerdict> verdicts(bool filterSps = false);

    const LogFile m_log;
    const TestSystem m_system;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<RVRepository> m_repository;
    QStringList m_archives;
    QStringList m_descriptors;
};

void tst_RVExplain::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_archives = QStringList{QStringLiteral("\\.deb$")};
    m_descriptors = QStringList{QStringLiteral("\\.xml$")};
}

void tst_RVExplain::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_dir->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_RVExplain::describe(const QString &name, const QByteArray &fields) const
{
    write(name + QStringLiteral(".xml"), "<update_data>" + fields + "</update_data>");
}

QList<RVVerdict> tst_RVExplain::verdicts(bool filterSps)
{
    RVRepDesc definition;
    definition.defaultUri = QUrl::fromLocalFile(m_dir->path());
    definition.archivePatterns = m_archives;
    definition.descriptorPatterns = m_descriptors;
    m_repository.reset(RVRepository::fromDefinition(definition));
    // The repository stays: a counter of this function would be counted up after its end.
    const QSignalSpy done(m_repository.get(), &RVRepository::refreshDone);
    m_repository->refresh();
    [&] {
        QTRY_VERIFY(!done.isEmpty() && !m_repository->isRefreshing());
    }();
    return explain(*m_repository, m_system, filterSps);
}

void tst_RVExplain::oneReasonEach_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<RVEligibility>("reason");
    const QByteArray fits = "<thin_client>all</thin_client>";
    const auto row = [](const char *title, const QByteArray &fields, RVEligibility reason) {
        QTest::newRow(title) << fields << reason;
    };
    row("offered", fits, RVEligibility::Offered);
    row("other release", fits + "<base_releases>7\\..*</base_releases>",
        RVEligibility::OtherBaseRelease);
    row("other architecture", fits + "<architecture>i386</architecture>",
        RVEligibility::OtherArchitecture);
    row("other model", "<thin_client>Y1</thin_client>", RVEligibility::OtherThinClient);
    row("no model at all", "", RVEligibility::OtherThinClient);
    row("service pack that is installed", fits + "<name>SP1</name>",
        RVEligibility::ServicePackInstalled);
    row("release before architecture",
        "<base_releases>7</base_releases><architecture>i386</architecture>",
        RVEligibility::OtherBaseRelease);
    row("not well-formed", "<name>", RVEligibility::UnreadableDescriptor);
}

void tst_RVExplain::oneReasonEach()
{
    QFETCH(QByteArray, fields);
    QFETCH(RVEligibility, reason);
    write(QStringLiteral("a.deb"));
    describe(QStringLiteral("a"), fields);
    const QList<RVVerdict> found = verdicts(true);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().reason, reason);
    QCOMPARE(found.first().entry, 0);
    QCOMPARE(found.first().archive.fileName(), QStringLiteral("a.deb"));
}

void tst_RVExplain::listingOrderAndOnlyArchives()
{
    write(QStringLiteral("README"));
    write(QStringLiteral("alone.deb"));
    write(QStringLiteral("b.deb"));
    describe(QStringLiteral("b"), "<thin_client>all</thin_client>");
    write(QStringLiteral("image.dd.gz"));
    write(QStringLiteral("pack.XAR"));
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("c.deb")));
    const QList<RVVerdict> found = verdicts();
    QStringList names;
    QList<RVEligibility> reasons;
    for (const RVVerdict &verdict : found) {
        names.append(verdict.archive.fileName());
        reasons.append(verdict.reason);
    }
    QCOMPARE(names,
             (QStringList{QStringLiteral("alone.deb"), QStringLiteral("b.deb"),
                          QStringLiteral("image.dd.gz"), QStringLiteral("pack.XAR")}));
    QVERIFY(reasons
            == (QList<RVEligibility>{RVEligibility::NoDescriptor, RVEligibility::Offered,
                                     RVEligibility::NoFilter, RVEligibility::NoFilter}));
}

void tst_RVExplain::anOfferDecidesBetweenTwoFilters()
{
    m_archives += QStringLiteral("\\.deb$");
    m_descriptors += QStringLiteral("-other\\.xml$");
    // The first filter pairs a.xml, which fits another model.
    write(QStringLiteral("a.deb"));
    describe(QStringLiteral("a"), "<thin_client>Y1</thin_client>");
    describe(QStringLiteral("a-other"), "<thin_client>all</thin_client>");
    const QList<RVVerdict> found = verdicts();
    QCOMPARE(m_repository->entries().size(), 2);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().reason, RVEligibility::Offered);
    QCOMPARE(m_repository->entries().at(found.first().entry).descriptorUrl().fileName(),
             QStringLiteral("a-other.xml"));
}

void tst_RVExplain::refreshingUntilTheLastSignal()
{
    write(QStringLiteral("a.deb"));
    describe(QStringLiteral("a"), "<thin_client>all</thin_client>");
    verdicts();
    QVector<bool> seen;
    const auto look = [&] {
        seen.append(m_repository->isRefreshing());
    };
    connect(m_repository.get(), &RVRepository::refreshDone, this, look);
    connect(m_repository.get(), &RVRepository::refreshEnded, this, look);
    m_repository->refresh();
    QVERIFY(m_repository->isRefreshing());
    QTRY_COMPARE(seen, QVector<bool>({true, false}));
    // Where the location is not there, nothing is left to wait for either.
    m_repository->setUrl(QUrl(QStringLiteral("file:///nowhere/at/all")));
    m_repository->refresh();
    QVERIFY(!m_repository->isRefreshing());
}

QTEST_GUILESS_MAIN(tst_RVExplain)
#include "tst_RVExplain.moc"
