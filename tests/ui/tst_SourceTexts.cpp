// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
//
// Translations are found by context, source text and comment together: a change of any of the three
// loses them in every catalogue.
#include "descriptor/DescriptorGeneric.h"
#include "repository/RVRepository.h"
#include "tests/support/LogFile.h"
#include "tests/ui/UpdateWorld.h"
#include "ui/BusyDialog.h"
#include "ui/CertDialog.h"
#include "ui/ItemDetailsDialog.h"
#include "ui/RVAdvPage.h"
#include "ui/RVControlFrame.h"
#include "ui/RVProxies.h"
#include "ui/RepURLFrame.h"

#include <plume/AccordionItem.h>

#include <QAuthenticator>
#include <QLineEdit>
#include <QNetworkProxy>
#include <QSet>
#include <QTest>
#include <QTranslator>

namespace
{

QString key(const QString &context, const QString &source, const QString &comment)
{
    return context + QLatin1Char('|') + source + QLatin1Char('|') + comment;
}

// Translates nothing, and remembers what it was asked for.
class Recorder : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *comment,
                      int) const override
    {
        asked.insert(
            key(QString::fromUtf8(context), QString::fromUtf8(source), QString::fromUtf8(comment)));
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable QSet<QString> asked;
};

} // namespace

class tst_SourceTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::installTranslator(&m_recorder);
        const LogFile log;
        BusyDialog busy;
        busy.progress(1, 2);
        busy.enterInstallPhase();
        busy.finished();
        const CertDialog certificate(QUrl(QStringLiteral("https://h/")), {});
        const DescriptorGeneric descriptor((QUrl()));
        const ItemDetailsDialog details(&descriptor);
        for (const int shift : {10, 20, 30}) {
            details.sizeStr(1LL << shift);
        }
        const UpdateWorld world;
        const FakeSystem system;
        RVRepository repository(QStringLiteral("Corvane"), QStringLiteral("Ravel"),
                                QStringLiteral("key"), world.url(), QString(), SortByName, nullptr,
                                world.paths());
        const RVControlFrame frame(&repository, &system, SelectionTable::CheckBoxes, QString(),
                                   QString(), QIcon(), false, nullptr, world.paths());
        QAuthenticator auth;
        Q_EMIT repository.proxyAuthenticationRequired(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("proxy.example"), 3128), &auth);
        RVAdvPage options(nullptr);
        options.title();
        options.description();
        options.helpText();
        RVMainPage::repositoryStatsType stats[2];
        options.setRepositories({&stats[0], &stats[1]});
        auto *locations = options.findChild<RepURLFrame *>();
        options.setHelpURIs(qobject_cast<AccordionItem *>(locations->parentWidget()));
        const auto fields = locations->findChildren<QLineEdit *>(QStringLiteral("location"));
        fields.at(0)->setText(QStringLiteral("gopher://h/"));
        fields.at(1)->setText(QStringLiteral("http://h:x/"));
        locations->okButtonPressed();
        options.findChild<RVProxies *>()->useSameToggled(true);
        QCoreApplication::removeTranslator(&m_recorder);
    }

    void areAskedFor_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("comment");
        const auto row = [](const char *context, const char *source, const char *comment = "") {
            QTest::newRow(source) << QString::fromUtf8(context) << QString::fromUtf8(comment);
        };
        row("BusyDialog", "In progress...");
        row("BusyDialog", "Cancel");
        row("BusyDialog", "Show Details");
        row("BusyDialog", "%v of %m KiB", "e.g. 500 of 1000 KiB");
        row("BusyDialog", "Installing updates...");
        row("BusyDialog", "%p%:  Done", "%p is percentage done.");
        row("CertDialog", "Certificate", "SSL authentication certificate");
        row("CertDialog", "Certificate could not be validated:  ");
        row("CertDialog", "Accept Certificate");
        row("CertDialog", "Reject Certificate");
        row("CertDialog", "Issued To");
        row("CertDialog", "Common Name:  ", "(CN), an LDAP term.");
        row("CertDialog", "Organization:  ", "(O), an LDAP term.");
        row("CertDialog", "Organizational Unit:  ", "(OU), an LDAP term.");
        row("CertDialog", "Serial Number:  ");
        row("CertDialog", "Issued By");
        row("CertDialog", "Dates");
        row("CertDialog", "Issue Date:  ");
        row("CertDialog", "Expires Date:  ");
        row("CertDialog", "Fingerprints", "identification string for certificates");
        row("CertDialog", "SHA1 Fingerprint:  ");
        row("CertDialog", "MD5 Fingerprint:  ");
        row("CertDialog", "SHA256 Fingerprint:  ");
        row("ItemDetailsDialog", "%1 KiB", "KiB = kibibyte:  1024 bytes");
        row("ItemDetailsDialog", "%1 MiB", "MiB = mebibyte:  1024*1024 bytes");
        row("ItemDetailsDialog", "%1 GiB", "GiB = gibibyte:  1024*1024*1024 bytes");
        row("RVAdvPage", "Options");
        row("RVAdvPage", "Advanced Options for Ravel");
        row("RVAdvPage",
            "Advanced options for Ravel such as the ability to modify repository URIs or to "
            "configure internet proxies.");
        row("RVAdvPage", "Repository Locations");
        row("RVAdvPage", "Repository Location URIs for Ravel");
        row("RVAdvPage",
            "This page lets you change the URIs for update content repositories to local or "
            "customer-specific values.  The defaults are CV's standard repositories for Thin "
            "Client update content.");
        row("RVAdvPage", "Networking Proxies");
        row("RVAdvPage", "Proxy servers for internet access");
        row("RVProxies", "Network Proxies");
        row("RVProxies", "Options for selecting networking proxies");
        row("RVProxies", "No proxies");
        row("RVProxies", "Manual Proxy Configuration:");
        row("RVProxies", "Scheme");
        row("RVProxies", "Type of connection, e.g. HTTP, FTP");
        row("RVProxies", "Server");
        row("RVProxies", "Port");
        row("RVProxies", "Networking port number");
        row("RVProxies", "Use same proxy for all");
        row("RVProxies", "All", "All connection types (short word)");
        row("RepURLFrame", "Repository URIs");
        row("RepURLFrame", "Options to change update repository locations");
        row("RepURLFrame", "'%1' is not a valid URI.");
        row("RepURLFrame", "'%1' is not a supported URI scheme.");
        row("RVControlFrame", "<i>No updates of this type are available.</i>");
        row("RVControlFrame", "&Install");
        row("RVControlFrame", "&Details");
        row("RVControlFrame", "&Refresh");
        row("RVControlFrame", "&All", "as in 'Select All Choices'");
        row("RVControlFrame", "&None", "as in 'Select No Choices'");
        row("RVControlFrame", "Retrieving data from repository<br /> <i>%1</i>",
            "The argument is a repository URI.");
        row("RVControlFrame", "Authentication is required to access <br /><i>%1</i>");
        row("RVControlFrame", "Authentication is required to use the proxy <br /><i>%1</i>");
        row("RVControlFrame", "User Name: ");
        row("RVControlFrame", "Password: ");
        row("RVControlFrame", "Could not retrieve data from repository<br /> <i>%1</i>");
        row("RVControlFrame", "&Retry");
    }
    void areAskedFor()
    {
        QFETCH(QString, context);
        QFETCH(QString, comment);
        QVERIFY(m_recorder.asked.contains(
            key(context, QString::fromUtf8(QTest::currentDataTag()), comment)));
    }

private:
    Recorder m_recorder;
};

QTEST_MAIN(tst_SourceTexts)
#include "tst_SourceTexts.moc"
