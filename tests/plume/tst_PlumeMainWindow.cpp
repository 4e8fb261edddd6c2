// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/PlumeMainWindow.h>
#include <plume/TitlePage.h>

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace
{

class Page : public WizardPage
{
public:
    using WizardPage::WizardPage;
    QString title() const override { return QStringLiteral("title"); }
    QString description() const override { return QStringLiteral("description"); }
    QString helpText() const override { return QStringLiteral("help"); }
};

} // namespace

class tst_PlumeMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<WizardPage *>(); }

    void pagesAreListedInOrderAndOwned()
    {
        auto *window = new PlumeMainWindow;
        QSignalSpy added(window, &PlumeMainWindow::pageAdded);
        QPointer<TitlePage> title(
            new TitlePage(QStringLiteral("a"), QStringLiteral("b"), QString()));
        QPointer<Page> page(new Page);
        window->addTitlePage(title);
        window->addNormalPage(page);
        window->addNormalPage(page);
        window->addNormalPage(nullptr);
        QCOMPARE(window->pages(), (QList<WizardPage *>{title.data(), page.data()}));
        QCOMPARE(added.count(), 2);
        QCOMPARE(added.at(0).at(0).value<WizardPage *>(), title.data());
        QCOMPARE(added.at(0).at(1).toBool(), true);
        QCOMPARE(added.at(1).at(1).toBool(), false);
        delete window;
        QVERIFY(title.isNull());
        QVERIFY(page.isNull());
    }

    void aDeletedPageIsForgotten()
    {
        PlumeMainWindow window;
        auto *page = new Page(&window);
        window.addNormalPage(page);
        delete page;
        QVERIFY(window.pages().isEmpty());
    }

    // A host that follows pageAdded() may move the page into a container of its own.
    void aPageDeeperInTheWindowStaysThere()
    {
        PlumeMainWindow window;
        auto *container = new QWidget(&window);
        auto *page = new Page(container);
        window.addNormalPage(page);
        QCOMPARE(page->parentWidget(), container);
    }

    void titlePageShowsItsTexts()
    {
        TitlePage page(QStringLiteral("Title <b>"), QStringLiteral("Description"),
                       QStringLiteral("<p>Help</p>"));
        QCOMPARE(page.title(), QStringLiteral("Title <b>"));
        QCOMPARE(page.description(), QStringLiteral("Description"));
        QCOMPARE(page.helpText(), QStringLiteral("<p>Help</p>"));
        const auto label = [&page](const char *name) {
            return page.findChild<QLabel *>(QString::fromLatin1(name));
        };
        QCOMPARE(label("titlePageTitle")->text(), page.title());
        QCOMPARE(label("titlePageTitle")->textFormat(), Qt::PlainText);
        QCOMPARE(label("titlePageDescription")->text(), page.description());
        QCOMPARE(label("titlePageHelp")->text(), page.helpText());

        page.setTitle(QStringLiteral("Titel"));
        page.setDescription(QStringLiteral("Beschreibung"));
        page.setHelpText(QStringLiteral("Hilfe"));
        QCOMPARE(page.title(), QStringLiteral("Titel"));
        QCOMPARE(label("titlePageTitle")->text(), QStringLiteral("Titel"));
        QCOMPARE(label("titlePageDescription")->text(), QStringLiteral("Beschreibung"));
        QCOMPARE(label("titlePageHelp")->text(), QStringLiteral("Hilfe"));
    }
};

QTEST_MAIN(tst_PlumeMainWindow)
#include "tst_PlumeMainWindow.moc"
