// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorGeneric.h"
#include "repository/RVDescFetch.h"
#include "repository/RVRepository.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/UpdateWorld.h"
#include "ui/CertDialog.h"
#include "ui/ItemDetailsDialog.h"
#include "ui/RVControlFrame.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVMainPage.h"

#include <QAccessible>
#include <QApplication>
#include <QAuthenticator>
#include <QDir>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>
#include <QTextEdit>

#include <functional>
#include <memory>

namespace
{

using Drive = std::function<void(const QUrl &)>;

const QString secret = QStringLiteral("s3cret");

class FailedReply : public QNetworkReply
{
public:
    FailedReply(const QUrl &url, NetworkError code)
    {
        setUrl(url);
        setError(code, QStringLiteral("failed"));
    }
    void abort() override { }

protected:
    qint64 readData(char *, qint64) override { return -1; }
};

/// A port on which nobody listens.
quint16 closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// Everything that the windows show, their hidden pages included, and that a screen reader says.
QString shownAnywhere()
{
    QString text;
    for (QWidget *widget : QApplication::allWidgets()) {
        text += widget->windowTitle() + widget->toolTip() + widget->statusTip()
            + widget->whatsThis() + widget->accessibleName() + widget->accessibleDescription();
        if (QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget)) {
            for (const QAccessible::Text what : {QAccessible::Name, QAccessible::Description,
                                                 QAccessible::Value, QAccessible::Help}) {
                text += interface->text(what);
            }
        }
        if (const auto *label = qobject_cast<QLabel *>(widget)) {
            text += label->text();
        }
        if (const auto *edit = qobject_cast<QTextEdit *>(widget)) {
            text += edit->toHtml();
        }
        if (const auto *table = qobject_cast<QTableWidget *>(widget)) {
            for (int row = 0; row < table->rowCount(); ++row) {
                for (int column = 0; column < table->columnCount(); ++column) {
                    const QTableWidgetItem *item = table->item(row, column);
                    for (const int role :
                         {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Qt::AccessibleTextRole),
                          int(Qt::AccessibleDescriptionRole)}) {
                        text += item->data(role).toString();
                    }
                }
            }
        }
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

Q_DECLARE_METATYPE(Drive)

/// A password in a location is shown nowhere: not in the log, not in a message, not in a window.
class tst_Passwords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void stayHidden_data();
    void stayHidden();

private:
    void rows(const char *title, const char *name, const Drive &drive);
    template<class Object, class... Arguments>
    Object *keep(Arguments &&...arguments)
    {
        auto object = std::make_unique<Object>(std::forward<Arguments>(arguments)...);
        Object *result = object.get();
        m_objects.push_back(std::move(object));
        return result;
    }
    RVRepository *repository(const QUrl &url)
    {
        return keep<RVRepository>(QStringLiteral("Corvane"), QStringLiteral("Ravel"), QString(),
                                  url, QString(), SortByName, nullptr, m_world->paths());
    }
    void drivePage(const QUrl &url);

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<UpdateWorld> m_world;
    FakeSystem m_system;
    std::vector<std::unique_ptr<QObject>> m_objects;
};

void tst_Passwords::init()
{
    m_guard = std::make_unique<WarningGuard>();
    // The program itself reports what goes wrong here: what counts is what the messages hold.
    m_guard->allow(QStringLiteral("."));
    m_log = std::make_unique<LogFile>();
    m_world = std::make_unique<UpdateWorld>();
    QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel")).clear();
}

void tst_Passwords::cleanup()
{
    while (!m_objects.empty()) {
        m_objects.pop_back();
    }
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        delete widget;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_world.reset();
    m_log.reset();
    m_guard.reset();
}

void tst_Passwords::rows(const char *title, const char *name, const Drive &drive)
{
    for (const char *scheme : {"http", "https", "ftp"}) {
        QUrl url;
        url.setScheme(QLatin1String(scheme));
        url.setHost(QStringLiteral("127.0.0.1"));
        url.setPort(closedPort());
        url.setUserName(QStringLiteral("me"));
        url.setPassword(secret);
        url.setPath(QLatin1Char('/') + QLatin1String(name));
        QTest::newRow(
            qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(title), QLatin1String(scheme))))
            << url << drive;
    }
}

void tst_Passwords::stayHidden_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<Drive>("drive");

    rows("a refresh", "dir/", [this](const QUrl &url) {
        RVRepository *repository = this->repository(url);
        QSignalSpy failed(repository, &RVRepository::networkError);
        repository->refresh();
        QTRY_VERIFY(!failed.isEmpty());
    });
    rows("a location that changes", "dir/", [this](const QUrl &url) {
        RVRepository *repository = this->repository(QUrl());
        repository->setUrl(url);
        repository->setUrl(url.toString());
        repository->refresh();
        repository->cancel();
    });
    rows("a section's pages", "dir/", [this](const QUrl &url) {
        RVRepository *repository = this->repository(url);
        auto *frame =
            keep<RVControlFrame>(repository, &m_system, SelectionTable::CheckBoxes, QString(),
                                 QString(), QIcon(), false, nullptr, m_world->paths());
        QAuthenticator auth;
        FailedReply own(url, QNetworkReply::AuthenticationRequiredError);
        frame->enterAuthenticationState(&own, &auth);
        frame->enterErrorState();
        frame->show();
    });
    rows("another server that asks", "a.xml", [this](const QUrl &url) {
        RVRepository *repository = this->repository(QUrl(QStringLiteral("http://updates/")));
        auto *frame =
            keep<RVControlFrame>(repository, &m_system, SelectionTable::CheckBoxes, QString(),
                                 QString(), QIcon(), false, nullptr, m_world->paths());
        QAuthenticator auth;
        FailedReply asking(url, QNetworkReply::NoError);
        frame->enterAuthenticationState(&asking, &auth);
        frame->show();
    });
    rows("every sentence", "a.xml", [this](const QUrl &url) {
        auto *dialog = keep<RVErrorDialog>();
        for (int code = 1; code < 500; ++code) {
            FailedReply reply(url, static_cast<QNetworkReply::NetworkError>(code));
            dialog->showNetworkError(&reply);
        }
        dialog->show();
    });
    rows("a certificate", "a.xml", [this](const QUrl &url) {
        keep<CertDialog>(url, QList<QSslError>{QSslError(QSslError::HostNameMismatch)})->show();
    });
    rows("the whole page", "dir/", [this](const QUrl &url) {
        drivePage(url);
    });
    rows("details", "a.xml", [this](const QUrl &url) {
        keep<ItemDetailsDialog>(keep<DescriptorGeneric>(url))->show();
    });
    rows("a descriptor of no kind", "a.none", [this](const QUrl &url) {
        keep<DescriptorGeneric>(url);
        RVData(url, url, nullptr, m_world->paths());
    });
    rows("descriptors", "a.xml", [this](const QUrl &url) {
        QList<RVData> entries{RVData(url, url, nullptr, m_world->paths())};
        auto *fetch = keep<RVDescFetch>(entries, QStringLiteral("me"), secret, nullptr);
        QSignalSpy finished(fetch, &RVDescFetch::finished);
        QSignalSpy failed(fetch, &RVDescFetch::networkError);
        fetch->fetchAll();
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!failed.isEmpty());
    });
    rows("a table and its installation", "a.deb", [this](const QUrl &url) {
        auto *table =
            keep<SelectionTable>(QList<RVData>{m_world->remoteEntry(url)},
                                 SelectionTable::CheckBoxes, &m_system, nullptr, m_world->paths());
        RVAccess access;
        access.server = url;
        table->setAccess(access);
        table->setAuthenticationCredentials(QStringLiteral("me"), secret);
        table->show();
        m_world->setInstaller("ls -R . >&2; echo \"$0 $*\"; env; exit 3");
        QSignalSpy finished(table, &SelectionTable::installFinished);
        table->install();
        QTRY_COMPARE(finished.size(), 1);
    });
    rows("an archive of no kind", "a.none", [this](const QUrl &url) {
        auto *table =
            keep<SelectionTable>(QList<RVData>{m_world->remoteEntry(url)},
                                 SelectionTable::CheckBoxes, &m_system, nullptr, m_world->paths());
        QSignalSpy finished(table, &SelectionTable::installFinished);
        table->install();
        QTRY_COMPARE(finished.size(), 1);
    });
    rows("a package that cannot be read", "a.deb", [this](const QUrl &url) {
        FailedReply reply(url, QNetworkReply::NoError);
        keep<DescriptorGeneric>(url)->read(&reply);
    });
    rows("a service pack that cannot be read", "a.xar", [this](const QUrl &url) {
        FailedReply reply(url, QNetworkReply::NoError);
        keep<DescriptorGeneric>(url)->read(&reply);
    });
}

void tst_Passwords::drivePage(const QUrl &url)
{
    const QDir world(m_world->file(QString()));
    world.mkpath(QStringLiteral("root/var/lib/dpkg"));
    world.mkpath(QStringLiteral("root/etc/cvtc-ravel/repositories"));
    const auto write = [&world](const char *name, const QByteArray &content) {
        QFile file(world.filePath(QLatin1String("root/") + QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    QVERIFY(write("etc/imageid", "6.1.0\n"));
    QVERIFY(write("var/lib/dpkg/status", ""));
    QVERIFY(write("etc/cvtc-ravel/repositories/a.xml",
                  "<repository_list><repository><title>T</title><settings_key>k</settings_key>"
                  "<default_uri>"
                      + url.toEncoded()
                      + "</default_uri><filter_pattern><archive_pattern>\\.deb$</archive_pattern>"
                        "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>"
                        "</repository></repository_list>"));
    RVPaths paths = RVPaths::under(world.filePath(QStringLiteral("root")));
    paths.rootLog = paths.userLog = m_log->path();
    auto *page = keep<RVMainPage>(nullptr, nullptr, Qt::WindowFlags(), paths);
    auto *frame = page->findChild<RVControlFrame *>();
    QCOMPARE(frame->repository()->url(), url);
    page->show();
    frame->enterRetrievalState();
    QTRY_COMPARE(frame->currentPage(), RVControlFrame::ErrorPage);
    frame->cancelRetrieval();
    page->repositoryURIChanged(0, url);
    QTRY_COMPARE(frame->currentPage(), RVControlFrame::ErrorPage);
}

void tst_Passwords::stayHidden()
{
    QFETCH(QUrl, url);
    QFETCH(Drive, drive);
    QVERIFY(url.toString().contains(secret));
    drive(url);
    QVERIFY(!QTest::currentTestFailed());
    const QString log = QString::fromUtf8(m_log->raw());
    QVERIFY2(!log.contains(secret), qPrintable(log));
    const QString messages = m_guard->messages().join(QLatin1Char('\n'));
    QVERIFY2(!messages.contains(secret), qPrintable(messages));
    const QString shown = shownAnywhere();
    QVERIFY2(!shown.contains(secret), qPrintable(shown));
    // Something has been said or shown at all, and the place is in it.
    const QString port = QString::number(url.port());
    QVERIFY2((log + messages + shown).contains(port) || url.path().endsWith(QLatin1String(".xar"))
                 || url.path().endsWith(QLatin1String(".deb")),
             qPrintable(log + messages + shown));
}

QTEST_MAIN(tst_Passwords)
#include "tst_Passwords.moc"
