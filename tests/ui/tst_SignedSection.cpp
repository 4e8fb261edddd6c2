// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/LogFile.h"
#include "tests/support/SignedWorld.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/UpdateWorld.h"
#include "ui/RVControlFrame.h"
#include "ui/RVTrustTexts.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace
{

constexpr int limitMs = 60000;

} // namespace

/// What the window says of a signature.
class tst_SignedSection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void tellsWhoHasSigned();
    void tellsThatNobodyHas_data();
    void tellsThatNobodyHas();
    void hostileNames();
    void refusal();
    void cancelIsNoRefusal();
    void refusalAfterATable();
    void sentences();

private:
    void retrieve(const RVTrustPolicy &policy, const QUrl &location = {});
    QLabel *trustLabel() const { return m_frame->findChild<QLabel *>(QStringLiteral("trust")); }
    SelectionTable *table() const { return m_frame->findChildren<SelectionTable *>().constLast(); }

    std::unique_ptr<SigningKeys> m_keys;
    std::unique_ptr<SignedWorld> m_world;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    FakeSystem m_system;
    std::unique_ptr<RVRepository> m_repository;
    std::unique_ptr<RVControlFrame> m_frame;
};

void tst_SignedSection::initTestCase()
{
    m_keys = std::make_unique<SigningKeys>();
    QVERIFY(SignedWorld::makeKeys(m_keys.get()));
}

void tst_SignedSection::init()
{
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_world = std::make_unique<SignedWorld>(m_keys.get());
}

void tst_SignedSection::cleanup()
{
    m_frame.reset();
    m_repository.reset();
    m_world.reset();
    m_guard.reset();
    m_log.reset();
}

void tst_SignedSection::retrieve(const RVTrustPolicy &policy, const QUrl &location)
{
    m_repository = m_world->repository(policy, location);
    m_frame = std::make_unique<RVControlFrame>(
        m_repository.get(), &m_system, SelectionTable::CheckBoxes, QStringLiteral("Packages"),
        QString(), QIcon(), false, nullptr, m_world->paths);
    m_frame->show();
    QVERIFY(trustLabel()->isHidden());
    m_frame->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(m_frame->currentPage() != RVControlFrame::RetrievalPage, limitMs);
}

void tst_SignedSection::tellsWhoHasSigned()
{
    retrieve(m_world->policy());
    QCOMPARE(m_frame->currentPage(), RVControlFrame::SelectionPage);
    QCOMPARE(table()->rowCount(), 2);
    QVERIFY(trustLabel()->isVisible());
    QVERIFY2(trustLabel()->text().startsWith(QStringLiteral("Signed by ") + SignedWorld::publisher
                                             + QStringLiteral(", valid until ")),
             qUtf8Printable(trustLabel()->text()));
    QVERIFY(!trustLabel()->toolTip().isEmpty());
    QCOMPARE(trustLabel()->textFormat(), Qt::PlainText);
}

void tst_SignedSection::tellsThatNobodyHas_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<bool>("isTold");
    QTest::addColumn<bool>("hasNetwork");
    QTest::newRow("http") << QStringLiteral("http://h/") << true << true;
    QTest::newRow("https") << QStringLiteral("https://h/") << true << false;
    QTest::newRow("ftp") << QStringLiteral("ftp://h/") << true << true;
    QTest::newRow("a folder") << QStringLiteral("file:///srv") << false << false;
    QTest::newRow("a relative folder") << QStringLiteral("srv") << false << false;
    QTest::newRow("nowhere") << QString() << false << false;
}

void tst_SignedSection::tellsThatNobodyHas()
{
    QFETCH(QString, location);
    QFETCH(bool, isTold);
    QFETCH(bool, hasNetwork);
    const auto repository = m_world->repository({});
    repository->setUrl(QUrl(location));
    const QString line = RVTrustTexts::line(*repository);
    QCOMPARE(!line.isEmpty(), isTold);
    QCOMPARE(line.contains(QStringLiteral("or the network")), hasNetwork);
    // Whatever the server has: the definition asks for nothing.
    retrieve({});
    QVERIFY(trustLabel()->text().startsWith(QStringLiteral("Not signed: ")));
}

void tst_SignedSection::hostileNames()
{
    const QString name = QStringLiteral("<b>Evil</b> ") + QString(150, QLatin1Char('x'))
        + QStringLiteral(" <e@x.org>");
    QVERIFY(m_keys->make(name));
    FakeRoot::write(m_world->paths.keyringDir + QLatin1Char('/') + SignedWorld::keyring,
                    m_keys->keyring({QStringLiteral("e@x.org")}));
    m_world->publishText(m_world->list.toText(), QStringLiteral("e@x.org"));
    retrieve(m_world->policy());
    QVERIFY(trustLabel()->text().startsWith(QStringLiteral("Signed by <b>Evil</b> xxx")));
    QVERIFY(trustLabel()->text().size() < 160);
}

void tst_SignedSection::refusal()
{
    m_world->lose("SHA256SUMS.gpg");
    retrieve(m_world->policy());
    QCOMPARE(m_frame->currentPage(), RVControlFrame::ErrorPage);
    QString shown;
    QStringList buttons;
    for (const QLabel *label : m_frame->findChildren<QLabel *>()) {
        shown += label->isVisible() ? label->text() : QString();
    }
    for (const QPushButton *button : m_frame->findChildren<QPushButton *>()) {
        if (button->isVisible()) {
            buttons.append(button->text());
        }
    }
    QVERIFY2(shown.contains(QStringLiteral("or its signature, is missing")), qUtf8Printable(shown));
    QVERIFY2(shown.contains(QStringLiteral("SHA256SUMS.gpg")), qUtf8Printable(shown));
    QCOMPARE(buttons, QStringList{QStringLiteral("&Retry")});
}

void tst_SignedSection::cancelIsNoRefusal()
{
    bool isCanceled = false;
    m_world->server.beforeAnswer = [&](const QByteArray &path) {
        if (path == "/r/SHA256SUMS.gpg" && !isCanceled) {
            isCanceled = true;
            for (QAbstractButton *button : m_frame->findChildren<QAbstractButton *>()) {
                if (button->isVisible()) {
                    button->click();
                }
            }
        }
    };
    retrieve(m_world->policy());
    QTRY_VERIFY_WITH_TIMEOUT(isCanceled, limitMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_frame->currentPage(), RVControlFrame::ErrorPage, limitMs);
    for (const QLabel *label : m_frame->findChildren<QLabel *>()) {
        QVERIFY2(!label->isVisible() || !label->text().contains(QStringLiteral("signature")),
                 qUtf8Printable(label->text()));
    }
    m_world->server.beforeAnswer = nullptr;
    m_frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(m_frame->currentPage(), RVControlFrame::SelectionPage, limitMs);
}

void tst_SignedSection::refusalAfterATable()
{
    retrieve(m_world->policy());
    QCOMPARE(table()->rowCount(), 2);
    m_world->publishText(m_world->list.toText(), SignedWorld::stranger);
    m_frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(m_frame->currentPage(), RVControlFrame::ErrorPage, limitMs);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(table()->rowCount(), 0);
    QVERIFY(trustLabel()->text().isEmpty());
    // And back, once it is mended.
    m_world->publish();
    m_frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(m_frame->currentPage(), RVControlFrame::SelectionPage, limitMs);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(table()->rowCount(), 2);
}

void tst_SignedSection::sentences()
{
    for (int kind = RVTrustFault::Definition; kind <= RVTrustFault::OtherFile; ++kind) {
        RVTrustFault fault;
        fault.kind = static_cast<RVTrustFault::Kind>(kind);
        QVERIFY(RVTrustTexts::sentence(fault).endsWith(QLatin1Char('.')));
    }
    QVERIFY(RVTrustTexts::imageNote().contains(QStringLiteral("hostile")));
}

QTEST_MAIN(tst_SignedSection)
#include "tst_SignedSection.moc"
