// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVRepository.h"
#include "tests/support/EventLoop.h"
#include "tests/support/LogFile.h"
#include "tests/support/PackageOutline.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"
#include "tests/ui/UpdateWorld.h"
#include "ui/BusyDialog.h"
#include "ui/CertDialog.h"
#include "ui/RVControlFrame.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVMainPage.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedLayout>
#include <QTcpSocket>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace
{

using Frame = RVControlFrame;

const QString me = QStringLiteral("me");
const QString password = QStringLiteral("right word");
constexpr int patience = 20000;

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray descriptor(const QString &name)
{
    return "<update_data><name>" + name.toUtf8()
        + "</name><version>1</version><size>7</size><thin_client>all</thin_client></update_data>";
}

bool publish(const WebServer &server, const QString &name, const QString &folder = {})
{
    QDir(server.root()).mkpath(QLatin1Char('.') + folder);
    const QString path = server.root() + folder + QLatin1Char('/') + name;
    return writeFile(path + QStringLiteral(".deb"), packageOutline())
        && writeFile(path + QStringLiteral(".xml"), descriptor(name));
}

/// An index page whose entries lie on another server.
bool publishLinks(const WebServer &server, const QUrl &other, const QStringList &names)
{
    QByteArray html = "<!DOCTYPE html><title>links</title>";
    for (const QString &name : names) {
        for (const char *suffix : {".deb", ".xml"}) {
            html += "<a href=\"" + other.toEncoded() + name.toUtf8() + suffix + "\">x</a>";
        }
    }
    return writeFile(server.root() + QStringLiteral("/index.html"), html);
}

/// The user names that came with a server's requests, each once.
QStringList users(const WebServer &server)
{
    QStringList result;
    for (const QString &request : server.requests()) {
        result.append(request.section(QLatin1Char(' '), 3));
    }
    result.removeDuplicates();
    result.sort();
    return result;
}

/// What the server has been asked for by now. A request of the test's own comes last: once that is
/// in the log, so is all that was sent before.
QStringList requestsSoFar(const WebServer &server)
{
    static int number = 0;
    const QString last = QStringLiteral("/last-%1").arg(++number);
    runUntilIdle();
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, server.port());
    socket.write("GET " + server.url(last).toEncoded() + " HTTP/1.0\r\n\r\n");
    const bool isLogged = QTest::qWaitFor(
        [&] {
            return !server.requests().filter(last).isEmpty();
        },
        patience);
    QStringList requests = server.requests();
    const auto isOwn = [](const QString &request) {
        return request.contains(QLatin1String("/last-"));
    };
    requests.erase(std::remove_if(requests.begin(), requests.end(), isOwn), requests.end());
    return isLogged ? requests : QStringList(QStringLiteral("no answer"));
}

/// Answers every certificate dialog, and notes what it saw.
class CertificateUser : public QObject
{
    Q_OBJECT

public:
    explicit CertificateUser(bool accepts)
        : accepts(accepts)
    {
        connect(&m_timer, &QTimer::timeout, this, &CertificateUser::look);
        m_timer.start(5);
    }

    bool accepts;
    int asked = 0;
    int mostAtATime = 0;
    QString text;
    QString place;

private:
    void look()
    {
        QList<CertDialog *> open;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *dialog = qobject_cast<CertDialog *>(widget);
            if (dialog && dialog->isVisible()) {
                open.append(dialog);
            }
        }
        mostAtATime = qMax(mostAtATime, static_cast<int>(open.size()));
        if (!open.isEmpty()) {
            ++asked;
            text = open.first()->findChild<QTextEdit *>()->toPlainText();
            place = open.first()->findChild<QLabel *>(QStringLiteral("url"))->text();
            open.first()->done(accepts ? QDialog::Accepted : QDialog::Rejected);
        }
    }

    QTimer m_timer;
};

} // namespace

/// Logins and certificates of real servers and proxies, through the whole page.
class tst_Trust : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void loginWrongThenRight();
    void loginCancelled();
    void loginSharedWithASibling();
    void loginNotSharedWithAnotherHost();
    void loginForALinkedServer();
    void loginForOneDescriptor();
    void loginDuringAnInstallation();
    void certificateRejected();
    void certificateAccepted();
    void certificateChanged();
    void certificateOfAnotherServer();
    void certificateWithFaults_data();
    void certificateWithFaults();
    void certificatesSideBySide_data();
    void certificatesSideBySide();
    void pageThatGoesWhileAsking();
    void proxyWrongThenRight_data();
    void proxyWrongThenRight();
    void proxyCancelled_data();
    void proxyCancelled();
    void proxyOfTwoSections();
    void proxyThenServer_data();
    void proxyThenServer();
    void proxyDuringAnInstallation();

private:
    bool define(const QList<QUrl> &locations) const;
    std::unique_ptr<RVMainPage> page() const
    {
        return std::make_unique<RVMainPage>(nullptr, nullptr, Qt::WindowFlags(), m_paths);
    }
    static QList<Frame *> frames(const QWidget &page) { return page.findChildren<Frame *>(); }
    static int rows(const Frame *frame)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return frame->currentPage() == Frame::SelectionPage
            ? frame->findChild<SelectionTable *>()->rowCount()
            : -1;
    }
    static bool isAsking(const Frame *frame)
    {
        return frame->currentPage() == Frame::AuthenticationPage;
    }
    static QString question(const Frame *frame)
    {
        for (const QLabel *label : frame->findChildren<QLabel *>()) {
            if (label->text().startsWith(QLatin1String("Authentication"))) {
                return label->text();
            }
        }
        return {};
    }
    static void press(const Frame *frame, QDialogButtonBox::StandardButton button)
    {
        frame->findChild<QStackedLayout *>()
            ->widget(Frame::AuthenticationPage)
            ->findChild<QDialogButtonBox *>()
            ->button(button)
            ->click();
    }
    static void type(const Frame *frame, const QString &user, const QString &word)
    {
        const auto edits = frame->findChildren<QLineEdit *>();
        edits.at(0)->setText(user);
        edits.at(1)->setText(word);
        press(frame, QDialogButtonBox::Ok);
    }
    int sentences(const char *start) const
    {
        int count = 0;
        for (const QString &line : m_log->lines()) {
            count += line.startsWith(QLatin1String(start)) ? 1 : 0;
        }
        return count;
    }

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<UpdateWorld> m_world;
    RVPaths m_paths;
};

void tst_Trust::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_log = std::make_unique<LogFile>();
    m_world = std::make_unique<UpdateWorld>();
    QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel")).clear();
    const QDir world(m_world->file(QString()));
    world.mkpath(QStringLiteral("root/var/lib/dpkg"));
    world.mkpath(QStringLiteral("root/etc/cvtc-ravel/repositories"));
    m_paths = RVPaths::under(m_world->file(QStringLiteral("root")));
    m_paths.shell = m_world->paths().shell;
    m_paths.rootLog = m_paths.userLog = m_log->path();
    QVERIFY(writeFile(m_world->file(QStringLiteral("root/etc/imageid")), "6.1.0\n"));
    QVERIFY(writeFile(m_world->file(QStringLiteral("root/var/lib/dpkg/status")), ""));
}

void tst_Trust::cleanup()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QDialog *>(widget)) {
            delete widget;
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_world.reset();
    m_log.reset();
    m_guard.reset();
}

bool tst_Trust::define(const QList<QUrl> &locations) const
{
    QString xml = QStringLiteral("<repository_list>");
    for (const QUrl &location : locations) {
        xml +=
            QStringLiteral("<repository><title>Section</title><settings_key>%1</settings_key>"
                           "<default_uri>%2</default_uri><filter_pattern>"
                           "<archive_pattern>\\.deb$</archive_pattern>"
                           "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>"
                           "</repository>")
                .arg(QString::number(qHash(location)), QString::fromLatin1(location.toEncoded()));
    }
    xml += QStringLiteral("</repository_list>");
    return writeFile(m_world->file(QStringLiteral("root/etc/cvtc-ravel/repositories/a.xml")),
                     xml.toUtf8());
}

void tst_Trust::loginWrongThenRight()
{
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.protect(QStringLiteral("/"), me, password);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url()}));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    QVERIFY(question(frame).contains(server.url().toString()));
    type(frame, me, QStringLiteral("wrong word"));
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    // The fields keep what can be corrected.
    QCOMPARE(frame->findChildren<QLineEdit *>().at(0)->text(), me);
    const auto requests = server.requests().size();
    QVERIFY2(requests < 8, qPrintable(server.requests().join(QLatin1Char('\n'))));
    type(frame, me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QTRY_COMPARE_WITH_TIMEOUT(server.count(QStringLiteral("GET /a.xml 200 me")), 1, patience);
    // Known from now on.
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QCOMPARE(page->findChildren<Frame *>().size(), 1);
    QVERIFY(!m_log->raw().contains(" word"));
}

void tst_Trust::loginCancelled()
{
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.protect(QStringLiteral("/"), me, password);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url()}));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    press(frame, QDialogButtonBox::Cancel);
    QCOMPARE(rows(frame), 0);
    const QStringList before = requestsSoFar(server);
    QVERIFY(!before.isEmpty());
    QVERIFY(before.size() < 4);
    QCOMPARE(requestsSoFar(server), before);
    QCOMPARE(rows(frame), 0);
    // It can be had again.
    frame->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
}

void tst_Trust::loginSharedWithASibling()
{
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a"), QStringLiteral("/one")));
    QVERIFY(publish(server, QStringLiteral("b"), QStringLiteral("/two")));
    server.protect(QStringLiteral("/"), me, password);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url(QStringLiteral("/one/")), server.url(QStringLiteral("/two/"))}));
    const auto page = this->page();
    const auto frames = this->frames(*page);
    frames.at(0)->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frames.at(0)), patience);
    type(frames.at(0), me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frames.at(0)), 1, patience);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frames.at(1)), 1, patience);
}

void tst_Trust::loginNotSharedWithAnotherHost()
{
    NginxServer server;
    NginxServer other;
    for (NginxServer *each : {&server, &other}) {
        QVERIFY(publish(*each, QStringLiteral("a")));
        each->protect(QStringLiteral("/"), me, password);
        QVERIFY2(each->start(), each->report());
    }
    QVERIFY(define({server.url(), other.url(QStringLiteral("/"), QStringLiteral("localhost"))}));
    const auto page = this->page();
    const auto frames = this->frames(*page);
    frames.at(0)->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frames.at(0)), patience);
    type(frames.at(0), me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frames.at(0)), 1, patience);
    QCOMPARE(frames.at(1)->repository()->user(), QString());
    QVERIFY(other.requests().isEmpty());
    frames.at(1)->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frames.at(1)), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!other.requests().isEmpty(), patience);
    QVERIFY(!users(other).contains(me));
}

void tst_Trust::loginForALinkedServer()
{
    NginxServer server;
    NginxServer linked;
    QVERIFY(publish(linked, QStringLiteral("a")));
    linked.protect(QStringLiteral("/"), QStringLiteral("you"), QStringLiteral("other word"));
    QVERIFY2(linked.start(), linked.report());
    QVERIFY(publishLinks(server, linked.url(), {QStringLiteral("a")}));
    server.protect(QStringLiteral("/"), me, password);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url()}));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->repository()->setAuthenticationCredentials(me, password);
    frame->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    const QString place = QStringLiteral("http://127.0.0.1:%1").arg(linked.port());
    QVERIFY2(question(frame).contains(place), qPrintable(question(frame)));
    QCOMPARE(frame->findChildren<QLineEdit *>().at(0)->text(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(!linked.requests().isEmpty(), patience);
    QVERIFY(!users(linked).contains(me));

    type(frame, QStringLiteral("you"), QStringLiteral("other word"));
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QTRY_COMPARE_WITH_TIMEOUT(linked.count(QStringLiteral("GET /a.xml 200 you")), 1, patience);
    QVERIFY(!users(linked).contains(me));
    QVERIFY(!users(server).contains(QStringLiteral("you")));
    QCOMPARE(frame->repository()->user(), me);

    // The archive too.
    m_world->setInstaller("cat a.deb >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    QSignalSpy finished(frame, &Frame::installFinished);
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
    QCOMPARE(QFileInfo(m_world->file(QStringLiteral("seen"))).size(), packageOutline().size());
    QVERIFY(!users(linked).contains(me));
}

void tst_Trust::loginForOneDescriptor()
{
    NginxServer server;
    for (const char *name : {"a", "b", "c"}) {
        QVERIFY(publish(server, QLatin1String(name)));
    }
    server.protect(QStringLiteral("/b.xml"), me, password);
    server.answer(QStringLiteral("/c.xml"), 404);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url()}));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    // The one that is missing does not hide the question for the other.
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    type(frame, me, password);
    QTRY_VERIFY_WITH_TIMEOUT(rows(frame) >= 2, patience);
    QTRY_COMPARE_WITH_TIMEOUT(server.count(QStringLiteral("GET /b.xml 200 me")), 1, patience);
}

void tst_Trust::loginDuringAnInstallation()
{
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.protect(QStringLiteral("/a.deb"), me, password);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url()}));
    m_world->setInstaller("cat a.deb >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QSignalSpy finished(frame, &Frame::installFinished);
    QSignalSpy failed(frame->findChild<SelectionTable *>(), &SelectionTable::installError);
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(QFileInfo(m_world->file(QStringLiteral("seen"))).size(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    type(frame, me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 2, patience);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(QFileInfo(m_world->file(QStringLiteral("seen"))).size(), packageOutline().size());
}

void tst_Trust::certificateRejected()
{
    TestAuthority authority;
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.tlsUrl()}));
    CertificateUser user(false);
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(frame->currentPage(), Frame::ErrorPage, patience);
    QCOMPARE(requestsSoFar(server), QStringList());
    QCOMPARE(frame->currentPage(), Frame::ErrorPage);
    QCOMPARE(user.asked, 1);
    QCOMPARE(sentences("A secure channel via SSL/TLS handshaking could not be established for"), 1);
    QCOMPARE(sentences("Network Error '6'"), 1);
    // Retry asks again.
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(user.asked, 2, patience);
    QTRY_COMPARE_WITH_TIMEOUT(frame->currentPage(), Frame::ErrorPage, patience);
    QCOMPARE(requestsSoFar(server), QStringList());
}

void tst_Trust::certificateAccepted()
{
    TestAuthority authority;
    const TestAuthority::Pair pair = authority.issue();
    NginxServer server;
    for (int i = 0; i < 12; ++i) {
        QVERIFY(publish(server, QStringLiteral("a%1").arg(i)));
    }
    server.setCertificate(pair);
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.tlsUrl()}));
    CertificateUser user(true);
    auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 12, patience);
    QCOMPARE(user.asked, 1);
    QCOMPARE(user.place, server.tlsUrl().toString());
    // The server's own and not that of its authority.
    const QSslCertificate own = TestAuthority::read(pair.certificate);
    QVERIFY(user.text.contains(
        QStringLiteral("SHA256 Fingerprint:  ")
        + QString::fromLatin1(own.digest(QCryptographicHash::Sha256).toHex(':'))));
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 12, patience);
    m_world->setInstaller("ls >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    QSignalSpy finished(frame, &Frame::installFinished);
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
    QTRY_COMPARE_WITH_TIMEOUT(server.count(QStringLiteral("GET /a11.deb 200 -")), 1, patience);
    QCOMPARE(user.asked, 1);

    // For the life of the page.
    page = this->page();
    frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 12, patience);
    QCOMPARE(user.asked, 2);
}

void tst_Trust::certificateChanged()
{
    TestAuthority authority;
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.tlsUrl()}));
    CertificateUser user(true);
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QCOMPARE(user.asked, 1);
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    user.accepts = false;
    server.clearRequests();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(frame->currentPage(), Frame::ErrorPage, patience);
    QCOMPARE(user.asked, 2);
    QVERIFY(server.requests().isEmpty());
}

void tst_Trust::certificateOfAnotherServer()
{
    TestAuthority authority;
    NginxServer server;
    NginxServer other;
    for (NginxServer *each : {&server, &other}) {
        QVERIFY(publish(*each, QStringLiteral("a")));
        each->setCertificate(authority.issue());
        QVERIFY2(each->start(), each->report());
    }
    QVERIFY(define({server.tlsUrl(), other.tlsUrl()}));
    CertificateUser user(true);
    const auto page = this->page();
    const auto frames = this->frames(*page);
    frames.at(0)->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frames.at(0)), 1, patience);
    QCOMPARE(user.asked, 1);
    user.accepts = false;
    frames.at(1)->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(frames.at(1)->currentPage(), Frame::ErrorPage, patience);
    QCOMPARE(user.asked, 2);
    QVERIFY(other.requests().isEmpty());
}

void tst_Trust::certificateWithFaults_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("said");
    QTest::newRow("expired") << 0 << QStringLiteral("The certificate has expired.");
    QTest::newRow("not yet valid") << 1 << QStringLiteral("The certificate is not yet valid.");
    QTest::newRow("for another host")
        << 2
        << QStringLiteral(
               "The host name did not match any of the valid hosts for this certificate.");
    QTest::newRow("self-signed") << 3
                                 << QStringLiteral(
                                        "The certificate is self-signed, and untrusted.");
}

void tst_Trust::certificateWithFaults()
{
    QFETCH(int, kind);
    QFETCH(QString, said);
    TestAuthority authority;
    const QStringList hosts{QStringLiteral("127.0.0.1")};
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    switch (kind) {
    case 0:
        server.setCertificate(authority.issue(hosts, TestAuthority::Expired));
        break;
    case 1:
        server.setCertificate(authority.issue(hosts, TestAuthority::NotYetValid));
        break;
    case 2:
        server.setCertificate(authority.issue({QStringLiteral("updates.example")}));
        break;
    default:
        server.setCertificate(authority.issueSelfSigned());
    }
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.tlsUrl()}));
    CertificateUser user(true);
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QCOMPARE(user.asked, 1);
    QVERIFY2(user.text.contains(said), qPrintable(user.text));
}

void tst_Trust::certificatesSideBySide_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::addColumn<int>("read");
    QTest::newRow("accepted") << true << 20;
    QTest::newRow("rejected") << false << 0;
}

// Descriptors on two other servers, all of them asked for at once.
void tst_Trust::certificatesSideBySide()
{
    QFETCH(bool, accepts);
    QFETCH(int, read);
    TestAuthority authority;
    NginxServer server;
    NginxServer others[2];
    QByteArray html;
    for (int i = 0; i < 20; ++i) {
        QVERIFY(publish(others[i % 2], QStringLiteral("a%1").arg(i)));
    }
    for (NginxServer &other : others) {
        other.setCertificate(authority.issue());
        QVERIFY2(other.start(), other.report());
    }
    for (int i = 0; i < 20; ++i) {
        const QByteArray place = others[i % 2].tlsUrl(QStringLiteral("/a%1").arg(i)).toEncoded();
        html += "<a href=\"" + place + ".deb\">x</a><a href=\"" + place + ".xml\">x</a>";
    }
    QVERIFY(writeFile(server.root() + QStringLiteral("/index.html"), html));
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.url()}));
    CertificateUser user(accepts);
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    QSignalSpy done(frame->repository(), &RVRepository::refreshDone);
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, patience);
    QCOMPARE(user.asked, 2);
    QCOMPARE(user.mostAtATime, 1);
    QTRY_COMPARE_WITH_TIMEOUT(others[0].requests().size() + others[1].requests().size(), read,
                              patience);
}

void tst_Trust::pageThatGoesWhileAsking()
{
    TestAuthority authority;
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    QVERIFY(define({server.tlsUrl()}));
    auto page = this->page();
    // Qt's thread, whose transfer was cancelled while it waited for the answer.
    m_guard->allow(QStringLiteral("postEvent: Unexpected null receiver"));
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] {
        if (page && page->findChild<CertDialog *>()) {
            page.reset();
        }
    });
    timer.start(5);
    frames(*page).first()->enterRetrievalState();
    QTRY_VERIFY_WITH_TIMEOUT(!page, patience);
    QCOMPARE(requestsSoFar(server), QStringList());
}

void tst_Trust::proxyWrongThenRight_data()
{
    QTest::addColumn<bool>("tunnel");
    QTest::newRow("http") << false;
    QTest::newRow("https, by a tunnel") << true;
}

void tst_Trust::proxyWrongThenRight()
{
    QFETCH(bool, tunnel);
    TestAuthority authority;
    NginxServer server;
    for (int i = 0; i < 8; ++i) {
        QVERIFY(publish(server, QStringLiteral("a%1").arg(i)));
    }
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    proxy.protect(me, password);
    QVERIFY2(proxy.start(), proxy.report());
    QVERIFY(define({tunnel ? server.tlsUrl() : server.url()}));
    CertificateUser user(true);
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    page->proxyChanged(tunnel ? QStringLiteral("https") : QStringLiteral("http"),
                       QStringLiteral("127.0.0.1"), proxy.port());
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    const QString place = QStringLiteral("use the proxy <br /><i>127.0.0.1:%1</i>");
    QVERIFY2(question(frame).contains(place.arg(proxy.port())), qPrintable(question(frame)));
    QVERIFY(server.requests().isEmpty());
    type(frame, me, QStringLiteral("wrong word"));
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    QVERIFY(server.requests().isEmpty());
    QVERIFY2(proxy.requests().size() < 10, qPrintable(proxy.requests().join(QLatin1Char('\n'))));
    type(frame, me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 8, patience);
    QCOMPARE(frame->repository()->user(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(users(server), QStringList{QStringLiteral("-")}, patience);
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 8, patience);
    QVERIFY(!m_log->raw().contains(" word"));
}

void tst_Trust::proxyCancelled_data()
{
    proxyWrongThenRight_data();
}

void tst_Trust::proxyCancelled()
{
    QFETCH(bool, tunnel);
    TestAuthority authority;
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    proxy.protect(me, password);
    QVERIFY2(proxy.start(), proxy.report());
    QVERIFY(define({tunnel ? server.tlsUrl() : server.url()}));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    page->proxyChanged(tunnel ? QStringLiteral("https") : QStringLiteral("http"),
                       QStringLiteral("127.0.0.1"), proxy.port());
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    press(frame, QDialogButtonBox::Cancel);
    QCOMPARE(rows(frame), 0);
    const QStringList before = requestsSoFar(proxy);
    QVERIFY(!before.isEmpty());
    QVERIFY(before.size() < 4);
    QCOMPARE(requestsSoFar(proxy), before);
    QCOMPARE(rows(frame), 0);
    QCOMPARE(requestsSoFar(server), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(
        sentences("Authentication against the proxy server failed for URI") >= 1, patience);
}

void tst_Trust::proxyOfTwoSections()
{
    TestAuthority authority;
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a"), QStringLiteral("/one")));
    QVERIFY(publish(server, QStringLiteral("b"), QStringLiteral("/two")));
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    proxy.protect(me, password);
    QVERIFY2(proxy.start(), proxy.report());
    QVERIFY(define({server.url(QStringLiteral("/one/")), server.tlsUrl(QStringLiteral("/two/")),
                    server.url(QStringLiteral("/one"))}));
    CertificateUser user(true);
    const auto page = this->page();
    const auto frames = this->frames(*page);
    page->proxyChanged(QStringLiteral("http"), QStringLiteral("127.0.0.1"), proxy.port());
    page->proxyChanged(QStringLiteral("https"), QStringLiteral("127.0.0.1"), proxy.port());
    for (const Frame *frame : frames) {
        QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    }
    // The others go on by themselves.
    type(frames.at(0), me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frames.at(0)), 1, patience);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frames.at(1)), 1, patience);
    QTRY_VERIFY_WITH_TIMEOUT(frames.at(2)->currentPage() != Frame::AuthenticationPage, patience);
}

void tst_Trust::proxyThenServer_data()
{
    proxyWrongThenRight_data();
}

void tst_Trust::proxyThenServer()
{
    QFETCH(bool, tunnel);
    TestAuthority authority;
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    server.protect(QStringLiteral("/"), QStringLiteral("you"), QStringLiteral("server word"));
    server.setCertificate(authority.issue());
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    proxy.protect(me, password);
    QVERIFY2(proxy.start(), proxy.report());
    QVERIFY(define({tunnel ? server.tlsUrl() : server.url()}));
    CertificateUser user(true);
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    page->proxyChanged(tunnel ? QStringLiteral("https") : QStringLiteral("http"),
                       QStringLiteral("127.0.0.1"), proxy.port());
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    QVERIFY(question(frame).contains(QLatin1String("use the proxy")));
    type(frame, me, password);
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame) && question(frame).contains(QLatin1String("access")),
                             patience);
    for (const QLineEdit *edit : frame->findChildren<QLineEdit *>()) {
        QCOMPARE(edit->text(), QString());
    }
    type(frame, QStringLiteral("you"), QStringLiteral("server word"));
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    QVERIFY(!users(server).contains(me));
    QVERIFY(!users(proxy).contains(QStringLiteral("you")));
    QCOMPARE(frame->repository()->user(), QStringLiteral("you"));
}

void tst_Trust::proxyDuringAnInstallation()
{
    NginxServer server;
    QVERIFY(publish(server, QStringLiteral("a")));
    QVERIFY2(server.start(), server.report());
    SquidProxy proxy;
    proxy.protect(me, password);
    QVERIFY2(proxy.start(), proxy.report());
    QVERIFY(define({server.url()}));
    m_world->setInstaller("cat a.deb >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    const auto page = this->page();
    Frame *frame = frames(*page).first();
    frame->enterRetrievalState();
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    // Only the archive goes through the proxy: it is the first to be asked.
    frame->setProxy(QStringLiteral("127.0.0.1"), proxy.port());
    QSignalSpy finished(frame, &Frame::installFinished);
    QSignalSpy failed(frame->findChild<SelectionTable *>(), &SelectionTable::installError);
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
    QCOMPARE(failed.size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    QVERIFY(question(frame).contains(QLatin1String("use the proxy")));
    // Wrong, as the next installation finds.
    type(frame, me, QStringLiteral("wrong word"));
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    frame->setProxy(QStringLiteral("127.0.0.1"), proxy.port());
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 2, patience);
    QTRY_VERIFY_WITH_TIMEOUT(isAsking(frame), patience);
    QCOMPARE(QFileInfo(m_world->file(QStringLiteral("seen"))).size(), 0);
    type(frame, me, password);
    QTRY_COMPARE_WITH_TIMEOUT(rows(frame), 1, patience);
    frame->setProxy(QStringLiteral("127.0.0.1"), proxy.port());
    frame->findChild<SelectionTable *>()->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 3, patience);
    QCOMPARE(QFileInfo(m_world->file(QStringLiteral("seen"))).size(), packageOutline().size());
}

QTEST_MAIN(tst_Trust)
#include "tst_Trust.moc"
