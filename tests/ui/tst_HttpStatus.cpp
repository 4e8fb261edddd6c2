// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVInstallProc.h"
#include "repository/RVRepository.h"
#include "tests/support/LogFile.h"
#include "tests/support/PrivateState.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"
#include "ui/RVErrorDialog.h"

#include <QDir>
#include <QFile>
#include <QTextEdit>
#include <QtTest>

#include <memory>

/// What a server answers in place of a listing, a description or a package, as the user reads it.
class tst_HttpStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void listing_data() { addRows(); }
    void listing();
    void description_data() { addRows(); }
    void description();
    void package_data() { addRows(); }
    void package();
    void cleanup();

private:
    static void addRows();

    std::unique_ptr<NginxServer> m_server;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    QString m_previousDir;
};

namespace
{

constexpr int patience = 20'000;

const QList<int> &statuses()
{
    static const QList<int> all = [] {
        QList<int> list{204, 301, 302, 303, 304, 305, 306, 307, 308};
        for (int status = 400; status <= 429; ++status) {
            list.append(status);
        }
        return list + QList<int>{500, 501, 502, 503, 504};
    }();
    return all;
}

/// The sentence for an address; empty where the answer is no error.
QString sentence(int status)
{
    switch (status) {
    case 401:
        return QStringLiteral("Authentication is required to access URI '%1'.  Check the URI and "
                              "any user names or passwords supplied.");
    case 403:
        return QStringLiteral(
            "Access was denied for URI '%1'.  Is the URI valid?  Is the content readable?");
    case 404:
        return QStringLiteral(
            "Could not find URI '%1'.  Is the URI valid?  Is the content readable?");
    case 405:
        return QStringLiteral("Could not retreive the contents of URI '%1'.  Is the URI valid?  Is "
                              "the content readable?");
    case 407:
        return QStringLiteral("Authentication against the proxy server failed for URI '%1'.  Check "
                              "the credentials to be supplied to the proxy server.");
    default:
        break;
    }
    if (status < 400) {
        return QString();
    }
    return status <= 500
        ? QStringLiteral("An error was detected in handling the content retreived for the URI '%1'")
        : QStringLiteral("The protocol used by URI '%1' is not valid for this program.");
}

QString pathFor(const char *what, int status)
{
    return QStringLiteral("/%1-%2/").arg(QLatin1String(what)).arg(status);
}

/// All that the dialog has to say, its messages one after the other.
struct Dialog {
    template<class Sender>
    explicit Dialog(Sender *sender)
    {
        QObject::connect(sender, &Sender::networkError, &dialog, &RVErrorDialog::showNetworkError);
        QObject::connect(sender, &Sender::networkError, &dialog, [this] {
            ++errors;
        });
    }

    QString text() const
    {
        return dialog.isVisible() ? dialog.findChild<QTextEdit *>()->toPlainText() : QString();
    }
    void check(int status, const QUrl &url) const
    {
        const QString expected = sentence(status);
        QCOMPARE(errors, expected.isEmpty() ? 0 : 1);
        QCOMPARE(text(), expected.isEmpty() ? QString() : expected.arg(url.toString()));
    }

    RVErrorDialog dialog;
    int errors = 0;
};

std::unique_ptr<RVRepository> repositoryAt(const QUrl &url)
{
    auto repository =
        std::make_unique<RVRepository>(QStringLiteral("Corvane"), QStringLiteral("Ravel"),
                                       QString(), url, QStringLiteral("test"), SortByName);
    repository->addFilter(QRegExp(QStringLiteral("\\.deb$")), QRegExp(QStringLiteral("\\.xml$")));
    return repository;
}

bool publish(const QString &file)
{
    QFile out(file);
    return QDir().mkpath(QFileInfo(file).path()) && out.open(QIODevice::WriteOnly)
        && out.write("<update_data><version>1</version></update_data>") > 0;
}

} // namespace

void tst_HttpStatus::initTestCase()
{
    qRegisterMetaType<QProcess::ExitStatus>();
    m_server = std::make_unique<NginxServer>();
    const auto answer = [this](const QString &path, int status) {
        if (status >= 301 && status <= 308 && (status < 304 || status > 306)) {
            m_server->redirect(path, status, QStringLiteral("/elsewhere/"));
        } else {
            m_server->answer(path, status);
        }
    };
    for (const int status : statuses()) {
        answer(pathFor("listing", status), status);
        const QString folder = pathFor("description", status);
        for (const char *name : {"a.deb", "a.xml", "b.deb", "b.xml"}) {
            QVERIFY(publish(m_server->root() + folder + QLatin1String(name)));
        }
        answer(folder + QStringLiteral("a.xml"), status);
        answer(pathFor("package", status) + QStringLiteral("a.deb"), status);
    }
    QVERIFY(publish(m_server->root() + QStringLiteral("/elsewhere/a.deb")));
    QVERIFY(publish(m_server->root() + QStringLiteral("/elsewhere/a.xml")));
    QVERIFY2(m_server->start(), m_server->report());
}

void tst_HttpStatus::init()
{
    m_previousDir = QDir::currentPath();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    // The offscreen platform says so of every window that has a minimum size.
}

void tst_HttpStatus::cleanup()
{
    m_guard.reset();
    m_log.reset();
    QDir::setCurrent(m_previousDir);
}

void tst_HttpStatus::addRows()
{
    QTest::addColumn<int>("status");
    for (const int status : statuses()) {
        QTest::newRow(qPrintable(QString::number(status))) << status;
    }
}

void tst_HttpStatus::listing()
{
    QFETCH(int, status);
    const QUrl url = m_server->url(pathFor("listing", status));
    const auto repository = repositoryAt(url);
    const Dialog dialog(repository.get());
    QSignalSpy done(repository.get(), &RVRepository::refreshDone);
    repository->refresh();
    QTRY_VERIFY_WITH_TIMEOUT(!repository->isRefreshing(), patience);
    dialog.check(status, url);
    // An answer that is none has no updates; nothing was looked for elsewhere.
    QCOMPARE(done.size(), status < 400 ? 2 : 0);
    QVERIFY(repository->entries().isEmpty());
    QTRY_VERIFY(!m_server->requests().filter(url.path()).isEmpty());
    QVERIFY(m_server->requests().filter(QStringLiteral("elsewhere")).isEmpty());
}

void tst_HttpStatus::description()
{
    QFETCH(int, status);
    const QUrl url = m_server->url(pathFor("description", status));
    const auto repository = repositoryAt(url);
    const Dialog dialog(repository.get());
    QSignalSpy done(repository.get(), &RVRepository::refreshDone);
    repository->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, patience);
    QCOMPARE(done.first().first().toInt(), int(QNetworkReply::NoError));
    dialog.check(status, QUrl(url.toString() + QStringLiteral("a.xml")));
    QStringList versions;
    for (const RVData &entry : repository->entries()) {
        versions.append(entry.descriptor()->version().toString());
    }
    versions.sort();
    QCOMPARE(versions, QStringList({QString(), QStringLiteral("1")}));
}

void tst_HttpStatus::package()
{
    QFETCH(int, status);
    const QUrl url = m_server->url(pathFor("package", status) + QStringLiteral("a.deb"));
    const QTemporaryDir state;
    RVPaths paths = rememberingBelow(state.path());
    paths.shell = paths.trueTool;
    RVInstallProc procedure(RVData(url, QUrl(), nullptr, paths), nullptr, paths);
    const Dialog dialog(&procedure);
    QSignalSpy finished(&procedure, qOverload<int, QProcess::ExitStatus>(&QProcess::finished));
    procedure.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
    dialog.check(status, url);
    // No page lies where the installer looks for packages.
    QVERIFY(!QDir::current().exists(QStringLiteral("a.deb")));
}

QTEST_MAIN(tst_HttpStatus)
#include "tst_HttpStatus.moc"
