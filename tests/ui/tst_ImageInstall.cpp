// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FakeRoot.h"
#include "tests/support/FtpServers.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/support/WebServers.h"
#include "tests/ui/UpdateWorld.h"
#include "ui/BusyDialog.h"
#include "ui/SelectionTable.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

namespace
{

constexpr int limitMs = 60000;

QByteArray image()
{
    return QByteArray("\x1f\x8b\x08", 3) + QByteArray(997, 'i');
}

} // namespace

/// A full image in the window, from the choice to the restart.
class tst_ImageInstall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void refused_data();
    void refused();
    void answered_data();
    void answered();

private:
    RVData entry(const QUrl &url, const QString &name, int size = -1) const;
    QList<Qt::CheckState> states() const;
    bool hasOrder() const
    {
        return QFile::exists(m_root->path() + QStringLiteral("/writable/CV/Snapstow.conf"))
            || QFile::exists(m_root->path() + QStringLiteral("/etc/auto-update/new_image"));
    }
    /// Chooses the second of two images and installs it, to the end.
    void install(const QUrl &url, int size, QMessageBox::StandardButton answer);
    BusyDialog *dialog() const
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *busy = qobject_cast<BusyDialog *>(widget);
            if (busy && busy->isVisible()) {
                return busy;
            }
        }
        return nullptr;
    }

    NginxServer m_web;
    VsftpdServer m_ftp;
    QTemporaryDir m_folder;
    std::unique_ptr<FakeRoot> m_root;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<WarningGuard> m_guard;
    FakeSystem m_system;
    std::unique_ptr<SelectionTable> m_table;
    QString m_previousDir;
    QString m_asked;
    int m_errors = 0;
    int m_networkErrors = 0;
};

void tst_ImageInstall::initTestCase()
{
    for (const QString &root : {m_web.root(), m_ftp.root(), m_folder.path()}) {
        const auto write = [&root](const char *name, const QByteArray &content) {
            const QString file = root + QLatin1Char('/') + QLatin1String(name);
            FakeRoot::write(file, content);
            QFile::setPermissions(file, QFile::Permissions(0x6644));
        };
        write("good.dd.gz", image());
        write("login.dd.gz", image());
        write("empty.dd.gz", {});
        write("plain.dd.gz", QByteArray(1000, '\0'));
        write("page.dd.gz", "<html><body>Log in</body></html>\n");
    }
    QCOMPARE(
        ::mkfifo(QFile::encodeName(m_folder.filePath(QStringLiteral("pipe.dd.gz"))).constData(),
                 0600),
        0);
    m_web.protect(QStringLiteral("/login.dd.gz"), QStringLiteral("anna"), QStringLiteral("secret"));
    m_web.answer(QStringLiteral("/broken.dd.gz"), 500);
    m_web.redirect(QStringLiteral("/moved.dd.gz"), 302, QStringLiteral("/good.dd.gz"));
    QVERIFY2(m_web.start(), m_web.report());
    QVERIFY2(m_ftp.start(), m_ftp.report());
}

void tst_ImageInstall::init()
{
    m_previousDir = QDir::currentPath();
    m_log = std::make_unique<LogFile>();
    m_guard = std::make_unique<WarningGuard>();
    m_root = std::make_unique<FakeRoot>();
    FakeRoot::write(m_root->paths().rebootTool, "#!/bin/sh\nexit 0\n");
    QVERIFY(QFile::setPermissions(m_root->paths().rebootTool, QFile::Permissions(0x7755)));
    m_asked.clear();
    m_errors = 0;
    m_networkErrors = 0;
}

void tst_ImageInstall::cleanup()
{
    if (BusyDialog *left = dialog()) {
        delete left;
    }
    m_table.reset();
    QDir::setCurrent(m_previousDir);
    m_guard.reset();
    m_log.reset();
}

RVData tst_ImageInstall::entry(const QUrl &url, const QString &name, int size) const
{
    RVData result(url, QUrl(QStringLiteral("http://h/x.xml")), nullptr, m_root->paths());
    QBuffer descriptor;
    descriptor.setData(
        QStringLiteral("<update_data><name>%1</name><version>2</version>%2</update_data>")
            .arg(name, size < 0 ? QString() : QStringLiteral("<size>%1</size>").arg(size))
            .toUtf8());
    result.descriptor()->read(&descriptor);
    return result;
}

QList<Qt::CheckState> tst_ImageInstall::states() const
{
    // What the page shows next, whatever is installed by then.
    SelectionTable next({entry(QUrl(QStringLiteral("http://h/first.dd.gz")), QString()),
                         entry(m_table->property("url").toUrl(), QString())},
                        SelectionTable::RadioButtons, &m_system, nullptr, m_root->paths());
    next.restoreUserChoices(m_table->userChoices());
    return {next.item(0, 0)->checkState(), next.item(1, 0)->checkState()};
}

void tst_ImageInstall::install(const QUrl &url, int size, QMessageBox::StandardButton answer)
{
    m_table = std::make_unique<SelectionTable>(
        QList<RVData>{entry(QUrl(QStringLiteral("http://h/first.dd.gz")), QStringLiteral("first")),
                      entry(url, QStringLiteral("second"), size)},
        SelectionTable::RadioButtons, &m_system, nullptr, m_root->paths());
    m_table->setProperty("url", url);
    m_table->radioClicked(1, 0);
    connect(m_table.get(), &SelectionTable::installError, this, [this] {
        ++m_errors;
    });
    connect(m_table.get(), &SelectionTable::networkError, this, [this] {
        ++m_networkErrors;
    });
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box) {
            timer.stop();
            m_asked = box->informativeText();
            box->button(answer)->click();
        }
    });
    timer.start(0);
    QSignalSpy finished(m_table.get(), &SelectionTable::installFinished);
    m_table->install();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, limitMs);
}

void tst_ImageInstall::refused_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isNetwork");
    QTest::addColumn<QString>("words");
    const auto web = [this](const char *path) {
        return m_web.url(QLatin1String(path));
    };
    const auto ftp = [this](const char *path) {
        return m_ftp.url(m_ftp.rootPath() + QLatin1String(path));
    };
    const auto local = [this](const char *name) {
        return QUrl::fromLocalFile(m_folder.filePath(QLatin1String(name)));
    };
    const auto add = [](const char *name, const QUrl &url, const char *words,
                        bool isNetwork = false, int size = -1) {
        QTest::newRow(name) << url << size << isNetwork << words;
    };
    add("http, not there", web("/none.dd.gz"), "is not there", true);
    add("http, wants a login", web("/login.dd.gz"), "wants a login", true);
    add("http, server error", web("/broken.dd.gz"), "cannot be read", true);
    add("http, another address", web("/moved.dd.gz"), "it answers 302");
    add("http, empty", web("/empty.dd.gz"), "is empty");
    add("http, another size", web("/good.dd.gz"), "1000 bytes", false, 1001);
    add("http, not packed", web("/plain.dd.gz"), "not packed");
    add("http, a page", web("/page.dd.gz"), "a page");
    add("ftp, not there", ftp("/none.dd.gz"), "is not there", true);
    add("ftp, empty", ftp("/empty.dd.gz"), "is empty");
    add("ftp, another size", ftp("/good.dd.gz"), "1000 bytes", false, 1001);
    add("ftp, not packed", ftp("/plain.dd.gz"), "not packed");
    add("local, empty", local("empty.dd.gz"), "is empty");
    add("local, not packed", local("plain.dd.gz"), "not packed");
    add("local, a pipe", local("pipe.dd.gz"), "cannot be read", true);
}

void tst_ImageInstall::refused()
{
    QFETCH(QUrl, url);
    QFETCH(int, size);
    QFETCH(bool, isNetwork);
    QFETCH(QString, words);
    install(url, size, QMessageBox::Apply);
    QCOMPARE(m_asked, QString());
    QVERIFY(!hasOrder());
    QCOMPARE(m_errors, 1);
    QCOMPARE(m_networkErrors, isNetwork ? 1 : 0);
    BusyDialog *busy = dialog();
    QVERIFY(busy);
    const QString shown = busy->findChild<QTextEdit *>()->toPlainText();
    QVERIFY2(shown.contains(words), qUtf8Printable(shown));
    QVERIFY(m_log->contains(QStringLiteral("INSTALL FINISHED")));
    QCOMPARE(states(), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
}

void tst_ImageInstall::answered_data()
{
    QTest::addColumn<bool>("isYes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void tst_ImageInstall::answered()
{
    QFETCH(bool, isYes);
    install(m_web.url(QStringLiteral("/good.dd.gz")), 1000,
            isYes ? QMessageBox::Apply : QMessageBox::Abort);
    QVERIFY(m_asked.startsWith(QStringLiteral("second 2\n\n")));
    QCOMPARE(hasOrder(), isYes);
    QCOMPARE(m_errors, 0);
    // A no is neither an installation nor a failure: there is nothing to show of it.
    QCOMPARE(dialog() != nullptr, isYes);
    if (!isYes) {
        QCOMPARE(states(), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
    }
}

QTEST_MAIN(tst_ImageInstall)
#include "tst_ImageInstall.moc"
