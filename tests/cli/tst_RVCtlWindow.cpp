// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/OSInfo.h"
#include "descriptor/DataXML.h"
#include "repository/RVDefinitions.h"
#include "repository/RVRepDesc.h"
#include "repository/RVRepository.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/LogFile.h"
#include "tests/support/XarWriter.h"
#include "ui/RVControlFrame.h"
#include "ui/SelectionTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace
{

constexpr int worlds = 10;
constexpr int repositoriesPerWorld = 30;
constexpr int timeout = 60000;

/// What a row of a table shows.
struct Row {
    QString name;
    QString title;
    QString installed;
    QString version;
    bool chosen = false;

    bool operator==(const Row &other) const
    {
        return name == other.name && title == other.title && installed == other.installed
            && version == other.version && chosen == other.chosen;
    }
    QString toText() const
    {
        return QStringLiteral("%1 %2 | %3 | %4 | %5")
            .arg(chosen ? QStringLiteral("[x]") : QStringLiteral("[ ]"), name, installed, version,
                 title);
    }
};

QString toText(const QVector<Row> &rows)
{
    QString text;
    for (const Row &row : rows) {
        text += row.toText() + QLatin1Char('\n');
    }
    return text;
}

/// Makes worlds, the same ones in every run.
class Generator
{
public:
    explicit Generator(quint32 seed)
        : m_random(seed)
    {
    }

    void makeSystem(const FakeRoot &root)
    {
        root.setImageId(one({"6.1.2\n", "6.1.10\r\n", "7.0.0", "5"}));
        root.setHardwareTool("echo " + one({"TC-420", "TC-900", "X"}));
        root.addServicePackFile(QStringLiteral("base"), one({"SP1\n", "SP1\nSP2\n", "other\n"}));
        for (const QByteArray &name : names()) {
            if (chance(60)) {
                root.addPackage(name, one(versions()),
                                chance(80) ? "install ok installed" : "deinstall ok config-files");
            }
        }
    }

    QByteArray makeRepository(const FakeRoot &root, int number)
    {
        const QString folder = root.path() + QStringLiteral("/repos/%1").arg(number);
        const QByteArray suffix = one({".deb", ".xar", ".dd.gz", ".DEB"});
        const int count = 6 + m_random.bounded(14);
        for (int i = 0; i < count; ++i) {
            makeUpdate(folder, QStringLiteral("file%1_%2").arg(i).arg(m_random.bounded(100)),
                       QString::fromLatin1(suffix));
        }
        FakeRoot::write(folder + QStringLiteral("/README"), "nothing");
        return definition(folder, number);
    }

private:
    bool chance(int percent) { return static_cast<int>(m_random.bounded(100)) < percent; }
    QByteArray one(const QByteArrayList &list) { return list.at(m_random.bounded(list.size())); }
    static QByteArrayList names()
    {
        return {"tc-audio", "tc-browser", "tc-clock", "SP1", "SP2", "a&amp;b", "caf\xc3\xa9"};
    }
    static QByteArrayList versions()
    {
        return {"1.0", "1.0-1", "1.10", "1.2", "2.0~rc1", "2.0", "1:0.5", "", "10", "abc", "1.0-a"};
    }

    QByteArray elements(const char *tag, const QByteArrayList &values, int atMost)
    {
        QByteArray xml;
        for (int i = m_random.bounded(atMost + 1); i > 0; --i) {
            xml += QByteArray("<") + tag + '>' + one(values) + "</" + tag + '>';
        }
        return xml;
    }

    QByteArray fields()
    {
        return "<name>" + one(names()) + "</name><title>" + one({"A title", "", "&lt;b&gt;", "x y"})
            + "</title><version>" + one(versions()) + "</version>"
            + elements("base_releases", {"all", "6\\.1.*", "7.0.0", "(", "ALL", "6.1.2"}, 2)
            + elements("size", {"12", "no", "-1", "99999999999"}, 1)
            + elements("architecture", {"all", "armel", "armel", "i386"}, 2)
            + elements("thin_client", {"all", "all", "TC-420", "TC-900"}, 2);
    }

    void makeUpdate(const QString &folder, const QString &core, const QString &suffix)
    {
        const QString path = folder + QLatin1Char('/') + core;
        XarWriter archive;
        if (chance(50)) {
            archive.addSubdocument("<sp-attrs>" + elements("unpacked_size", {"7"}, 1)
                                   + "</sp-attrs>");
            archive.addSubdocument("<service-pack-description>" + fields()
                                   + "</service-pack-description>");
        }
        FakeRoot::write(path + suffix,
                        suffix == QLatin1String(".xar") ? archive.archive() : "archive");
        if (chance(85)) {
            const QByteArray document = "<update_data>" + fields() + "</update_data>";
            FakeRoot::write(path + QStringLiteral(".xml"),
                            chance(90) ? document : document.left(document.size() / 2));
        }
    }

    QByteArray definition(const QString &folder, int number)
    {
        QByteArray xml = "<repository><title>Repository " + QByteArray::number(number)
            + "</title><settings_key>key" + QByteArray::number(number) + "</settings_key>"
            + "<default_uri>" + QUrl::fromLocalFile(folder).toEncoded() + "</default_uri>"
            + "<selector_type>" + one({"PickOne", "pickone", "PickAny", ""}) + "</selector_type>"
            + "<filter_sps>" + one({"yes", "no", "1", "maybe"}) + "</filter_sps>";
        for (int i = m_random.bounded(3); i >= 0; --i) {
            xml += one({
                "<filter_pattern><archive_pattern>\\.(deb|DEB)$</archive_pattern>"
                "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>",
                "<filter_pattern><archive_pattern>\\.(xar|dd\\.gz)$</archive_pattern>"
                "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>",
                "<filter_pattern><archive_pattern>\\.xar$</archive_pattern></filter_pattern>",
                "<filter_pattern><archive_pattern>(</archive_pattern></filter_pattern>",
                "",
            });
        }
        return xml + "</repository>";
    }

    QRandomGenerator m_random;
};

QVector<Row> windowRows(const RVRepDesc &definition, const OSInfo &system, const RVPaths &paths)
{
    const std::unique_ptr<RVRepository> repository(
        RVRepository::fromDefinition(definition, nullptr, paths));
    const auto type =
        definition.picksOne() ? SelectionTable::RadioButtons : SelectionTable::CheckBoxes;
    RVControlFrame frame(repository.get(), &system, type, {}, {}, {}, definition.filterSps, nullptr,
                         paths);
    const QSignalSpy done(repository.get(), &RVRepository::refreshDone);
    frame.enterRetrievalState();
    [&] {
        QTRY_VERIFY_WITH_TIMEOUT(!done.isEmpty() && !repository->isRefreshing(), timeout);
    }();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto *table = frame.findChild<SelectionTable *>();
    const QString none = SelectionTable::tr("none", "small word for 'not currently installed'");
    QVector<Row> rows;
    for (int i = 0; i < table->rowCount(); ++i) {
        const auto text = [table, i](int column, int role) {
            return table->item(i, column)->data(role).toString();
        };
        Row row;
        row.name = text(SelectionTable::UpdateColumn, Qt::AccessibleTextRole);
        row.title = text(SelectionTable::UpdateColumn, Qt::AccessibleDescriptionRole);
        row.installed = text(SelectionTable::InstalledColumn, Qt::DisplayRole);
        if (row.installed == none) {
            row.installed.clear();
        }
        row.version = text(SelectionTable::OfferedColumn, Qt::DisplayRole);
        row.chosen = table->item(i, SelectionTable::ChoiceColumn)->checkState() == Qt::Checked;
        rows.append(row);
    }
    return rows;
}

QVector<Row> programRows(const QJsonObject &repository)
{
    QVector<Row> rows;
    for (const QJsonValue &value : repository.value(QStringLiteral("entries")).toArray()) {
        const QJsonObject entry = value.toObject();
        const auto text = [&entry](const char *key) {
            return entry.value(QLatin1String(key)).toString();
        };
        rows.append({text("name"), text("title"), text("installed"), text("version"),
                     entry.value(QStringLiteral("preselected")).toBool()});
    }
    return rows;
}

} // namespace

/// The program and the window say the same of the same folder.
class tst_RVCtlWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sameTables_data();
    void sameTables();
    void cleanupTestCase();

private:
    LogFile m_log;
    int m_repositories = 0;
    int m_rows = 0;
    int m_chosen = 0;
};

void tst_RVCtlWindow::initTestCase()
{
    qRegisterMetaType<QNetworkReply::NetworkError>();
    // Foreign patterns and truncated documents are part of the worlds.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
}

void tst_RVCtlWindow::sameTables_data()
{
    QTest::addColumn<quint32>("seed");
    for (int i = 0; i < worlds; ++i) {
        QTest::addRow("world %d", i) << static_cast<quint32>(i + 1);
    }
}

void tst_RVCtlWindow::sameTables()
{
    QFETCH(quint32, seed);
    Generator generator(seed);
    const FakeRoot root;
    generator.makeSystem(root);
    QByteArray definitions = "<repository_list>";
    for (int i = 0; i < repositoriesPerWorld; ++i) {
        definitions += generator.makeRepository(root, i);
    }
    FakeRoot::write(root.paths().definitionDir + QStringLiteral("/all.xml"),
                    definitions + "</repository_list>");

    QProcess program;
    program.start(QStringLiteral(RAVELCTL),
                  {QStringLiteral("--root"), root.path(), QStringLiteral("--json"),
                   QStringLiteral("--quiet"), QStringLiteral("list")});
    QVERIFY(program.waitForFinished(timeout));
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.exitCode(), 0);
    const QJsonArray repositories = QJsonDocument::fromJson(program.readAllStandardOutput())
                                        .object()
                                        .value(QStringLiteral("repositories"))
                                        .toArray();
    QCOMPARE(repositories.size(), repositoriesPerWorld);

    const OSInfo system(nullptr, root.paths());
    RVDefinitions::List list;
    QCOMPARE(RVDefinitions::readDirectory(root.paths(), &list), RVDefinitions::NoError);
    for (int i = 0; i < repositories.size(); ++i) {
        const QVector<Row> window =
            windowRows(*list.at(static_cast<std::size_t>(i)), system, root.paths());
        const QVector<Row> printed = programRows(repositories.at(i).toObject());
        QVERIFY2(window == printed,
                 qUtf8Printable(QStringLiteral("repository %1\nwindow:\n%2program:\n%3")
                                    .arg(i)
                                    .arg(toText(window), toText(printed))));
        ++m_repositories;
        m_rows += window.size();
        m_chosen +=
            static_cast<int>(std::count_if(window.begin(), window.end(), [](const Row &row) {
                return row.chosen;
            }));
    }
}

void tst_RVCtlWindow::cleanupTestCase()
{
    // Worlds in which nothing is offered would prove nothing.
    qInfo("%d repositories, %d rows, %d of them chosen", m_repositories, m_rows, m_chosen);
    QCOMPARE(m_repositories, worlds * repositoriesPerWorld);
    QVERIFY(m_rows > m_repositories / 2);
    QVERIFY(m_chosen > 0 && m_chosen < m_rows);
}

QTEST_MAIN(tst_RVCtlWindow)
#include "tst_RVCtlWindow.moc"
