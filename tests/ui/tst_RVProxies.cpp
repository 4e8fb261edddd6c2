// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/Spoken.h"
#include "ui/RVProxies.h"
#include "ui/RVProxyTable.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace
{

const int server = RVProxyTable::ServerColumn;
const int port = RVProxyTable::PortColumn;

QSettings settings()
{
    return QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel"));
}

// Says "<source>" in another language, with the translator's note.
class Catalogue : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *comment,
                      int) const override
    {
        if (QLatin1String(context) != QLatin1String("RVProxies")) {
            return {};
        }
        const QString note = QString::fromUtf8(comment);
        return QStringLiteral("%1|%2").arg(QString::fromUtf8(source), note);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_RVProxies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithoutProxies();
    void readsEveryKey();
    void writesEveryKey();
    void comesBackAsItWasStored();
    void reservedStyles_data();
    void reservedStyles();
    void keepsTheSettingsPrivate();
    void reports_data();
    void reports();
    void storesBeforeItReports();
    void shortWordForAll();
    void enablesWhatIsUsed();
    void disablesTheOtherRowsWhileOneProxyServesAll();
    void refusesPorts_data();
    void refusesPorts();
    void takesPorts_data();
    void takesPorts();
    void unusedPortsBlockNothing_data();
    void unusedPortsBlockNothing();
    void readsStoredNonsense_data();
    void readsStoredNonsense();
    void logsSettingsThatCannotBeWritten();
    void takesWhatAnOpenEditorHolds();
    void worksByKeyboard();
    void returnIsOk();
    void isSpoken();
    void changesLanguage();
    void readsFromLeftToRight();
    void showsAllItsRows_data();
    void showsAllItsRows();
    void holdsHostileTexts();

private:
    void make()
    {
        m_frame = std::make_unique<RVProxies>(QStringLiteral("Corvane"), QStringLiteral("Ravel"),
                                              QStringLiteral("Title"),
                                              QStringLiteral("Description"), QIcon());
        m_events.clear();
        connect(m_frame.get(), &RVProxies::proxyChanged, this,
                [this](const QString &scheme, const QString &host, int number) {
                    m_events.append(QStringLiteral("%1 %2:%3").arg(scheme, host).arg(number));
                });
        connect(m_frame.get(), &RVProxies::modified, this, [this] {
            m_events.append(QStringLiteral("modified"));
        });
    }
    template<class Widget>
    Widget *child(const char *name = "") const
    {
        return m_frame->findChild<Widget *>(QLatin1String(name));
    }
    RVProxyTable *table() const { return m_frame->findChild<RVProxyTable *>(); }
    QRadioButton *none() const { return child<QRadioButton>("noProxies"); }
    QRadioButton *manual() const { return child<QRadioButton>("manualProxies"); }
    QCheckBox *useSame() const { return child<QCheckBox>("useSameForAll"); }
    QLabel *warning() const { return child<QLabel>("portWarning"); }
    QPushButton *ok() const
    {
        return m_frame->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    }
    void setRow(int row, const QString &host, const QString &number) const
    {
        table()->item(row, server)->setText(host);
        table()->item(row, port)->setText(number);
    }
    QString cell(int row, int column) const { return table()->item(row, column)->text(); }
    // Each key to what has the focus by then.
    static void type(const char *text)
    {
        for (; *text; ++text) {
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }
    void show() const
    {
        m_frame->resize(600, 400);
        m_frame->show();
        QVERIFY(QTest::qWaitForWindowActive(m_frame.get()));
    }

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<LogFile> m_log;
    std::unique_ptr<RVProxies> m_frame;
    QStringList m_events;
};

void tst_RVProxies::init()
{
    m_guard = std::make_unique<WarningGuard>();
    m_log = std::make_unique<LogFile>();
    settings().clear();
}

void tst_RVProxies::cleanup()
{
    m_frame.reset();
    m_log.reset();
    m_guard.reset();
}

void tst_RVProxies::startsWithoutProxies()
{
    make();
    QCOMPARE(m_frame->title(), QStringLiteral("Title"));
    QCOMPARE(m_frame->helpText(), QStringLiteral("Description"));
    QCOMPARE(m_frame->currentStyle(), 0);
    QVERIFY(none()->isChecked());
    QVERIFY(!useSame()->isChecked());
    QCOMPARE(table()->rowCount(), 3);
    const QStringList types{QStringLiteral("HTTP"), QStringLiteral("HTTPS"), QStringLiteral("FTP")};
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(cell(row, 0), types.at(row));
        QVERIFY(!table()->item(row, 0)->flags().testFlag(Qt::ItemIsEditable));
        QCOMPARE(cell(row, server), QString());
        QCOMPARE(cell(row, port), QString());
    }
    QVERIFY(m_events.isEmpty());
    QVERIFY(!ok()->icon().pixmap(16).isNull());
    QCOMPARE(settings().allKeys(), QStringList());
}

void tst_RVProxies::readsEveryKey()
{
    QSettings stored = settings();
    stored.beginGroup(QStringLiteral("ProxySettings"));
    stored.setValue(QStringLiteral("style"), 2);
    stored.setValue(QStringLiteral("useForAll"), true);
    int number = 1;
    for (const char *type : {"HTTP", "HTTPS", "FTP"}) {
        stored.setValue(QStringLiteral("server_") + QLatin1String(type),
                        QLatin1String(type) + QStringLiteral(".example"));
        stored.setValue(QStringLiteral("port_") + QLatin1String(type), number++);
    }
    make();
    QCOMPARE(m_frame->currentStyle(), 2);
    QVERIFY(manual()->isChecked());
    QVERIFY(useSame()->isChecked());
    QCOMPARE(cell(0, server), QStringLiteral("HTTP.example"));
    QCOMPARE(cell(1, server), QStringLiteral("HTTPS.example"));
    QCOMPARE(cell(2, server), QStringLiteral("FTP.example"));
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(cell(row, port), QString::number(row + 1));
    }
}

void tst_RVProxies::writesEveryKey()
{
    make();
    manual()->setChecked(true);
    setRow(0, QStringLiteral("web.example"), QStringLiteral("3128"));
    setRow(1, QStringLiteral(" secure.example "), QStringLiteral(" 8080 "));
    useSame()->setChecked(true);
    useSame()->setChecked(false);
    ok()->click();
    const QSettings stored = settings();
    const auto value = [&stored](const char *key) {
        return stored.value(QLatin1String("ProxySettings/") + QLatin1String(key));
    };
    QCOMPARE(value("style").toString(), QStringLiteral("2"));
    QCOMPARE(value("useForAll").toString(), QStringLiteral("false"));
    QCOMPARE(value("server_HTTP").toString(), QStringLiteral("web.example"));
    QCOMPARE(value("port_HTTP").toString(), QStringLiteral("3128"));
    QCOMPARE(value("server_HTTPS").toString(), QStringLiteral("secure.example"));
    QCOMPARE(value("port_HTTPS").toString(), QStringLiteral("8080"));
    QCOMPARE(value("server_FTP").toString(), QString());
    QCOMPARE(value("port_FTP").toString(), QString());
    // Nothing else, under no other group.
    for (const QString &key : stored.allKeys()) {
        QVERIFY2(key.startsWith(QLatin1String("ProxySettings/")), qPrintable(key));
    }
}

void tst_RVProxies::comesBackAsItWasStored()
{
    make();
    manual()->setChecked(true);
    useSame()->setChecked(true);
    setRow(0, QString::fromUtf8("prüf.example, \"a\"=%1;"), QStringLiteral("65535"));
    setRow(2, QStringLiteral("ftp.example"), QStringLiteral("1"));
    ok()->click();
    make();
    QCOMPARE(m_frame->currentStyle(), 2);
    QVERIFY(useSame()->isChecked());
    QCOMPARE(cell(0, server), QString::fromUtf8("prüf.example, \"a\"=%1;"));
    QCOMPARE(cell(0, port), QStringLiteral("65535"));
    QCOMPARE(cell(1, server), QString());
    QCOMPARE(cell(1, port), QString());
    QCOMPARE(cell(2, server), QStringLiteral("ftp.example"));
    QCOMPARE(cell(2, port), QStringLiteral("1"));
    // What is emptied stays empty.
    setRow(2, QString(), QString());
    none()->setChecked(true);
    ok()->click();
    make();
    QVERIFY(none()->isChecked());
    QCOMPARE(cell(2, server), QString());
    QCOMPARE(cell(2, port), QString());
    QCOMPARE(cell(0, port), QStringLiteral("65535"));
}

void tst_RVProxies::reservedStyles_data()
{
    QTest::addColumn<QVariant>("style");
    for (const int style : {1, 3, 4, -1}) {
        QTest::addRow("%d", style) << QVariant(style);
    }
}

void tst_RVProxies::reservedStyles()
{
    QFETCH(QVariant, style);
    settings().setValue(QStringLiteral("ProxySettings/style"), style);
    make();
    QVERIFY(!none()->isChecked());
    QVERIFY(!manual()->isChecked());
    QVERIFY(!table()->isEnabled());
    QCOMPARE(m_frame->currentStyle(), 0);
    m_frame->emitProxySignals();
    QCOMPARE(m_events,
             (QStringList{QStringLiteral("HTTP :-1"), QStringLiteral("HTTPS :-1"),
                          QStringLiteral("FTP :-1")}));
    // Read again, it leaves the choice alone.
    manual()->setChecked(true);
    m_frame->initFromSettings();
    QVERIFY(manual()->isChecked());
    make();
    ok()->click();
    QCOMPARE(settings().value(QStringLiteral("ProxySettings/style")).toString(),
             QStringLiteral("0"));
}

void tst_RVProxies::keepsTheSettingsPrivate()
{
    const QString file = settings().fileName();
    make();
    // As a program without care would have left it.
    {
        QSettings stored = settings();
        stored.setValue(QStringLiteral("location"), QStringLiteral("http://u:secret@h/"));
    }
    QVERIFY(QFile::setPermissions(
        file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
    ok()->click();
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner;
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
        | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(QFile::permissions(file) & (owner | others), owner);
    QVERIFY(QFile::remove(file));
    ok()->click();
    QVERIFY(QFile::exists(file));
    QCOMPARE(QFile::permissions(file) & (owner | others), owner);
}

void tst_RVProxies::reports_data()
{
    QTest::addColumn<bool>("isManual");
    QTest::addColumn<bool>("same");
    QTest::addColumn<QStringList>("expected");
    const QStringList nothing{QStringLiteral("HTTP :-1"), QStringLiteral("HTTPS :-1"),
                              QStringLiteral("FTP :-1"), QStringLiteral("modified")};
    QTest::newRow("no proxies") << false << false << nothing;
    QTest::newRow("no proxies, one for all") << false << true << nothing;
    QTest::newRow("manual") << true << false
                            << QStringList{QStringLiteral("HTTP web.example:3128"),
                                           QStringLiteral("HTTPS :-1"),
                                           QStringLiteral("FTP files.example:2121"),
                                           QStringLiteral("modified")};
    QTest::newRow("manual, one for all")
        << true << true
        << QStringList{QStringLiteral("HTTP web.example:3128"),
                       QStringLiteral("HTTPS web.example:3128"),
                       QStringLiteral("FTP web.example:3128"), QStringLiteral("modified")};
}

void tst_RVProxies::reports()
{
    QFETCH(bool, isManual);
    QFETCH(bool, same);
    QFETCH(QStringList, expected);
    make();
    setRow(0, QStringLiteral("web.example"), QStringLiteral("3128"));
    setRow(2, QStringLiteral("files.example"), QStringLiteral("2121"));
    (isManual ? manual() : none())->setChecked(true);
    useSame()->setChecked(same);
    ok()->click();
    QCOMPARE(m_events, expected);
    // The same at the next start, which reports but changes nothing.
    make();
    m_frame->emitProxySignals();
    expected.removeLast();
    QCOMPARE(m_events, expected);
}

void tst_RVProxies::storesBeforeItReports()
{
    make();
    setRow(0, QStringLiteral("web.example"), QStringLiteral("3128"));
    manual()->setChecked(true);
    QString stored;
    connect(m_frame.get(), &RVProxies::proxyChanged, this, [&stored] {
        // As another program would read it.
        QFile file(settings().fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        stored = QString::fromUtf8(file.readAll());
    });
    ok()->click();
    QVERIFY2(stored.contains(QLatin1String("server_HTTP=web.example")), qPrintable(stored));
}

void tst_RVProxies::shortWordForAll()
{
    make();
    useSame()->setChecked(true);
    QCOMPARE(cell(0, 0), QStringLiteral("All"));
    useSame()->setChecked(false);
    QCOMPARE(cell(0, 0), QStringLiteral("HTTP"));
    m_frame->useSameToggled(true);
    QCOMPARE(cell(0, 0), QStringLiteral("All"));
    // The word is for the eye alone: signals and keys have the type.
    useSame()->setChecked(true);
    m_frame->emitProxySignals();
    QVERIFY(m_events.first().startsWith(QLatin1String("HTTP ")));
}

void tst_RVProxies::enablesWhatIsUsed()
{
    make();
    QVERIFY(!table()->isEnabled());
    QVERIFY(!useSame()->isEnabled());
    manual()->setChecked(true);
    QVERIFY(table()->isEnabled());
    QVERIFY(useSame()->isEnabled());
    none()->setChecked(true);
    QVERIFY(!table()->isEnabled());
    QVERIFY(!useSame()->isEnabled());
}

void tst_RVProxies::disablesTheOtherRowsWhileOneProxyServesAll()
{
    make();
    manual()->setChecked(true);
    setRow(1, QStringLiteral("secure.example"), QStringLiteral("2"));
    const auto enabled = [this](int row) {
        int count = 0;
        for (int column = 0; column < 3; ++column) {
            count += table()->item(row, column)->flags().testFlag(Qt::ItemIsEnabled);
        }
        return count;
    };
    useSame()->setChecked(true);
    QCOMPARE(enabled(0), 3);
    QCOMPARE(enabled(1), 0);
    QCOMPARE(enabled(2), 0);
    // What is in them is kept.
    QCOMPARE(cell(1, server), QStringLiteral("secure.example"));
    useSame()->setChecked(false);
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(enabled(row), 3);
    }
    // Also when it comes from the settings.
    settings().setValue(QStringLiteral("ProxySettings/useForAll"), true);
    make();
    QCOMPARE(enabled(1), 0);
}

void tst_RVProxies::refusesPorts_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"abc", "80a", "0", "-1", "65536", "99999999999", "8 0", "3.5", "+80",
                             "1,000", "0x50", "80:80", "<b>80</b>"}) {
        QTest::newRow(text) << QString::fromUtf8(text);
    }
    QTest::newRow("digits of another script") << QString::fromUtf8("٣١٢٨");
}

void tst_RVProxies::refusesPorts()
{
    QFETCH(QString, text);
    make();
    manual()->setChecked(true);
    setRow(1, QStringLiteral("old.example"), QStringLiteral("8080"));
    ok()->click();
    m_events.clear();
    show();
    setRow(1, QStringLiteral("new.example"), text);
    // Before it is saved: in words, by an icon, and for a screen reader.
    QVERIFY(warning()->isVisible());
    QCOMPARE(warning()->text(),
             QStringLiteral("The port for HTTPS must be a number from 1 to 65535."));
    QCOMPARE(warning()->textFormat(), Qt::PlainText);
    const QTableWidgetItem *bad = table()->item(1, port);
    QVERIFY(!bad->icon().isNull());
    QCOMPARE(bad->toolTip(), warning()->text());
    QCOMPARE(bad->data(Qt::AccessibleDescriptionRole).toString(), warning()->text());
    // It would be reported as none.
    m_frame->emitProxySignals();
    QCOMPARE(m_events.at(1), QStringLiteral("HTTPS new.example:-1"));
    m_events.clear();

    ok()->click();
    QVERIFY(m_events.isEmpty());
    QCOMPARE(settings().value(QStringLiteral("ProxySettings/server_HTTPS")).toString(),
             QStringLiteral("old.example"));
    QCOMPARE(settings().value(QStringLiteral("ProxySettings/port_HTTPS")).toInt(), 8080);
    // What was typed is still there, where the user goes on.
    QCOMPARE(cell(1, port), text);
    QCOMPARE(table()->currentRow(), 1);
    QCOMPARE(table()->currentColumn(), port);
    QVERIFY(table()->isAncestorOf(QApplication::focusWidget()));

    type("8081");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_VERIFY(!warning()->isVisible());
    QVERIFY(bad->icon().isNull());
    QCOMPARE(bad->toolTip(), QString());
    ok()->click();
    QVERIFY(m_events.contains(QStringLiteral("HTTPS new.example:8081")));
}

void tst_RVProxies::takesPorts_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("1") << 1;
    QTest::newRow("00080") << 80;
    QTest::newRow("65535") << 65535;
    QTest::newRow(" 3128 ") << 3128;
}

void tst_RVProxies::takesPorts()
{
    QFETCH(int, number);
    make();
    manual()->setChecked(true);
    setRow(0, QStringLiteral("web.example"), QLatin1String(QTest::currentDataTag()));
    ok()->click();
    QCOMPARE(m_events.first(), QStringLiteral("HTTP web.example:%1").arg(number));
    QCOMPARE(settings().value(QStringLiteral("ProxySettings/port_HTTP")).toInt(), number);
}

void tst_RVProxies::unusedPortsBlockNothing_data()
{
    QTest::addColumn<bool>("isManual");
    QTest::addColumn<bool>("same");
    QTest::newRow("no proxies") << false << false;
    QTest::newRow("one proxy serves all") << true << true;
}

void tst_RVProxies::unusedPortsBlockNothing()
{
    QFETCH(bool, isManual);
    QFETCH(bool, same);
    settings().setValue(QStringLiteral("ProxySettings/port_FTP"), 2121);
    make();
    manual()->setChecked(true);
    setRow(0, QStringLiteral("web.example"), QStringLiteral("3128"));
    setRow(2, QStringLiteral("files.example"), QStringLiteral("abc"));
    show();
    QVERIFY(warning()->isVisible());
    (isManual ? manual() : none())->setChecked(true);
    useSame()->setChecked(same);
    QVERIFY(!warning()->isVisible());
    ok()->click();
    QCOMPARE(m_events.size(), 4);
    // A text that is no port takes the place of none that was stored.
    QCOMPARE(settings().value(QStringLiteral("ProxySettings/port_FTP")).toInt(), 2121);
    QCOMPARE(settings().value(QStringLiteral("ProxySettings/server_FTP")).toString(),
             QStringLiteral("files.example"));
}

void tst_RVProxies::readsStoredNonsense_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a word") << QVariant(QStringLiteral("abc")) << QString();
    QTest::newRow("beyond the last port") << QVariant(70000) << QStringLiteral("70000");
    QTest::newRow("no port as 0") << QVariant(0) << QString();
    QTest::newRow("no port as -1") << QVariant(-1) << QString();
}

void tst_RVProxies::readsStoredNonsense()
{
    QFETCH(QVariant, stored);
    settings().setValue(QStringLiteral("ProxySettings/style"), 2);
    settings().setValue(QStringLiteral("ProxySettings/server_HTTP"), QStringLiteral("web.example"));
    settings().setValue(QStringLiteral("ProxySettings/port_HTTP"), stored);
    make();
    show();
    QTEST(cell(0, port), "shown");
    QCOMPARE(warning()->isVisible(), !cell(0, port).isEmpty());
    m_frame->emitProxySignals();
    QCOMPARE(m_events.first(), QStringLiteral("HTTP web.example:-1"));
    // A server without a port is shown at the latest when it is to be saved.
    ok()->click();
    QVERIFY(warning()->isVisible());
    QCOMPARE(m_events.size(), 3);
    setRow(0, QString(), QString());
    QVERIFY(!warning()->isVisible());
    ok()->click();
    QVERIFY(m_events.contains(QStringLiteral("modified")));
}

void tst_RVProxies::logsSettingsThatCannotBeWritten()
{
    make();
    const QString file = settings().fileName();
    QFile::remove(file);
    QVERIFY(QDir().mkpath(file + QStringLiteral("/in the way")));
    ok()->click();
    QDir(file).removeRecursively();
    QVERIFY(m_log->contains(QStringLiteral("The proxy settings could not be stored")));
    // It holds for this run all the same.
    QCOMPARE(m_events.size(), 4);
}

void tst_RVProxies::takesWhatAnOpenEditorHolds()
{
    make();
    manual()->setChecked(true);
    setRow(0, QStringLiteral("web.example"), QString());
    show();
    table()->setFocus();
    table()->setCurrentCell(0, port);
    type("3128");
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    // As by a shortcut, which leaves the focus where it is.
    m_frame->okButtonPressed();
    QCOMPARE(m_events.value(0), QStringLiteral("HTTP web.example:3128"));
}

void tst_RVProxies::worksByKeyboard()
{
    make();
    show();
    none()->setFocus();
    QTest::keyClick(none(), Qt::Key_Down);
    QVERIFY(manual()->isChecked());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), table());
    type("web.example");
    // From cell to cell, and out of the table at its end.
    for (const char *text : {"3128", "secure.example", "8080", "files.example", "2121"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        type(text);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), useSame());
    QTest::keyClick(useSame(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), table());
    QTest::keyClick(table(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), useSame());
    QTest::keyClick(useSame(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), ok());
    QTest::keyClick(ok(), Qt::Key_Space);
    QCOMPARE(m_events,
             (QStringList{QStringLiteral("HTTP web.example:3128"),
                          QStringLiteral("HTTPS secure.example:8080"),
                          QStringLiteral("FTP files.example:2121"), QStringLiteral("modified")}));
    // Backwards it ends at the first cell.
    table()->setFocus();
    table()->setCurrentCell(0, port);
    QTest::keyClick(table(), Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), manual());
}

void tst_RVProxies::returnIsOk()
{
    make();
    manual()->setChecked(true);
    show();
    table()->setFocus();
    table()->setCurrentCell(0, server);
    type("web.example");
    // In an editor it ends the editing.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(m_events.isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    none()->setChecked(true);
    none()->setFocus();
    QTest::keyClick(none(), Qt::Key_Return);
    QCOMPARE(m_events.size(), 4);
}

void tst_RVProxies::isSpoken()
{
    make();
    manual()->setChecked(true);
    setRow(0, QStringLiteral("web.example"), QStringLiteral("abc"));
    show();
    QCOMPARE(unspoken(*m_frame), QString());
    QAccessibleInterface *view = QAccessible::queryAccessibleInterface(table());
    QCOMPARE(view->text(QAccessible::Name), QStringLiteral("Network Proxies"));
    QStringList cells;
    for (int i = 0; i < view->childCount(); ++i) {
        if (view->child(i)->role() == QAccessible::Cell) {
            cells.append(view->child(i)->text(QAccessible::Name));
        }
    }
    QCOMPARE(cells.mid(0, 6),
             (QStringList{QStringLiteral("HTTP"), QStringLiteral("HTTP, Server: web.example"),
                          QStringLiteral("HTTP, Port: abc"), QStringLiteral("HTTPS"),
                          QStringLiteral("HTTPS, Server: "), QStringLiteral("HTTPS, Port: ")}));
    for (QAbstractButton *button :
         {static_cast<QAbstractButton *>(none()), static_cast<QAbstractButton *>(manual())}) {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(spoken->role(), QAccessible::RadioButton);
        QCOMPARE(bool(spoken->state().checked), button->isChecked());
    }
    table()->setFocus();
    table()->setCurrentCell(0, port);
    QTest::keyClick(table(), Qt::Key_F2);
    QAccessibleInterface *editor =
        QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    QCOMPARE(editor->text(QAccessible::Name), QStringLiteral("HTTP, Port: abc"));
    QCOMPARE(editor->text(QAccessible::Description), warning()->text());
}

void tst_RVProxies::changesLanguage()
{
    make();
    manual()->setChecked(true);
    useSame()->setChecked(true);
    setRow(0, QStringLiteral("web.example"), QStringLiteral("abc"));
    Catalogue catalogue;
    QCoreApplication::installTranslator(&catalogue);
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_frame.get(), &event);
    const QString all = cell(0, 0);
    const QString problem = warning()->text();
    const QStringList shown{none()->text(),
                            manual()->text(),
                            useSame()->text(),
                            table()->horizontalHeaderItem(0)->text(),
                            table()->horizontalHeaderItem(0)->toolTip(),
                            table()->horizontalHeaderItem(1)->text(),
                            table()->horizontalHeaderItem(2)->text(),
                            table()->horizontalHeaderItem(2)->toolTip(),
                            table()->accessibleName()};
    QCoreApplication::removeTranslator(&catalogue);
    QCOMPARE(all, QStringLiteral("All|All connection types (short word)"));
    QCOMPARE(shown,
             (QStringList{
                 QStringLiteral("No proxies|"), QStringLiteral("Manual Proxy Configuration:|"),
                 QStringLiteral("Use same proxy for all|"), QStringLiteral("Scheme|"),
                 QStringLiteral("Type of connection, e.g. HTTP, FTP|"), QStringLiteral("Server|"),
                 QStringLiteral("Port|"), QStringLiteral("Networking port number|"),
                 QStringLiteral("Network Proxies|")}));
    QVERIFY(problem.contains(QLatin1String("from 1 to 65535.|")));
    QCoreApplication::sendEvent(m_frame.get(), &event);
    QCOMPARE(cell(0, 0), QStringLiteral("All"));
}

void tst_RVProxies::readsFromLeftToRight()
{
    make();
    m_frame->setLayoutDirection(Qt::RightToLeft);
    manual()->setChecked(true);
    show();
    table()->setFocus();
    table()->setCurrentCell(0, server);
    QTest::keyClick(table(), Qt::Key_F2);
    const auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    QCOMPARE(editor->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(table()->layoutDirection(), Qt::RightToLeft);
}

void tst_RVProxies::showsAllItsRows_data()
{
    QTest::addColumn<int>("percent");
    QTest::newRow("usual text") << 100;
    QTest::newRow("large text") << 200;
    QTest::newRow("small text") << 70;
}

void tst_RVProxies::showsAllItsRows()
{
    QFETCH(int, percent);
    make();
    manual()->setChecked(true);
    QFont font = m_frame->font();
    font.setPointSizeF(font.pointSizeF() * percent / 100);
    m_frame->setFont(font);
    setRow(0, QStringLiteral("web.example"), QStringLiteral("65535"));
    setRow(2, QStringLiteral("files.example"), QStringLiteral("99999"));
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_frame.get()));
    // The least that a host gives it: the warning takes more lines where it is narrow.
    const int width = m_frame->minimumSizeHint().width();
    m_frame->resize(width, m_frame->heightForWidth(width));
    QCoreApplication::processEvents();
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QTableWidgetItem *item = table()->item(row, column);
            const QRect cell = table()->visualItemRect(item);
            QVERIFY(table()->viewport()->rect().contains(cell));
            QVERIFY(cell.height() >= QFontMetrics(font).height());
            if (column == port) {
                QVERIFY(cell.width() > QFontMetrics(font).horizontalAdvance(item->text()));
            }
        }
    }
}

void tst_RVProxies::holdsHostileTexts()
{
    const QString huge = QStringLiteral("<img src=x>") + QString(100000, QLatin1Char('9'));
    QSettings stored = settings();
    stored.beginGroup(QStringLiteral("ProxySettings"));
    stored.setValue(QStringLiteral("style"), QStringLiteral("2"));
    stored.setValue(QStringLiteral("useForAll"), QStringLiteral("perhaps"));
    stored.setValue(QStringLiteral("server_HTTP"), huge);
    stored.setValue(QStringLiteral("port_HTTP"), huge);
    stored.setValue(QStringLiteral("server_FTP"), QStringList{QStringLiteral("a"), huge});
    make();
    show();
    table()->item(0, port)->setText(huge);
    QVERIFY(m_frame->minimumSizeHint().width() < 2000);
    QVERIFY(warning()->isVisible());
    QVERIFY(warning()->text().size() < 200);
    QCOMPARE(unspoken(*m_frame), QString());
    for (int row = 0; row < 3; ++row) {
        QVERIFY(table()->item(row, server)->data(Qt::AccessibleTextRole).toString().size() < 400);
    }
    m_frame->emitProxySignals();
    QCOMPARE(m_events.size(), 3);
    QVERIFY(m_events.first().endsWith(QLatin1String(":-1")));
}

QTEST_MAIN(tst_RVProxies)
#include "tst_RVProxies.moc"
