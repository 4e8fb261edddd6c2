// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FakeRoot.h"
#include "tests/support/SigningKeys.h"
#include "tests/support/WebServers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <memory>

namespace
{

constexpr int timeout = 60000;
const QString sums = QStringLiteral("SHA256SUMS");
const QString signature = QStringLiteral("SHA256SUMS.gpg");

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The literal blocks of a subsection, as a reader would copy them.
QStringList blocks(const QString &heading)
{
    QStringList result;
    bool isHere = false;
    bool isLiteral = false;
    for (const QString &line :
         QString::fromUtf8(content(QStringLiteral(MANUAL))).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String(".Ss ")) || line.startsWith(QLatin1String(".Sh "))) {
            isHere = line.mid(4) == heading;
        } else if (isHere && line.startsWith(QLatin1String(".Bd -literal"))) {
            isLiteral = true;
            result.append(QString());
        } else if (line == QLatin1String(".Ed")) {
            isLiteral = false;
        } else if (isHere && isLiteral) {
            // How the manual writes a backslash.
            result.last() += QString(line).replace(QLatin1String("\\e"), QLatin1String("\\"))
                + QLatin1Char('\n');
        }
    }
    return result;
}

} // namespace

/// What the manual tells publishers to type.
class tst_RVCtlManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void publishing();

private:
    void type(const QString &commands) const;
    /// Puts an update into the publisher's folder.
    void addUpdate(const QString &name) const;
    void upload(const QString &name) const;
    void uploadList() const;
    void bringKeyring() const;
    /// What the device makes of the repository now: the trust and the names of the updates.
    QJsonObject trust();
    QStringList names() const;

    QTemporaryDir m_publisher;
    SigningKeys m_keys;
    FakeRoot m_device;
    NginxServer m_server;
    QJsonObject m_section;
};

void tst_RVCtlManual::initTestCase()
{
    // What a user would be asked for.
    FakeRoot::write(m_keys.home() + QStringLiteral("/gpg.conf"),
                    "batch\nquiet\npinentry-mode loopback\npassphrase \"\"\n");
    QVERIFY2(m_server.start(), m_server.report());
}

void tst_RVCtlManual::type(const QString &commands) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GNUPGHOME"), m_keys.home());
    environment.insert(QStringLiteral("HOME"), m_publisher.path());
    environment.insert(QStringLiteral("PATH"),
                       QFileInfo(QStringLiteral(RAVELCTL)).path() + QLatin1Char(':')
                           + environment.value(QStringLiteral("PATH")));
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(m_publisher.path());
    shell.setStandardInputFile(QProcess::nullDevice());
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-ec"), commands});
    QVERIFY(shell.waitForFinished(timeout));
    QVERIFY2(shell.exitStatus() == QProcess::NormalExit && shell.exitCode() == 0,
             qUtf8Printable(commands + QString::fromUtf8(shell.readAll())));
}

void tst_RVCtlManual::addUpdate(const QString &name) const
{
    const QString file = m_publisher.filePath(QStringLiteral("packages/")) + name;
    FakeRoot::write(file + QStringLiteral(".deb"), "!<arch>\n" + name.toUtf8());
    FakeRoot::write(file + QStringLiteral(".xml"),
                    "<update_data><name>" + name.toUtf8()
                        + "</name><version>1.0</version><thin_client>all</thin_client>"
                          "</update_data>");
}

void tst_RVCtlManual::upload(const QString &name) const
{
    FakeRoot::write(m_server.root() + QLatin1Char('/') + name,
                    content(m_publisher.filePath(QStringLiteral("packages/")) + name));
}

void tst_RVCtlManual::uploadList() const
{
    upload(sums);
    upload(signature);
}

void tst_RVCtlManual::bringKeyring() const
{
    FakeRoot::write(m_device.paths().keyringDir + QStringLiteral("/vendor.gpg"),
                    content(m_publisher.filePath(QStringLiteral("vendor.gpg"))));
}

QJsonObject tst_RVCtlManual::trust()
{
    QProcess process;
    process.start(QStringLiteral(RAVELCTL),
                  {QStringLiteral("--root"), m_device.path(), QStringLiteral("--json"),
                   QStringLiteral("list")});
    if (!process.waitForFinished(timeout)) {
        return {};
    }
    m_section = QJsonDocument::fromJson(process.readAllStandardOutput())
                    .object()[QStringLiteral("repositories")]
                    .toArray()
                    .at(0)
                    .toObject();
    return m_section[QStringLiteral("trust")].toObject();
}

QStringList tst_RVCtlManual::names() const
{
    QStringList result;
    for (const QJsonValue &entry : m_section[QStringLiteral("entries")].toArray()) {
        result.append(entry.toObject()[QStringLiteral("name")].toString());
    }
    result.sort();
    return result;
}

void tst_RVCtlManual::publishing()
{
    const QStringList elements = blocks(QStringLiteral("Signed repositories"));
    const QStringList commands = blocks(QStringLiteral("Publishing a signed repository"));
    QCOMPARE(elements.size(), 1);
    QCOMPARE(commands.size(), 5);
    const QString &makeKey = commands.at(0);
    const QString &makeList = commands.at(1);
    const QString &addKey = commands.at(2);
    const QString &signByNewKey = commands.at(3);
    const QString &dropOldKey = commands.at(4);

    type(makeKey);
    bringKeyring();
    FakeRoot::write(m_device.paths().definitionDir + QStringLiteral("/vendor.xml"),
                    "<repository_list><repository><title>Packages</title><default_uri>"
                        + m_server.url().toEncoded() + "</default_uri>"
                        + elements.constFirst().toUtf8()
                        + "<filter_pattern><archive_pattern>\\.deb$</archive_pattern>"
                          "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>"
                          "</repository></repository_list>");
    addUpdate(QStringLiteral("first"));
    type(makeList);
    upload(QStringLiteral("first.deb"));
    upload(QStringLiteral("first.xml"));
    uploadList();
    const QString vendor = QStringLiteral("Vendor <updates@vendor.example>");
    QJsonObject found = trust();
    QVERIFY2(found[QStringLiteral("error")].isNull(), QJsonDocument(found).toJson().constData());
    QCOMPARE(found[QStringLiteral("kind")].toString(), QStringLiteral("signed"));
    QCOMPARE(found[QStringLiteral("signer")].toString(), vendor);
    QCOMPARE(names(), QStringList{QStringLiteral("first")});

    // A device that looks in between sees the old state.
    addUpdate(QStringLiteral("second"));
    QVERIFY(QFile::remove(m_publisher.filePath(QStringLiteral("packages/first.deb"))));
    QVERIFY(QFile::remove(m_publisher.filePath(QStringLiteral("packages/first.xml"))));
    type(makeList);
    for (const char *name : {"second.deb", "second.xml"}) {
        upload(QLatin1String(name));
        QVERIFY(trust()[QStringLiteral("error")].isNull());
        QCOMPARE(names(), QStringList{QStringLiteral("first")});
    }
    uploadList();
    for (const char *name : {"first.xml", "first.deb"}) {
        QVERIFY(trust()[QStringLiteral("error")].isNull());
        QCOMPARE(names(), QStringList{QStringLiteral("second")});
        QVERIFY(QFile::remove(m_server.root() + QLatin1Char('/') + QLatin1String(name)));
    }
    QCOMPARE(trust()[QStringLiteral("serial")].toString(), QStringLiteral("2"));

    // A change of keys.
    type(addKey);
    bringKeyring();
    QCOMPARE(trust()[QStringLiteral("signer")].toString(), vendor);
    type(signByNewKey);
    upload(signature);
    const QString newVendor = QStringLiteral("Vendor <updates2@vendor.example>");
    QCOMPARE(trust()[QStringLiteral("signer")].toString(), newVendor);
    type(dropOldKey);
    bringKeyring();
    QCOMPARE(trust()[QStringLiteral("signer")].toString(), newVendor);
    type(makeList);
    uploadList();
    QCOMPARE(trust()[QStringLiteral("error")].toObject()[QStringLiteral("kind")].toString(),
             QStringLiteral("bad-signature"));
}

QTEST_GUILESS_MAIN(tst_RVCtlManual)
#include "tst_RVCtlManual.moc"
