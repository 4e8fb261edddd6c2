// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/Spoken.h"
#include "ui/RVAdvPage.h"
#include "ui/RVProxies.h"
#include "ui/RVProxyTable.h"
#include "ui/RepURLFrame.h"

#include <plume/Accordion.h>
#include <plume/AccordionItem.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

#include <memory>

namespace
{

const char uriHelp[] =
    "This page lets you change the URIs for update content repositories to local or "
    "customer-specific values.  The defaults are CV's standard repositories for "
    "Thin Client update content.";

// Every text of the page, with a prefix.
class Catalogue : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) == QLatin1String("RVAdvPage")
            ? QStringLiteral("de: ") + QString::fromUtf8(source)
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_RVAdvPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void answersTheHost();
    void hasItsFramesInAnAccordion();
    void showsTheRepositories();
    void passesOnWhatItsFramesSay();
    void reportsTheStoredProxies();
    void tellsTheHelpOfTheOpenFrame();
    void changesLanguage();
    void isSpoken();
    void scrollsManyRows();
    void looksGood_data();
    void looksGood();

private:
    QList<AccordionItem *> items() const { return m_page->findChild<Accordion *>()->items(); }
    RepURLFrame *locations() const { return m_page->findChild<RepURLFrame *>(); }
    RVProxies *proxies() const { return m_page->findChild<RVProxies *>(); }
    QList<QLineEdit *> fields() const
    {
        return locations()->findChildren<QLineEdit *>(QStringLiteral("location"));
    }
    void setRepositories(int count);

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<LogFile> m_log;
    std::vector<RVMainPage::repositoryStatsType> m_stats;
    std::unique_ptr<RVAdvPage> m_page;
};

void tst_RVAdvPage::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_log = std::make_unique<LogFile>();
    QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel")).clear();
    m_page = std::make_unique<RVAdvPage>(nullptr);
}

void tst_RVAdvPage::cleanup()
{
    m_page.reset();
    m_log.reset();
    m_guard.reset();
}

void tst_RVAdvPage::setRepositories(int count)
{
    const char *const english[] = {"Image location", "Service pack location", "Package location"};
    const char *const german[] = {"Ort der Abbilder", "Ort der Service Packs", "Ort der Pakete"};
    const char *const path[] = {"images", "service-packs", "packages"};
    m_stats.assign(static_cast<std::size_t>(count), {});
    QList<RVMainPage::repositoryStatsType *> list;
    for (std::size_t i = 0; i < m_stats.size(); ++i) {
        m_stats[i].label.setValue(QLatin1String(english[i % 3]), QStringLiteral("en"));
        m_stats[i].label.setValue(QLatin1String(german[i % 3]), QStringLiteral("de"));
        m_stats[i].url = m_stats[i].defaultUrl =
            QUrl(QStringLiteral("https://updates.corvane.example/") + QLatin1String(path[i % 3]));
        list.append(&m_stats[i]);
    }
    m_page->setRepositories(list);
}

void tst_RVAdvPage::answersTheHost()
{
    QCOMPARE(m_page->title(), QStringLiteral("Options"));
    QCOMPARE(m_page->description(), QStringLiteral("Advanced Options for Ravel"));
    QCOMPARE(m_page->helpText(),
             QStringLiteral("Advanced options for Ravel such as the ability to modify repository "
                            "URIs or to configure internet proxies."));
    QCOMPARE(QLatin1String(RVAdvPage::PAGE_TITLE), QLatin1String("Options"));
    QVERIFY(!m_page->windowIcon().pixmap(16).isNull());
}

void tst_RVAdvPage::hasItsFramesInAnAccordion()
{
    QCOMPARE(items().size(), 2);
    QCOMPARE(items().at(0)->frame(), locations());
    QCOMPARE(items().at(1)->frame(), proxies());
    QVERIFY(items().at(0)->isExpanded());
    QCOMPARE(locations()->title(), QStringLiteral("Repository Locations"));
    QCOMPARE(locations()->helpText(), QStringLiteral("Repository Location URIs for Ravel"));
    QCOMPARE(proxies()->title(), QStringLiteral("Networking Proxies"));
    QCOMPARE(proxies()->helpText(), QStringLiteral("Proxy servers for internet access"));
    for (const AccordionItem *item : items()) {
        QVERIFY(!item->frame()->icon().pixmap(16).isNull());
    }
}

void tst_RVAdvPage::showsTheRepositories()
{
    setRepositories(2);
    QCOMPARE(fields().size(), 2);
    QCOMPARE(fields().at(0)->accessibleName(), QStringLiteral("Image location"));
    QCOMPARE(fields().at(1)->text(), m_stats[1].url.toString());
    // Once more is not twice as many.
    setRepositories(3);
    QCOMPARE(fields().size(), 3);
}

void tst_RVAdvPage::passesOnWhatItsFramesSay()
{
    setRepositories(2);
    QSignalSpy urls(m_page.get(), &RVAdvPage::repositoryURLChanged);
    QSignalSpy proxy(m_page.get(), &RVAdvPage::proxyChanged);
    QSignalSpy modified(m_page.get(), &WizardPage::modified);
    fields().at(1)->setText(QStringLiteral("http://a.example/"));
    locations()->okButtonPressed();
    QCOMPARE(urls.size(), 1);
    QCOMPARE(urls.first().at(0).toInt(), 1);
    QCOMPARE(urls.first().at(1).toUrl(), QUrl(QStringLiteral("http://a.example/")));
    QCOMPARE(modified.size(), 1);
    proxies()->okButtonPressed();
    QCOMPARE(proxy.size(), 3);
    QCOMPARE(modified.size(), 2);
}

void tst_RVAdvPage::reportsTheStoredProxies()
{
    QSettings settings(QStringLiteral("Corvane"), QStringLiteral("Ravel"));
    settings.setValue(QStringLiteral("ProxySettings/style"), 2);
    settings.setValue(QStringLiteral("ProxySettings/useForAll"), true);
    settings.setValue(QStringLiteral("ProxySettings/server_HTTP"), QStringLiteral("p.example"));
    settings.setValue(QStringLiteral("ProxySettings/port_HTTP"), 3128);
    m_page = std::make_unique<RVAdvPage>(nullptr);
    QSignalSpy proxy(m_page.get(), &RVAdvPage::proxyChanged);
    QSignalSpy modified(m_page.get(), &WizardPage::modified);
    m_page->emitProxySignals();
    QCOMPARE(proxy.size(), 3);
    const char *const schemes[] = {"HTTP", "HTTPS", "FTP"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(proxy.at(i).at(0).toString(), QLatin1String(schemes[i]));
        QCOMPARE(proxy.at(i).at(1).toString(), QStringLiteral("p.example"));
        QCOMPARE(proxy.at(i).at(2).toInt(), 3128);
    }
    QCOMPARE(modified.size(), 0);
}

void tst_RVAdvPage::tellsTheHelpOfTheOpenFrame()
{
    QSignalSpy help(m_page.get(), &RVAdvPage::helpChanged);
    const auto last = [&help] {
        return help.last().first().toString();
    };
    for (int i = 1; i >= 0; --i) {
        auto *heading = items().at(i)->findChild<QToolButton *>(QStringLiteral("accordionHeading"));
        heading->click();
        QCOMPARE(help.size(), 2 - i);
        QCOMPARE(last(),
                 i == 1 ? QStringLiteral("Proxy servers for internet access")
                        : QLatin1String(uriHelp));
    }
    m_page->setHelpURIs(nullptr);
    QCOMPARE(help.size(), 2);
}

void tst_RVAdvPage::changesLanguage()
{
    setRepositories(3);
    QSignalSpy help(m_page.get(), &RVAdvPage::helpChanged);
    const QLocale before;
    Catalogue catalogue;
    QCoreApplication::installTranslator(&catalogue);
    QLocale::setDefault(QLocale(QLocale::German));
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_page.get(), &event);
    // Nobody has opened a frame yet: the page's own help is shown.
    QCOMPARE(help.size(), 0);
    m_page->setHelpURIs(items().at(0));
    QCoreApplication::sendEvent(m_page.get(), &event);
    const QString title = m_page->title();
    const QString description = m_page->description();
    const QString helpText = m_page->helpText();
    QCoreApplication::removeTranslator(&catalogue);
    QLocale::setDefault(before);
    QCOMPARE(title, QStringLiteral("de: Options"));
    QCOMPARE(description, QStringLiteral("de: Advanced Options for Ravel"));
    QVERIFY(helpText.startsWith(QLatin1String("de: Advanced options for Ravel such as")));
    QCOMPARE(locations()->title(), QStringLiteral("de: Repository Locations"));
    QCOMPARE(locations()->helpText(), QStringLiteral("de: Repository Location URIs for Ravel"));
    QCOMPARE(proxies()->title(), QStringLiteral("de: Networking Proxies"));
    QCOMPARE(proxies()->helpText(), QStringLiteral("de: Proxy servers for internet access"));
    QCOMPARE(help.size(), 2);
    QCOMPARE(help.last().first().toString(), QStringLiteral("de: ") + QLatin1String(uriHelp));
    QCOMPARE(fields().at(0)->accessibleName(), QStringLiteral("Ort der Abbilder"));
}

void tst_RVAdvPage::isSpoken()
{
    setRepositories(3);
    m_page->resize(700, 500);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    for (AccordionItem *item : items()) {
        item->setExpanded(true);
        QCOMPARE(unspoken(*m_page), QString());
    }
}

void tst_RVAdvPage::scrollsManyRows()
{
    setRepositories(20);
    m_page->resize(640, 320);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    QCOMPARE(m_page->height(), 320);
    const auto *viewport = m_page->findChild<QScrollArea *>()->viewport();
    const auto isInSight = [viewport](const QWidget *widget) {
        const QRect shown(widget->mapTo(viewport, QPoint()), widget->size());
        return viewport->rect().contains(shown);
    };
    QTRY_VERIFY(!isInSight(fields().last()));
    // The keyboard brings each field into sight, whole.
    fields().first()->setFocus();
    for (QLineEdit *field : fields()) {
        QTRY_COMPARE(QApplication::focusWidget(), field);
        QTRY_VERIFY(isInSight(field));
        QCOMPARE(field->height(), fields().first()->height());
        QTest::keyClick(field, Qt::Key_Tab);
    }
    QTRY_VERIFY(isInSight(QApplication::focusWidget()));
    QVERIFY(qobject_cast<QAbstractButton *>(QApplication::focusWidget()));
}

void tst_RVAdvPage::looksGood_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("repositories");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("light") << false << 100 << 3 << false;
    QTest::newRow("dark") << true << 100 << 3 << false;
    QTest::newRow("large") << false << 200 << 3 << false;
    QTest::newRow("many") << false << 100 << 20 << false;
    QTest::newRow("mirrored") << false << 100 << 3 << true;
}

void tst_RVAdvPage::looksGood()
{
    QFETCH(bool, dark);
    QFETCH(int, percent);
    QFETCH(int, repositories);
    QFETCH(bool, rightToLeft);
    setRepositories(repositories);
    auto *manual = m_page->findChild<QRadioButton *>(QStringLiteral("manualProxies"));
    manual->setChecked(true);
    auto *table = m_page->findChild<RVProxyTable *>();
    table->item(0, RVProxyTable::ServerColumn)->setText(QStringLiteral("proxy.example"));
    table->item(0, RVProxyTable::PortColumn)->setText(QStringLiteral("3128"));
    table->item(2, RVProxyTable::ServerColumn)->setText(QStringLiteral("10.0.0.21"));
    table->item(2, RVProxyTable::PortColumn)->setText(QStringLiteral("99999"));
    // As a host shows a page, whatever its window has room for.
    QScrollArea area;
    area.setWidgetResizable(true);
    if (dark) {
        QPalette palette(QColor(0x31, 0x36, 0x3b));
        palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
        palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2e, 0x32));
        area.setPalette(palette);
    }
    QFont font = area.font();
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    area.setFont(font);
    if (rightToLeft) {
        area.setLayoutDirection(Qt::RightToLeft);
    }
    area.setWidget(m_page.get());
    area.resize(720, 520);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QDir shots(QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots"));
    QVERIFY(shots.mkpath(QStringLiteral(".")));
    for (int i = 0; i < 2; ++i) {
        items().at(i)->setExpanded(true);
        QCoreApplication::processEvents();
        QVERIFY(area.grab().save(shots.filePath(QStringLiteral("options-%1-%2.png")
                                                    .arg(QLatin1String(QTest::currentDataTag()))
                                                    .arg(i))));
        // Nothing that has to be read or pressed is smaller than it needs to be.
        for (const QWidget *widget : items().at(i)->findChildren<QWidget *>()) {
            if (widget->isVisible() && qobject_cast<const QAbstractButton *>(widget)) {
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width()
                             && widget->height() >= widget->minimumSizeHint().height(),
                         widget->metaObject()->className());
            }
        }
    }
    area.takeWidget();
}

QTEST_MAIN(tst_RVAdvPage)
#include "tst_RVAdvPage.moc"
