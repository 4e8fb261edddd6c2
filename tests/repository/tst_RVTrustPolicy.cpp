// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVRepDesc.h"
#include "repository/RVTrustPolicy.h"

#include <QDomDocument>
#include <QtTest>

class tst_RVTrustPolicy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void isPartOfADefinition();
};

Q_DECLARE_METATYPE(RVTrustPolicy::Kind)

void tst_RVTrustPolicy::parse_data()
{
    using P = RVTrustPolicy;
    QTest::addColumn<QString>("elements");
    QTest::addColumn<RVTrustPolicy::Kind>("kind");
    QTest::addColumn<bool>("isUsable");
    const auto row = [](const char *name, const QByteArray &elements, P::Kind kind, bool isUsable) {
        QTest::newRow(name) << QString::fromUtf8(elements) << kind << isUsable;
    };
    const char *const id = "<repository_id>org.example.packages</repository_id>";
    const auto with = [id](const char *elements) {
        return QByteArray(elements) + id;
    };
    row("nothing", "", P::None, true);
    row("other elements", "<title>signed_by</title>", P::None, true);
    row("signed", with("<signed_by>vendor.gpg</signed_by>"), P::Signed, true);
    row("signed, and sums", with("<signed_by>v.gpg</signed_by><checksums>required</checksums>"),
        P::Signed, true);
    row("sums alone", "<checksums>required</checksums>", P::Checksums, true);
    row("sums: another word", "<checksums>optional</checksums>", P::Checksums, false);
    row("sums: no word", "<checksums/>", P::Checksums, false);
    row("sums: capitals", "<checksums>Required</checksums>", P::Checksums, false);
    row("sums: blanks", "<checksums> required </checksums>", P::Checksums, false);
    row("sums: twice", "<checksums>required</checksums><checksums>required</checksums>", P::None,
        false);
    row("signed by nobody", with("<signed_by></signed_by>"), P::Signed, false);
    row("signed by blanks", with("<signed_by> </signed_by>"), P::Signed, false);
    row("signed by blanks and a name", with("<signed_by> v.gpg</signed_by>"), P::Signed, false);
    row("a path", with("<signed_by>../v.gpg</signed_by>"), P::Signed, false);
    row("an absolute path", with("<signed_by>/tmp/v.gpg</signed_by>"), P::Signed, false);
    row("a hidden file", with("<signed_by>.gpg</signed_by>"), P::Signed, false);
    row("two points", with("<signed_by>..gpg</signed_by>"), P::Signed, false);
    row("an option", with("<signed_by>-v.gpg</signed_by>"), P::Signed, false);
    row("another suffix", with("<signed_by>v.asc</signed_by>"), P::Signed, false);
    row("markup", with("<signed_by><b>v.gpg</b></signed_by>"), P::Signed, false);
    row("a reference", with("<signed_by>v&amp;.gpg</signed_by>"), P::Signed, false);
    row("two keyrings", with("<signed_by>a.gpg</signed_by><signed_by>b.gpg</signed_by>"), P::None,
        false);
    row("a keyring in another element", with("<title><signed_by>v.gpg</signed_by></title>"),
        P::Signed, true);
    row("without an id", "<signed_by>v.gpg</signed_by>", P::Signed, false);
    row("an id alone", id, P::None, false);
    row("an id and sums", with("<checksums>required</checksums>"), P::Checksums, false);
    row("two ids", with("<signed_by>v.gpg</signed_by><repository_id>b</repository_id>"), P::None,
        false);
    row("an empty id", "<signed_by>v.gpg</signed_by><repository_id/>", P::Signed, false);
    row("an id with a slash", "<signed_by>v.gpg</signed_by><repository_id>a/b</repository_id>",
        P::Signed, false);
}

void tst_RVTrustPolicy::parse()
{
    QFETCH(QString, elements);
    QFETCH(RVTrustPolicy::Kind, kind);
    QFETCH(bool, isUsable);
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral("<repository>%1</repository>").arg(elements)));
    const RVTrustPolicy policy = RVTrustPolicy::parse(document.documentElement());
    QVERIFY2(policy.fault.isSet() != isUsable, qUtf8Printable(policy.fault.text));
    if (isUsable) {
        QCOMPARE(policy.kind, kind);
    }
    QCOMPARE(policy.repositoryId.isEmpty(), !isUsable || kind != RVTrustPolicy::Signed);
    QCOMPARE(policy.keyring.isEmpty(), !isUsable || kind != RVTrustPolicy::Signed);
}

void tst_RVTrustPolicy::isPartOfADefinition()
{
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral(
        "<repository><signed_by>v.gpg</signed_by><repository_id>a</repository_id></repository>")));
    QDomElement element = document.documentElement();
    RVRepDesc definition;
    QCOMPARE(definition.trust.kind, RVTrustPolicy::None);
    definition.parse(element);
    QCOMPARE(definition.trust.kind, RVTrustPolicy::Signed);
    QCOMPARE(definition.trust.keyring, QStringLiteral("v.gpg"));
    QCOMPARE(definition.trust.repositoryId, QStringLiteral("a"));
}

QTEST_GUILESS_MAIN(tst_RVTrustPolicy)
#include "tst_RVTrustPolicy.moc"
