// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOrigin.h"
#include "install/RVInstallProc.h"
#include "tests/support/CpuCost.h"
#include "tests/support/HttpServer.h"
#include "tests/support/LogFile.h"
#include "tests/support/PackageOutline.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/UpdateWorld.h"
#include "ui/BusyDialog.h"
#include "ui/ItemDetailsDialog.h"
#include "ui/SelectionTable.h"

#include <QApplication>
#include <QAuthenticator>
#include <QBuffer>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <csignal>
#include <memory>

namespace
{

using Table = SelectionTable;

QString text(const QTableWidget &table, int row, int column)
{
    return table.item(row, column)->text();
}

Qt::CheckState state(const QTableWidget &table, int row)
{
    return table.item(row, Table::ChoiceColumn)->checkState();
}

QList<Qt::CheckState> states(const QTableWidget &table)
{
    QList<Qt::CheckState> result;
    for (int row = 0; row < table.rowCount(); ++row) {
        result.append(state(table, row));
    }
    return result;
}

QString spoken(const QTableWidget &table, int row, int column)
{
    return table.item(row, column)->data(Qt::AccessibleTextRole).toString();
}

template<class Dialog>
QList<Dialog *> dialogs()
{
    QList<Dialog *> result;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<Dialog *>(widget)) {
            result.append(dialog);
        }
    }
    return result;
}

template<class Dialog>
Dialog *onlyDialog()
{
    const QList<Dialog *> all = dialogs<Dialog>();
    return all.size() == 1 ? all.first() : nullptr;
}

QPushButton *button(const QWidget *dialog, const QString &label)
{
    for (QPushButton *candidate : dialog->findChildren<QPushButton *>()) {
        if (candidate->text() == label && candidate->isVisible()) {
            return candidate;
        }
    }
    return nullptr;
}

// Stands in for a catalogue: one translation for each pair of context and source text.
class Catalogue : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *comment,
                      int) const override
    {
        const QString key =
            QStringLiteral("%1/%2").arg(QLatin1String(context), QLatin1String(source));
        if (texts.contains(key)) {
            comments.insert(key, QLatin1String(comment));
        }
        return texts.value(key);
    }
    bool isEmpty() const override { return false; }

    QHash<QString, QString> texts;
    mutable QHash<QString, QString> comments;
};

class Installed
{
public:
    explicit Installed(Catalogue *catalogue)
        : m_catalogue(catalogue)
    {
        QCoreApplication::installTranslator(m_catalogue);
    }
    ~Installed() { QCoreApplication::removeTranslator(m_catalogue); }

private:
    Q_DISABLE_COPY_MOVE(Installed)
    Catalogue *m_catalogue;
};

} // namespace

class tst_SelectionTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void namesItsColumns();
    void hidesWhatARadioTableDoesNotNeed();
    void isSetUpForChoosing();
    void comparesVersions_data();
    void comparesVersions();
    void asksForTheEnglishName();
    void proposesWhatWasNotConfigured();
    void knowsNothingWithoutSystem();
    void proposesTheFirstRadioRow();
    void proposesNoRadioRowWhenTheFirstIsInstalled();
    void shrinksLongVersions_data();
    void shrinksLongVersions();
    void slantsWords_data();
    void slantsWords();
    void followsTheLanguage();
    void showsForeignTextAsText();
    void boundsWhatItShows();
    void speaksWithoutMarkup();
    void hidesRowsWithoutDescriptor();
    void hintsItsHeight_data();
    void hintsItsHeight();
    void growsWithTheFont();
    void givesTheLabelTheRestOfTheWidth();
    void keepsTheLabelWideEnough();
    void wrapsLongTitles();
    void turnsRadioOnByMouse();
    void turnsRadioOnByKeyboard();
    void togglesChecksByKeyboard();
    void togglesChecksByMouse();
    void choosesAllAndNone_data();
    void choosesAllAndNone();
    void carriesChoicesOver();
    void carriesARadioChoiceOver();
    void showsDetails_data();
    void showsDetails();
    void showsNoDetailsWithoutRow();
    void keepsDetailsOpenWithoutTheTable();
    void installsNothingWithoutChoice();
    void installsTheChosenInRowOrder();
    void reportsTheEnd_data();
    void reportsTheEnd();
    void followsTheInstallation();
    void installsOnceAtATime();
    void cancelsDownloads();
    void cannotBeCancelledLater();
    void handsProxyAndCredentialsOn();
    void answersWithItsCredentials();
    void offersItsCredentialsToNobodyElse();
    void asksWhenItsCredentialsFail();
    void relaysSignals();
    void waitsForTheInstallerWhenDestroyed();
    void takesItsDialogAlong();
    void paintsSelectedTextReadably_data();
    void paintsSelectedTextReadably();
    void takesTimeInProportionToItsRows();

private:
    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<UpdateWorld> m_world;
    std::unique_ptr<FakeSystem> m_system;
};

void tst_SelectionTable::initTestCase()
{
    qRegisterMetaType<const QNetworkReply *>("const QNetworkReply*");
    qRegisterMetaType<QAuthenticator *>("QAuthenticator*");
}

void tst_SelectionTable::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_log = std::make_unique<LogFile>();
    m_world = std::make_unique<UpdateWorld>();
    m_system = std::make_unique<FakeSystem>();
}

void tst_SelectionTable::cleanup()
{
    qDeleteAll(dialogs<QDialog>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_system.reset();
    m_world.reset();
    m_log.reset();
    m_guard.reset();
}

void tst_SelectionTable::namesItsColumns()
{
    const Table table({}, Table::CheckBoxes, m_system.get());
    QCOMPARE(table.objectName(), QStringLiteral("RVSelectionTable"));
    QCOMPARE(table.columnCount(), 4);
    QCOMPARE(table.horizontalHeaderItem(0)->text(), QString());
    QCOMPARE(table.horizontalHeaderItem(1)->text(), QStringLiteral("Update"));
    QCOMPARE(table.horizontalHeaderItem(2)->text(), QStringLiteral("Installed\nVersion"));
    QCOMPARE(table.horizontalHeaderItem(3)->text(), QStringLiteral("Update\nVersion"));
    QVERIFY(!table.horizontalHeader()->isHidden());
    QVERIFY(table.verticalHeader()->isHidden());
    QVERIFY(!table.isColumnHidden(Table::InstalledColumn));
}

void tst_SelectionTable::hidesWhatARadioTableDoesNotNeed()
{
    const Table table({}, Table::RadioButtons, m_system.get());
    QVERIFY(table.horizontalHeader()->isHidden());
    QVERIFY(table.verticalHeader()->isHidden());
    QVERIFY(table.isColumnHidden(Table::InstalledColumn));
    QVERIFY(!table.isColumnHidden(Table::OfferedColumn));
}

void tst_SelectionTable::isSetUpForChoosing()
{
    const Table table(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
        Table::CheckBoxes, m_system.get());
    QCOMPARE(table.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(table.alternatingRowColors());
    QVERIFY(!table.showGrid());
    QVERIFY(!table.isSortingEnabled());
    QCOMPARE(table.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table.selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(!table.tabKeyNavigation());
    const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(table.item(0, 0)->flags(), plain | Qt::ItemIsUserCheckable);
    QCOMPARE(table.item(0, 1)->flags(), plain);
    QCOMPARE(table.item(0, 0)->text(), QString());
    QCOMPARE(table.item(0, 2)->textAlignment(), static_cast<int>(Qt::AlignCenter));
    QCOMPARE(table.item(0, 3)->textAlignment(), static_cast<int>(Qt::AlignCenter));
}

void tst_SelectionTable::comparesVersions_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("installed");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<bool>("installedBold");
    QTest::addColumn<bool>("offeredBold");

    const auto row = [](const char *name, Table::SelectionTableType type, const char *installed,
                        const char *offered, const char *shown, bool chosen, bool installedBold,
                        bool offeredBold) {
        QTest::newRow(name) << static_cast<int>(type) << QString::fromLatin1(installed)
                            << QString::fromLatin1(offered) << QString::fromLatin1(shown) << chosen
                            << installedBold << offeredBold;
    };
    row("older is installed", Table::CheckBoxes, "1.0", "1.1", "1.0", true, false, true);
    row("the same is installed", Table::CheckBoxes, "1.1", "1.1", "1.1", false, true, false);
    row("newer is installed", Table::CheckBoxes, "1.2", "1.1", "1.2", false, true, false);
    row("nothing is installed", Table::CheckBoxes, "", "1.1", "none", true, false, true);
    row("nothing is installed, no version offered", Table::CheckBoxes, "", "", "none", false, true,
        false);
    row("radio, older is installed", Table::RadioButtons, "1.0", "1.1", "1.0", true, false, false);
    row("radio, the same is installed", Table::RadioButtons, "1.1", "1.1", "1.1", false, true,
        false);
    row("radio, nothing is installed", Table::RadioButtons, "", "1.1", "none", true, false, false);
}

void tst_SelectionTable::comparesVersions()
{
    QFETCH(int, type);
    QFETCH(QString, installed);
    QFETCH(QString, offered);
    m_system->installed.insert(QStringLiteral("tool"), installed);
    const Table table({m_world->entry(QStringLiteral("tool"), QStringLiteral("tool"), offered)},
                      static_cast<Table::SelectionTableType>(type), m_system.get());
    QTEST(text(table, 0, Table::InstalledColumn), "shown");
    QCOMPARE(text(table, 0, Table::OfferedColumn), offered);
    QTEST(state(table, 0) == Qt::Checked, "chosen");
    QTEST(table.item(0, Table::InstalledColumn)->font().weight() == 75, "installedBold");
    QTEST(table.item(0, Table::OfferedColumn)->font().weight() == 75, "offeredBold");
    QVERIFY(table.item(0, Table::OfferedColumn)->font().weight() == 75
            || table.item(0, Table::OfferedColumn)->font().weight() == 50);
}

void tst_SelectionTable::asksForTheEnglishName()
{
    m_system->installed.insert(QStringLiteral("tool"), QStringLiteral("1"));
    m_system->installed.insert(QStringLiteral("Werkzeug"), QStringLiteral("9"));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const Table table({m_world->entry(QStringLiteral("tool"), QStringLiteral("tool"),
                                      QStringLiteral("2"), QStringLiteral("Title"),
                                      QStringLiteral("<name xml:lang=\"de\">Werkzeug</name>"))},
                      Table::CheckBoxes, m_system.get());
    QLocale::setDefault(before);
    QCOMPARE(text(table, 0, Table::UpdateColumn), QStringLiteral("<b>Werkzeug</b><br />Title"));
    QCOMPARE(text(table, 0, Table::InstalledColumn), QStringLiteral("1"));
}

void tst_SelectionTable::proposesWhatWasNotConfigured()
{
    m_system->notConfigured = QStringList{QStringLiteral("a")};
    const Table table(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
        Table::CheckBoxes, m_system.get());
    QCOMPARE(text(table, 0, Table::InstalledColumn), QStringLiteral("not configured"));
    QCOMPARE(state(table, 0), Qt::Checked);
}

void tst_SelectionTable::knowsNothingWithoutSystem()
{
    const Table table(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
        Table::CheckBoxes, nullptr);
    QCOMPARE(text(table, 0, Table::InstalledColumn), QStringLiteral("unknown"));
    QCOMPARE(state(table, 0), Qt::Checked);
}

void tst_SelectionTable::proposesTheFirstRadioRow()
{
    const Table table(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("3")),
         m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("2")),
         m_world->entry(QStringLiteral("c"), QStringLiteral("c"), QStringLiteral("1"))},
        Table::RadioButtons, m_system.get());
    QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Checked, Qt::Unchecked, Qt::Unchecked}));
}

void tst_SelectionTable::proposesNoRadioRowWhenTheFirstIsInstalled()
{
    m_system->installed.insert(QStringLiteral("a"), QStringLiteral("3"));
    const Table table(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("3")),
         m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("2"))},
        Table::RadioButtons, m_system.get());
    QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Unchecked}));
}

void tst_SelectionTable::shrinksLongVersions_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<float>("factor");
    QTest::newRow("7 characters") << QStringLiteral("1234.67") << 1.0F;
    QTest::newRow("8 characters") << QStringLiteral("1234.678") << 7.0F / 8;
    QTest::newRow("14 characters") << QStringLiteral("1234.678901234") << 0.5F;
    QTest::newRow("20 characters") << QStringLiteral("1:2.36-9+deb12u10~b2") << 7.0F / 20;
}

void tst_SelectionTable::shrinksLongVersions()
{
    QFETCH(QString, version);
    QFETCH(float, factor);
    m_system->installed.insert(QStringLiteral("tool"), version);
    const Table table({m_world->entry(QStringLiteral("tool"), QStringLiteral("tool"), version)},
                      Table::CheckBoxes, m_system.get());
    for (const int column : {Table::InstalledColumn, Table::OfferedColumn}) {
        const QTableWidgetItem *item = table.item(0, column);
        QVERIFY(qAbs(static_cast<float>(item->font().pointSizeF())
                     - static_cast<float>(table.font().pointSizeF()) * factor)
                < 0.01F);
        // What is too small to read is in the tool tip.
        QCOMPARE(item->toolTip(),
                 factor < 1.0F ? QStringLiteral("<span>%1</span>").arg(version) : QString());
    }
}

void tst_SelectionTable::slantsWords_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<bool>("italic");
    QTest::newRow("no translation") << QString() << true;
    QTest::newRow("a Latin one") << QStringLiteral("Englisch") << true;
    QTest::newRow("a Chinese one") << QStringLiteral("英语 (中文)") << false;
}

void tst_SelectionTable::slantsWords()
{
    QFETCH(QString, english);
    Catalogue catalogue;
    catalogue.texts.insert(QStringLiteral("MainWindow/English"), english);
    const Installed installed(&catalogue);
    m_system->installed.insert(QStringLiteral("b"), QStringLiteral("1"));
    const QList<RVData> entries{
        m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1")),
        m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"))};
    const Table table(entries, Table::CheckBoxes, m_system.get());
    QTEST(table.item(0, Table::InstalledColumn)->font().italic(), "italic");
    QVERIFY(!table.item(1, Table::InstalledColumn)->font().italic());
    const Table unknown(entries, Table::CheckBoxes, nullptr);
    QTEST(unknown.item(0, Table::InstalledColumn)->font().italic(), "italic");
}

void tst_SelectionTable::followsTheLanguage()
{
    m_system->installed.insert(QStringLiteral("b"), QStringLiteral("1"));
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("tool"), QStringLiteral("1"),
                                QStringLiteral("Title"),
                                QStringLiteral("<title xml:lang=\"de\">Titel</title>")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    QCOMPARE(text(table, 0, Table::UpdateColumn), QStringLiteral("<b>tool</b><br />Title"));
    Catalogue catalogue;
    catalogue.texts = {
        {QStringLiteral("SelectionTable/Update"), QStringLiteral("Aktualisierung")},
        {QStringLiteral("SelectionTable/Installed\nVersion"), QStringLiteral("Ist")},
        {QStringLiteral("SelectionTable/Update\nVersion"), QStringLiteral("Soll")},
        {QStringLiteral("SelectionTable/none"), QStringLiteral("keine")},
        {QStringLiteral("SelectionTable/unknown"), QStringLiteral("unbekannt")},
        {QStringLiteral("MainWindow/English"), QStringLiteral("中文")},
    };
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    {
        const Installed installed(&catalogue);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&table, &event);
        QCOMPARE(text(table, 0, Table::UpdateColumn), QStringLiteral("<b>tool</b><br />Titel"));
        QCOMPARE(text(table, 0, Table::InstalledColumn), QStringLiteral("keine"));
        QVERIFY(!table.item(0, Table::InstalledColumn)->font().italic());
        QCOMPARE(text(table, 1, Table::InstalledColumn), QStringLiteral("1"));
        QCOMPARE(table.horizontalHeaderItem(1)->text(), QStringLiteral("Aktualisierung"));
        QCOMPARE(table.horizontalHeaderItem(2)->text(), QStringLiteral("Ist"));
        QCOMPARE(table.horizontalHeaderItem(3)->text(), QStringLiteral("Soll"));
    }
    QLocale::setDefault(before);
    const auto comment = [&catalogue](const char *source) {
        return catalogue.comments.value(QStringLiteral("SelectionTable/") + QLatin1String(source));
    };
    QCOMPARE(comment("Update"),
             QStringLiteral("Short column header -- the noun, not the verb, e.g. 'Title'"));
    QCOMPARE(comment("Installed\nVersion"),
             QStringLiteral("Short column header --Version currently installed on the system"));
    QCOMPARE(comment("Update\nVersion"),
             QStringLiteral("Short column header -- the version available from the repository"));
    QCOMPARE(comment("unknown"),
             QStringLiteral("small word for 'cannot determine version installed'"));
    QCOMPARE(comment("none"), QStringLiteral("small word for 'not currently installed'"));
}

void tst_SelectionTable::showsForeignTextAsText()
{
    const Table table(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("<img src='/dev/zero'>"),
                        QStringLiteral("<u>1.2.3</u>"), QStringLiteral("</b><script>&amp;"))},
        Table::CheckBoxes, m_system.get());
    const QString shown = text(table, 0, Table::UpdateColumn);
    QVERIFY(!shown.contains(QLatin1String("<img")));
    QVERIFY(!shown.contains(QLatin1String("<script")));
    QCOMPARE(shown.count(QLatin1Char('<')), 3);
    QVERIFY(!table.item(0, Table::OfferedColumn)->toolTip().contains(QLatin1String("<u>")));
}

void tst_SelectionTable::boundsWhatItShows()
{
    const QString much(1000 * 1000, QLatin1Char('x'));
    std::unique_ptr<Table> shown;
    const double cost = CpuCost::of([&] {
        shown = std::make_unique<Table>(
            QList<RVData>{m_world->entry(QStringLiteral("a"), much, much, much)}, Table::CheckBoxes,
            m_system.get());
        shown->resize(500, 300);
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
        shown->grab();
    });
    QVERIFY2(cost < 1500, qPrintable(QString::number(cost)));
    const Table &table = *shown;
    QVERIFY(text(table, 0, Table::UpdateColumn).size() < 1100);
    QCOMPARE(text(table, 0, Table::OfferedColumn).size(), 500);
}

void tst_SelectionTable::speaksWithoutMarkup()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("tool & co"),
                                QStringLiteral("2.0"), QStringLiteral("A title")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("other"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    QVERIFY(!table.accessibleName().isEmpty());
    QCOMPARE(spoken(table, 0, Table::ChoiceColumn), QStringLiteral("tool & co, selected"));
    QCOMPARE(spoken(table, 0, Table::UpdateColumn), QStringLiteral("tool & co"));
    QCOMPARE(text(table, 0, Table::UpdateColumn),
             QStringLiteral("<b>tool &amp; co</b><br />A title"));
    QCOMPARE(table.item(0, Table::UpdateColumn)->data(Qt::AccessibleDescriptionRole).toString(),
             QStringLiteral("A title"));
    QCOMPARE(spoken(table, 0, Table::InstalledColumn), QStringLiteral("none"));
    QCOMPARE(spoken(table, 0, Table::OfferedColumn), QStringLiteral("2.0"));
    table.selectNone();
    QCOMPARE(spoken(table, 1, Table::ChoiceColumn), QStringLiteral("other, not selected"));
}

void tst_SelectionTable::hidesRowsWithoutDescriptor()
{
    RVData bare = m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"));
    bare.clearDescriptor();
    Table table(
        {bare, m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"))},
        Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    QVERIFY(table.isRowHidden(0));
    QVERIFY(!table.isRowHidden(1));
    QCOMPARE(state(table, 0), Qt::Unchecked);
    table.retranslateUi();
    table.selectAll();
    table.showDetails();
    table.install();
    auto *procedure = table.findChild<RVInstallProc *>();
    QVERIFY(procedure);
    QSignalSpy finished(&table, &Table::installFinished);
    QTRY_COMPARE(finished.size(), 1);
    Table onlyBare({bare}, Table::CheckBoxes, m_system.get());
    onlyBare.selectAll();
    onlyBare.showDetails();
    onlyBare.install();
    QVERIFY(!onlyBare.isInstalling());
}

void tst_SelectionTable::hintsItsHeight_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("height");
    QTest::newRow("no rows") << 0 << 126;
    QTest::newRow("one row") << 1 << 126;
    QTest::newRow("some rows") << 5 << -1;
    QTest::newRow("many rows") << 40 << 300;
}

void tst_SelectionTable::hintsItsHeight()
{
    QFETCH(int, rows);
    QFETCH(int, height);
    QList<RVData> entries;
    for (int i = 0; i < rows; ++i) {
        entries.append(m_world->entry(QString::number(i), QString::number(i), QStringLiteral("1"),
                                      QStringLiteral("Title")));
    }
    const Table table(entries, Table::CheckBoxes, m_system.get());
    int sum = 4;
    for (int i = 0; i < rows; ++i) {
        sum += table.rowHeight(i);
    }
    if (height < 0) {
        QVERIFY2(sum > 126 && sum < 300, qPrintable(QString::number(sum)));
    }
    QCOMPARE(table.sizeHint().height(), height < 0 ? sum : height);
    const QTableWidget plain(rows, 4);
    QCOMPARE(table.sizeHint().width(), plain.sizeHint().width());
}

void tst_SelectionTable::growsWithTheFont()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"),
                                QStringLiteral("1234.678901234"), QStringLiteral("Title"))},
                Table::RadioButtons, m_system.get());
    const int height = table.rowHeight(0);
    const int width = table.columnWidth(Table::ChoiceColumn);
    QFont large = table.font();
    large.setPointSizeF(large.pointSizeF() * 3);
    table.setFont(large);
    QVERIFY(table.rowHeight(0) > 2 * height);
    QVERIFY(table.columnWidth(Table::ChoiceColumn) >= width);
    QVERIFY(table.sizeHint().height() > 126);
    QVERIFY(qAbs(table.item(0, Table::OfferedColumn)->font().pointSizeF() - large.pointSizeF() / 2)
            < 0.1);
}

void tst_SelectionTable::givesTheLabelTheRestOfTheWidth()
{
    for (const auto type : {Table::CheckBoxes, Table::RadioButtons}) {
        Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                    type, m_system.get());
        for (const int width : {700, 400, 900}) {
            table.resize(width, 200);
            table.show();
            QVERIFY(QTest::qWaitForWindowExposed(&table));
            int sum = 0;
            for (int column = 0; column < 4; ++column) {
                sum += table.columnWidth(column);
            }
            QCOMPARE(sum, table.viewport()->width());
        }
    }
}

void tst_SelectionTable::keepsTheLabelWideEnough()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    table.resize(100, 200);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QCOMPARE(table.columnWidth(Table::UpdateColumn), 50);
}

void tst_SelectionTable::wrapsLongTitles()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"),
                                QStringLiteral("A title of many words. ").repeated(5)),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"),
                                QStringLiteral("Short"))},
                Table::CheckBoxes, m_system.get());
    table.resize(1600, 300);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    const int unbroken = table.rowHeight(0);
    QCOMPARE(unbroken, table.rowHeight(1));
    table.resize(400, 300);
    QTRY_VERIFY(table.rowHeight(0) > unbroken);
    QCOMPARE(table.rowHeight(1), unbroken);
    table.resize(1600, 300);
    QTRY_COMPARE(table.rowHeight(0), unbroken);
}

void tst_SelectionTable::turnsRadioOnByMouse()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("3")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("2")),
                 m_world->entry(QStringLiteral("c"), QStringLiteral("c"), QStringLiteral("1"))},
                Table::RadioButtons, m_system.get());
    table.resize(500, 300);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    const auto click = [&table](int row, int column) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualItemRect(table.item(row, column)).center());
    };
    const QList<Qt::CheckState> second{Qt::Unchecked, Qt::Checked, Qt::Unchecked};
    click(1, Table::ChoiceColumn);
    QCOMPARE(states(table), second);
    click(1, Table::ChoiceColumn);
    QCOMPARE(states(table), second);
    click(2, Table::UpdateColumn);
    QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Unchecked, Qt::Checked}));
    click(0, Table::OfferedColumn);
    QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Checked, Qt::Unchecked, Qt::Unchecked}));
}

void tst_SelectionTable::turnsRadioOnByKeyboard()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("3")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("2"))},
                Table::RadioButtons, m_system.get());
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    table.setCurrentCell(0, Table::UpdateColumn);
    QTest::keyClick(&table, Qt::Key_Down);
    QCOMPARE(state(table, 0), Qt::Checked);
    QTest::keyClick(&table, Qt::Key_Space);
    QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
    QTest::keyClick(&table, Qt::Key_Space);
    QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
}

void tst_SelectionTable::togglesChecksByKeyboard()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    for (const int column : {Table::ChoiceColumn, Table::UpdateColumn}) {
        table.setCurrentCell(0, column);
        QTest::keyClick(&table, Qt::Key_Space);
        QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
        QTest::keyClick(&table, Qt::Key_Space);
        QCOMPARE(states(table), (QList<Qt::CheckState>{Qt::Checked, Qt::Checked}));
    }
}

void tst_SelectionTable::togglesChecksByMouse()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    table.resize(500, 300);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    const QRect cell = table.visualItemRect(table.item(0, Table::ChoiceColumn));
    const QPoint box = cell.topLeft() + QPoint(2, 2);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, box);
    QCOMPARE(state(table, 0), Qt::Unchecked);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, box);
    QCOMPARE(state(table, 0), Qt::Checked);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(table.item(0, Table::UpdateColumn)).center());
    QCOMPARE(state(table, 0), Qt::Checked);
}

void tst_SelectionTable::choosesAllAndNone_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("check boxes") << static_cast<int>(Table::CheckBoxes);
    QTest::newRow("radio buttons") << static_cast<int>(Table::RadioButtons);
}

void tst_SelectionTable::choosesAllAndNone()
{
    QFETCH(int, type);
    m_system->installed.insert(QStringLiteral("b"), QStringLiteral("1"));
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"))},
                static_cast<Table::SelectionTableType>(type), m_system.get());
    const QList<Qt::CheckState> before{Qt::Checked, Qt::Unchecked};
    const bool checks = type == Table::CheckBoxes;
    QCOMPARE(states(table), before);
    table.selectAll();
    QCOMPARE(states(table), checks ? (QList<Qt::CheckState>{Qt::Checked, Qt::Checked}) : before);
    table.selectNone();
    QCOMPARE(states(table),
             checks ? (QList<Qt::CheckState>{Qt::Unchecked, Qt::Unchecked}) : before);
}

void tst_SelectionTable::carriesChoicesOver()
{
    m_system->installed.insert(QStringLiteral("c"), QStringLiteral("1"));
    const QList<RVData> entries{
        m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1")),
        m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1")),
        m_world->entry(QStringLiteral("c"), QStringLiteral("c"), QStringLiteral("1"))};
    Table before(entries, Table::CheckBoxes, m_system.get());
    QVERIFY(before.userChoices().isEmpty());
    before.item(0, Table::ChoiceColumn)->setCheckState(Qt::Unchecked);
    before.item(2, Table::ChoiceColumn)->setCheckState(Qt::Checked);
    QCOMPARE(before.userChoices().size(), 2);
    Table after(entries.mid(0, 2), Table::CheckBoxes, m_system.get());
    after.restoreUserChoices(before.userChoices());
    QCOMPARE(states(after), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
}

void tst_SelectionTable::carriesARadioChoiceOver()
{
    const QList<RVData> entries{
        m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("2")),
        m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1"))};
    Table before(entries, Table::RadioButtons, m_system.get());
    before.radioClicked(1, 0);
    Table after(entries, Table::RadioButtons, m_system.get());
    after.restoreUserChoices(before.userChoices());
    QCOMPARE(states(after), (QList<Qt::CheckState>{Qt::Unchecked, Qt::Checked}));
    // The chosen one is not offered any more: the proposal stands.
    Table shorter(entries.mid(0, 1), Table::RadioButtons, m_system.get());
    shorter.restoreUserChoices(before.userChoices());
    QCOMPARE(states(shorter), (QList<Qt::CheckState>{Qt::Checked}));
}

void tst_SelectionTable::showsDetails_data()
{
    QTest::addColumn<int>("selected");
    QTest::addColumn<QString>("title");
    QTest::newRow("no row selected: the first chosen one") << -1 << QStringLiteral("b");
    QTest::newRow("the first row selected") << 0 << QStringLiteral("a");
    QTest::newRow("the last row selected") << 2 << QStringLiteral("c");
}

void tst_SelectionTable::showsDetails()
{
    QFETCH(int, selected);
    m_system->installed.insert(QStringLiteral("a"), QStringLiteral("1"));
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1")),
                 m_world->entry(QStringLiteral("c"), QStringLiteral("c"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    if (selected >= 0) {
        table.selectRow(selected);
    }
    table.showDetails();
    const auto *dialog = onlyDialog<ItemDetailsDialog>();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QVERIFY(!dialog->isModal());
    QTEST(dialog->windowTitle(), "title");
}

void tst_SelectionTable::showsNoDetailsWithoutRow()
{
    Table empty({}, Table::CheckBoxes, m_system.get());
    empty.showDetails();
    Table nothingChosen(
        {m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
        Table::CheckBoxes, m_system.get());
    nothingChosen.selectNone();
    nothingChosen.showDetails();
    QVERIFY(dialogs<ItemDetailsDialog>().isEmpty());
}

void tst_SelectionTable::keepsDetailsOpenWithoutTheTable()
{
    QWidget window;
    auto *table =
        new Table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                  Table::CheckBoxes, m_system.get(), &window);
    table->showDetails();
    delete table;
    auto *dialog = onlyDialog<ItemDetailsDialog>();
    QVERIFY(dialog);
    dialog->retranslateUi();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("a"));
}

void tst_SelectionTable::installsNothingWithoutChoice()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get());
    table.selectNone();
    table.install();
    QVERIFY(!table.isInstalling());
    QVERIFY(!table.findChild<RVInstallProc *>());
    QVERIFY(dialogs<BusyDialog>().isEmpty());
}

void tst_SelectionTable::installsTheChosenInRowOrder()
{
    m_world->setInstaller("ls *.deb >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    Table table({m_world->entry(QStringLiteral("c"), QStringLiteral("c"), QStringLiteral("1")),
                 m_world->entry(QStringLiteral("b"), QStringLiteral("b"), QStringLiteral("1")),
                 m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    table.item(1, Table::ChoiceColumn)->setCheckState(Qt::Unchecked);
    QSignalSpy finished(&table, &Table::installFinished);
    table.install();
    QTRY_COMPARE(finished.size(), 1);
    QFile seen(m_world->file(QStringLiteral("seen")));
    QVERIFY(seen.open(QIODevice::ReadOnly));
    QCOMPARE(seen.readAll(), QByteArray("a.deb\nc.deb\n"));
    // The row that was left out is the user's choice; what went to the installer is none any more.
    QCOMPARE(table.userChoices().size(), 1);
    QCOMPARE(table.userChoices().values(), QList<Qt::CheckState>{Qt::Unchecked});
}

void tst_SelectionTable::reportsTheEnd_data()
{
    QTest::addColumn<QByteArray>("installer");
    QTest::addColumn<int>("errors");
    QTest::addColumn<QStringList>("log");
    const QString finished = QStringLiteral("INSTALL FINISHED");
    QTest::newRow("success") << QByteArray("exit 0") << 0 << QStringList{finished};
    QTest::newRow("failure") << QByteArray("echo no space >&2; exit 3") << 1
                             << QStringList{QStringLiteral(
                                                "Install process returned non-zero status code 3"),
                                            QStringLiteral("Failed installation details:"),
                                            QStringLiteral("no space"), finished};
    QTest::newRow("crash") << QByteArray("kill -SEGV $$") << 1
                           << QStringList{QStringLiteral("The process crashed."),
                                          QStringLiteral("Failed installation details:"), finished};
    QTest::newRow("no installer") << QByteArray() << 1
                                  << QStringList{QStringLiteral("The process failed to start."),
                                                 QStringLiteral("Failed installation details:"),
                                                 finished};
}

void tst_SelectionTable::reportsTheEnd()
{
    QFETCH(QByteArray, installer);
    QFETCH(QStringList, log);
    m_world->setInstaller(installer);
    QWidget window;
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get(), &window, m_world->paths());
    window.show();
    QStringList order;
    connect(&table, &Table::installError, this, [&order] {
        order.append(QStringLiteral("error"));
    });
    connect(&table, &Table::installFinished, this, [&order, &table] {
        order.append(table.isInstalling() ? QStringLiteral("busy") : QStringLiteral("finished"));
    });
    table.install();
    if (installer.isEmpty()) {
        // It was there when it was looked for.
        m_world->removeInstaller();
    }
    QVERIFY(table.isInstalling());
    const QPointer<RVInstallProc> procedure = table.findChild<RVInstallProc *>();
    QVERIFY(procedure);
    QTRY_VERIFY(!table.isInstalling());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(!procedure);
    QTEST(static_cast<int>(order.count(QStringLiteral("error"))), "errors");
    QCOMPARE(order.last(), QStringLiteral("finished"));
    QCOMPARE(order.count(QStringLiteral("finished")), 1);
    int last = -1;
    for (const QString &line : qAsConst(log)) {
        const int at = m_log->lines().indexOf(line, last + 1);
        QVERIFY2(at > last,
                 qPrintable(line + QLatin1Char('\n') + m_log->lines().join(QLatin1Char('\n'))));
        last = at;
    }
    QCOMPARE(m_log->count(QStringLiteral("INSTALL FINISHED")), 1);

    // The dialog stays until it is closed.
    auto *dialog = onlyDialog<BusyDialog>();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QPushButton *close = button(dialog, QStringLiteral("Close"));
    if (!close) {
        close = button(dialog, QStringLiteral("&Close"));
    }
    QVERIFY(close);
    close->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialogs<BusyDialog>().isEmpty());
}

void tst_SelectionTable::followsTheInstallation()
{
    QWidget window;
    window.show();
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get(), &window, m_world->paths());
    m_world->setInstaller(m_world->untilGo() + "echo out");
    table.install();
    auto *dialog = onlyDialog<BusyDialog>();
    QVERIFY(dialog);
    QCOMPARE(dialog->parentWidget(), &window);
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QVERIFY(button(dialog, QStringLiteral("Cancel")));
    auto *bar = dialog->findChild<QProgressBar *>();
    QCOMPARE(bar->maximum(), 100);
    const auto labels = [dialog] {
        QStringList texts;
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            texts.append(label->text());
        }
        return texts;
    };
    QVERIFY(labels().contains(QStringLiteral("Retrieving updates...")));
    QTRY_VERIFY(labels().contains(QStringLiteral("Installing updates...")));
    QVERIFY(!button(dialog, QStringLiteral("Cancel")));
    QCOMPARE(bar->maximum(), 0);
    m_world->go();
    QTRY_VERIFY(!table.isInstalling());
    QCOMPARE(bar->value(), 100);
    QVERIFY(dialog->isVisible());
}

void tst_SelectionTable::installsOnceAtATime()
{
    HttpServer server;
    server.hold();
    const RVData entry = m_world->remoteEntry(server.url(QStringLiteral("/a.deb")));
    Table table({entry}, Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    table.install();
    table.install();
    QCOMPARE(table.findChildren<RVInstallProc *>().size(), 1);
    QCOMPARE(dialogs<BusyDialog>().size(), 1);
    onlyDialog<BusyDialog>()->cancel();
    QVERIFY(!table.isInstalling());
    table.install();
    QVERIFY(table.isInstalling());
}

void tst_SelectionTable::cancelsDownloads()
{
    HttpServer server;
    server.hold();
    const RVData entry = m_world->remoteEntry(server.url(QStringLiteral("/a.deb")));
    Table table({entry}, Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    QSignalSpy finished(&table, &Table::installFinished);
    QSignalSpy error(&table, &Table::installError);
    table.install();
    QTRY_COMPARE(server.requests().size(), 1);
    const QPointer<BusyDialog> dialog = onlyDialog<BusyDialog>();
    button(dialog, QStringLiteral("Cancel"))->click();
    QCOMPARE(finished.size(), 1);
    QCOMPARE(error.size(), 1);
    QVERIFY(!table.isInstalling());
    QVERIFY(!dialog || !dialog->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!dialog);
    const QStringList log = m_log->lines();
    QVERIFY(log.contains(QStringLiteral("INSTALL FETCH CANCEL, KILLING 1 FETCHES")));
    QVERIFY(log.contains(QStringLiteral("Install process returned non-zero status code 1")));
    QCOMPARE(log.count(QStringLiteral("INSTALL FINISHED")), 1);
    QCOMPARE(finished.size(), 1);
}

void tst_SelectionTable::cannotBeCancelledLater()
{
    m_world->setInstaller("touch " + QFile::encodeName(m_world->file(QStringLiteral("started")))
                          + '\n' + m_world->untilGo());
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    QSignalSpy finished(&table, &Table::installFinished);
    table.install();
    QTRY_VERIFY(QFile::exists(m_world->file(QStringLiteral("started"))));
    // As a cancel that crosses with the start of the installer would.
    table.incInstallFinished(1, QProcess::CrashExit);
    QVERIFY(table.isInstalling());
    QCOMPARE(finished.size(), 0);
    QTest::keyClick(onlyDialog<BusyDialog>(), Qt::Key_Escape);
    QVERIFY(table.isInstalling());
    QVERIFY(onlyDialog<BusyDialog>()->isVisible());
    m_world->go();
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(m_log->count(QStringLiteral("Install process returned non-zero status code 1")), 0);
}

void tst_SelectionTable::handsProxyAndCredentialsOn()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    QSignalSpy finished(&table, &Table::installFinished);
    table.install();
    QCOMPARE(table.findChild<RVInstallProc *>()->proxyHost, QString());
    QCOMPARE(table.findChild<RVInstallProc *>()->proxyPort, -2);
    QTRY_COMPARE(finished.size(), 1);
    qDeleteAll(dialogs<BusyDialog>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    table.setProxy(QStringLiteral("proxy.example"), 3128);
    table.install();
    QCOMPARE(table.findChild<RVInstallProc *>()->proxyHost, QStringLiteral("proxy.example"));
    QCOMPARE(table.findChild<RVInstallProc *>()->proxyPort, 3128);
    QTRY_COMPARE(finished.size(), 2);
}

void tst_SelectionTable::answersWithItsCredentials()
{
    HttpServer server;
    server.serve(QStringLiteral("/a.deb"), packageOutline("archive"));
    server.protect(QStringLiteral("user"), QStringLiteral("secret"));
    const RVData entry = m_world->remoteEntry(server.url(QStringLiteral("/a.deb")));
    m_world->setInstaller("cat a.deb >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    Table table({entry}, Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    RVAccess access;
    access.server = server.url(QStringLiteral("/dir/"));
    table.setAccess(access);
    table.setAuthenticationCredentials(QStringLiteral("user"), QStringLiteral("secret"));
    QSignalSpy asked(&table, &Table::authenticationRequired);
    QSignalSpy finished(&table, &Table::installFinished);
    table.install();
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(asked.size(), 0);
    QFile seen(m_world->file(QStringLiteral("seen")));
    QVERIFY(seen.open(QIODevice::ReadOnly));
    QCOMPARE(seen.readAll(), packageOutline("archive"));
}

// The archive lies on another server than the repository.
void tst_SelectionTable::offersItsCredentialsToNobodyElse()
{
    HttpServer server;
    server.serve(QStringLiteral("/a.deb"), packageOutline("archive"));
    server.protect(QStringLiteral("user"), QStringLiteral("secret"));
    const QUrl archive = server.url(QStringLiteral("/a.deb"));
    QUrl repository = archive;
    repository.setPort(archive.port() - 1);
    const auto keyring = QSharedPointer<RVKeyring>::create();
    m_world->setInstaller("cat a.deb >" + QFile::encodeName(m_world->file(QStringLiteral("seen"))));
    Table table({m_world->remoteEntry(archive)}, Table::CheckBoxes, m_system.get(), nullptr,
                m_world->paths());
    RVAccess access;
    access.server = repository;
    access.keyring = keyring;
    table.setAccess(access);
    table.setAuthenticationCredentials(QStringLiteral("user"), QStringLiteral("secret"));
    QSignalSpy asked(&table, &Table::authenticationRequired);
    QSignalSpy failed(&table, &Table::installError);
    QSignalSpy finished(&table, &Table::installFinished);
    table.install();
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(asked.size(), 1);
    QVERIFY(!server.requests().isEmpty());
    for (const QByteArray &request : server.requests()) {
        QVERIFY2(!request.contains("Authorization"), request.constData());
    }
    const QFileInfo seen(m_world->file(QStringLiteral("seen")));
    QCOMPARE(seen.size(), 0);

    // What the user typed for that server goes there.
    keyring->keep(originOf(archive), {QStringLiteral("user"), QStringLiteral("secret")});
    table.setAuthenticationCredentials(QStringLiteral("other"), QStringLiteral("word"));
    table.install();
    QTRY_COMPARE(finished.size(), 2);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(QFileInfo(seen.filePath()).size(), packageOutline("archive").size());
}

void tst_SelectionTable::asksWhenItsCredentialsFail()
{
    Table table({}, Table::CheckBoxes, m_system.get());
    QSignalSpy asked(&table, &Table::authenticationRequired);
    QAuthenticator auth;
    table.relayAuthenticationRequired(nullptr, &auth);
    QCOMPARE(asked.size(), 1);
    table.setAuthenticationCredentials(QStringLiteral("user"), QStringLiteral("secret"));
    table.relayAuthenticationRequired(nullptr, &auth);
    QCOMPARE(asked.size(), 1);
    QCOMPARE(auth.user(), QStringLiteral("user"));
    QCOMPARE(auth.password(), QStringLiteral("secret"));
    table.relayAuthenticationRequired(nullptr, &auth);
    QCOMPARE(asked.size(), 2);
}

void tst_SelectionTable::relaysSignals()
{
    Table table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                Table::CheckBoxes, m_system.get(), nullptr, m_world->paths());
    QSignalSpy network(&table, &Table::networkError);
    QSignalSpy authentication(&table, &Table::authenticationRequired);
    QSignalSpy proxy(&table, &Table::proxyAuthenticationRequired);
    QSignalSpy ssl(&table, &Table::sslErrors);
    QSignalSpy finished(&table, &Table::installFinished);
    table.install();
    auto *procedure = table.findChild<RVInstallProc *>();
    QAuthenticator auth;
    Q_EMIT procedure->networkError(nullptr);
    Q_EMIT procedure->authenticationRequired(nullptr, &auth);
    Q_EMIT procedure->proxyAuthenticationRequired({}, &auth);
    Q_EMIT procedure->sslErrors(nullptr, {});
    QCOMPARE(network.size(), 1);
    QCOMPARE(authentication.size(), 1);
    QCOMPARE(proxy.size(), 1);
    QCOMPARE(ssl.size(), 1);
    QTRY_COMPARE(finished.size(), 1);
}

void tst_SelectionTable::waitsForTheInstallerWhenDestroyed()
{
    const QString started = m_world->file(QStringLiteral("started"));
    const QString done = m_world->file(QStringLiteral("done"));
    m_world->setInstaller("touch " + QFile::encodeName(started) + "; sleep 0.3; touch "
                          + QFile::encodeName(done));
    QWidget window;
    auto *table =
        new Table({m_world->entry(QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("1"))},
                  Table::CheckBoxes, m_system.get(), &window, m_world->paths());
    table->install();
    QTRY_VERIFY(QFile::exists(started));
    delete table;
    QVERIFY(QFile::exists(done));
    QVERIFY(dialogs<BusyDialog>().isEmpty());
}

void tst_SelectionTable::takesItsDialogAlong()
{
    HttpServer server;
    server.hold();
    const RVData entry = m_world->remoteEntry(server.url(QStringLiteral("/a.deb")));
    auto window = std::make_unique<QWidget>();
    auto *table =
        new Table({entry}, Table::RadioButtons, m_system.get(), window.get(), m_world->paths());
    table->radioClicked(0, 0);
    table->install();
    QTRY_COMPARE(server.requests().size(), 1);
    window.reset();
    QVERIFY(dialogs<BusyDialog>().isEmpty());
}

void tst_SelectionTable::paintsSelectedTextReadably_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("light") << false << false;
    QTest::newRow("dark") << true << false;
    QTest::newRow("light, right to left") << false << true;
}

void tst_SelectionTable::paintsSelectedTextReadably()
{
    QFETCH(bool, dark);
    QFETCH(bool, rightToLeft);
    m_system->installed = {{QStringLiteral("print-service"), QStringLiteral("2.1-3")},
                           {QStringLiteral("base-files"), QStringLiteral("12.4+deb12u5")}};
    const QList<RVData> entries{
        m_world->entry(QStringLiteral("a"), QStringLiteral("print-service"),
                       QStringLiteral("2.2-1"), QStringLiteral("Printing for thin clients")),
        m_world->entry(QStringLiteral("b"), QStringLiteral("base-files"),
                       QStringLiteral("12.4+deb12u5"),
                       QStringLiteral("The files of the base system, with a title that is long "
                                      "enough to need a second and perhaps a third line")),
        m_world->entry(QStringLiteral("c"), QStringLiteral("audio-bridge"), QStringLiteral("0.9"),
                       QStringLiteral("Sound over the network"))};
    QPalette palette = QApplication::palette();
    if (dark) {
        palette = QPalette(QColor(0x31, 0x36, 0x3b));
        palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
        palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2e, 0x32));
    }
    const QColor ink(0xff, 0xfe, 0x01);
    palette.setColor(QPalette::HighlightedText, ink);
    for (const auto type : {Table::CheckBoxes, Table::RadioButtons}) {
        Table table(entries, type, m_system.get());
        table.setPalette(palette);
        table.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        table.resize(560, 240);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        table.setCurrentCell(0, Table::UpdateColumn);
        const QImage image = table.grab().toImage();
        const QDir shots(QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots"));
        shots.mkpath(QStringLiteral("."));
        image.save(shots.filePath(QStringLiteral("table-%1-%2.png")
                                      .arg(QString::fromLatin1(QTest::currentDataTag())
                                               .replace(QLatin1String(", "), QLatin1String("-"))
                                               .replace(QLatin1Char(' '), QLatin1Char('-')))
                                      .arg(static_cast<int>(type))));
        const auto hasInk = [&](int row, const QColor &color) {
            const QRect rect = table.visualItemRect(table.item(row, Table::UpdateColumn))
                                   .translated(table.viewport()->pos());
            for (int y = rect.top(); y <= rect.bottom(); ++y) {
                for (int x = rect.left(); x <= rect.right(); ++x) {
                    if (image.pixelColor(x, y) == color) {
                        return true;
                    }
                }
            }
            return false;
        };
        QVERIFY(hasInk(0, ink));
        QVERIFY(!hasInk(1, ink));
        QVERIFY(hasInk(1, palette.color(QPalette::Text)));
    }
}

void tst_SelectionTable::takesTimeInProportionToItsRows()
{
    const auto show = [this](int rows) {
        QList<RVData> entries;
        for (int i = 0; i < rows; ++i) {
            const RVData entry(QUrl(QStringLiteral("file:///%1.deb").arg(i)),
                               QUrl(QStringLiteral("file:///%1.xml").arg(i)));
            QBuffer descriptor;
            descriptor.setData(
                QStringLiteral("<update_data><name>package-%1</name><title>A title that is "
                               "long enough to be broken, number %1</title>"
                               "<version>1.%1</version></update_data>")
                    .arg(i)
                    .toUtf8());
            entry.descriptor()->read(&descriptor);
            entries.append(entry);
        }
        Table table(entries, Table::CheckBoxes, m_system.get());
        table.resize(400, 300);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        table.resize(390, 300);
        QCoreApplication::processEvents();
        table.resize(390, 250);
        QCoreApplication::processEvents();
    };
    QVERIFY(CpuCost::isLinear(show, 100));
}

QTEST_MAIN(tst_SelectionTable)
#include "tst_SelectionTable.moc"
