// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorGeneric.h"
#include "tests/support/CpuCost.h"
#include "tests/support/WarningGuard.h"
#include "tests/ui/Spoken.h"
#include "ui/ItemDetailsDialog.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextEdit>
#include <QTranslator>
#include <QtTest>

#include <limits>
#include <memory>
#include <sys/stat.h>

namespace
{

using Descriptor = QSharedPointer<DescriptorGeneric>;

Descriptor descriptor(const QString &elements,
                      const QString &url = QStringLiteral("http://host/dir/item.xml"))
{
    const Descriptor result(new DescriptorGeneric(QUrl(url)));
    QByteArray document = "<update_data>" + elements.toUtf8() + "</update_data>";
    QBuffer buffer(&document);
    return result->read(&buffer) ? result : Descriptor();
}

QString information(const ItemDetailsDialog &dialog)
{
    return dialog.findChild<QLabel *>(QStringLiteral("information"))->text();
}

// The rows of the contents list as a reader sees them, the columns apart by "|".
QStringList contents(const ItemDetailsDialog &dialog)
{
    const auto *area = dialog.findChild<QScrollArea *>();
    const auto *grid = qobject_cast<QGridLayout *>(area->widget()->layout());
    QStringList result;
    for (int row = 0; row < grid->rowCount(); ++row) {
        QStringList cells;
        QLayoutItem *previous = nullptr;
        for (int column = 0; column < 2; ++column) {
            QLayoutItem *item = grid->itemAtPosition(row, column);
            if (item && item != previous) {
                cells.append(qobject_cast<QLabel *>(item->widget())->text());
            }
            previous = item;
        }
        if (!cells.isEmpty()) {
            result.append(cells.join(QLatin1Char('|')));
        }
    }
    return result;
}

class Marking : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *comment,
                      int) const override
    {
        if (qstrcmp(context, "ItemDetailsDialog") != 0) {
            return {};
        }
        return qstrcmp(comment, "list join character") == 0
            ? QStringLiteral(" + ")
            : QStringLiteral("xx ") + QString::fromLatin1(source);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ItemDetailsDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.reset();
        m_guard = std::make_unique<WarningGuard>();
        // The offscreen platform says so of every window that has a minimum size.
    }
    void cleanup() { m_guard.reset(); }

    void everything()
    {
        const Descriptor item = descriptor(
            QStringLiteral("<name>editor</name><title>A text editor</title><version>2.0-1</version>"
                           "<base_releases>5.1</base_releases><base_releases>5.2</base_releases>"
                           "<size>1536</size><unpacked_size>1048576</"
                           "unpacked_size><installed_size>0</installed_size>"
                           "<package>liba 1.0</package><package>libb 2.0-3</package>"
                           "<notes><b>New:</b> faster</notes>"));
        QVERIFY(item);
        const ItemDetailsDialog dialog(item);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("editor"));
        QCOMPARE(information(dialog),
                 QStringLiteral("Title:  <b>A text editor</b><br />"
                                "Version:  <b>2.0-1</b><br />"
                                "URI:  <b>http://host/dir/item.xml</b><br />"
                                "For Releases:  <b>5.1, 5.2</b><br />"
                                "Update Size:  <b>1.5 KiB</b><br />"
                                "Unpacked Size:  <b>1.0 MiB</b><br />"
                                "Installed Size:  <b>0</b><br />"
                                "Service Pack Contents: <br />"));
        QCOMPARE(contents(dialog),
                 QStringList({QStringLiteral("liba|1.0"), QStringLiteral("libb|2.0-3")}));
        const auto *notes = dialog.findChild<QTextEdit *>();
        QCOMPARE(notes->toPlainText(), QStringLiteral("New: faster"));
        QVERIFY(notes->document()->find(QStringLiteral("New")).charFormat().fontWeight()
                == QFont::Bold);
        QVERIFY(notes->isReadOnly());
        QVERIFY(!dialog.isModal());
        const auto *buttons = dialog.findChild<QDialogButtonBox *>();
        QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok);
        QVERIFY(!buttons->button(QDialogButtonBox::Ok)->icon().isNull());
    }

    void linesOfMissingValues_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("expected");
        const QString url = QStringLiteral("http://h/a.xml");
        const QString uri = QStringLiteral("URI:  <b>http://h/a.xml</b><br />");
        QTest::newRow("nothing but a place") << "" << url << uri;
        QTest::newRow("title") << "<title>t</title>" << url
                               << QStringLiteral("Title:  <b>t</b><br />") + uri;
        QTest::newRow("version") << "<version>1</version>" << url
                                 << QStringLiteral("Version:  <b>1</b><br />") + uri;
        QTest::newRow("update size")
            << "<size>0</size>" << url << uri + QStringLiteral("Update Size:  <b>0</b><br />");
        QTest::newRow("unpacked size") << "<unpacked_size>1</unpacked_size>" << url
                                       << uri + QStringLiteral("Unpacked Size:  <b>1</b><br />");
        QTest::newRow("installed size") << "<installed_size>2</installed_size>" << url
                                        << uri + QStringLiteral("Installed Size:  <b>2</b><br />");
        QTest::newRow("sizes below zero")
            << "<size>-1</size><unpacked_size>-1</unpacked_size><installed_size>-5</installed_size>"
            << url << uri;
        QTest::newRow("contents") << "<package>a</package>" << url
                                  << uri + QStringLiteral("Service Pack Contents: <br />");
        QTest::newRow("password") << ""
                                  << "ftp://user:secret@h/a.xml"
                                  << "URI:  <b>ftp://user@h/a.xml</b><br />";
    }
    void linesOfMissingValues()
    {
        QFETCH(QString, elements);
        QFETCH(QString, url);
        const Descriptor item = descriptor(elements, url);
        QVERIFY(item);
        QString text = information(ItemDetailsDialog(item));
        text.remove(QStringLiteral("For Releases:  <b>all</b><br />"));
        QTEST(text, "expected");
    }

    // A descriptor that no backend reads has no place either.
    void emptyDescriptor()
    {
        const DescriptorGeneric item((QUrl()));
        const ItemDetailsDialog dialog(&item);
        QVERIFY(!information(dialog).contains(QLatin1String("URI:")));
        QVERIFY(!information(dialog).contains(QLatin1String("Size:")));
        QVERIFY(dialog.findChild<QScrollArea *>()->isHidden());
    }

    void textIsNotMarkup()
    {
        const QString markup = QStringLiteral("&lt;img src=\"x\"&gt;&lt;b&gt;&amp;amp;%1");
        const Descriptor item =
            descriptor(QStringLiteral("<name>%1</name><title>%1</title><version>%1</version>"
                                      "<base_releases>%1</base_releases><package>%1 %1</package>")
                           .replace(QLatin1String("%1"), markup),
                       QStringLiteral("http://h/%3Cb%3E.xml?a=<i>&amp;"));
        QVERIFY(item);
        const ItemDetailsDialog dialog(item);
        const QString text = information(dialog);
        QCOMPARE(text.count(QLatin1String("<b>")), 4);
        QVERIFY(!text.contains(QLatin1String("<img")));
        QVERIFY(!text.contains(QLatin1String("<i>")));
        QCOMPARE(text.count(QLatin1String("&lt;img src=&quot;x&quot;&gt;&lt;b&gt;&amp;amp;%1")), 3);
        const auto *area = dialog.findChild<QScrollArea *>();
        for (const QLabel *label : area->widget()->findChildren<QLabel *>()) {
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
        QCOMPARE(contents(dialog).constFirst(), QStringLiteral("<img|src=\"x\"><b>&amp;%1"));
    }

    void plainText_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QString>("title");
        QTest::newRow("ampersand") << "A &amp; B"
                                   << "A & B";
        QTest::newRow("angle brackets") << "a &lt;b&gt; c"
                                        << "a <b> c";
        QTest::newRow("quoted twice") << "a &amp;lt; b &amp;amp; c"
                                      << "a &lt; b &amp; c";
        QTest::newRow("quotes") << "&quot;a&quot; &apos;b&apos;"
                                << "\"a\" 'b'";
        QTest::newRow("character data") << "<![CDATA[A & <B>]]>"
                                        << "A & <B>";
    }
    void plainText()
    {
        QFETCH(QString, elements);
        QFETCH(QString, title);
        const Descriptor item = descriptor(
            QStringLiteral("<name>%1</name><title>%1</title><version>%1</version>").arg(elements));
        QVERIFY(item);
        const ItemDetailsDialog dialog(item);
        QCOMPARE(dialog.windowTitle(), title);
        QVERIFY(information(dialog).startsWith(
            QStringLiteral("Title:  <b>%1</b><br />Version:  <b>%1</b><br />")
                .arg(title.toHtmlEscaped())));
    }

    void contentsEntries_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("row");
        QTest::newRow("name and version") << "name 1.0"
                                          << "name|1.0";
        QTest::newRow("no blank") << "name"
                                  << "name|";
        QTest::newRow("two blanks") << "name  1.0"
                                    << "name|";
        QTest::newRow("three parts") << "name 1.0 more"
                                     << "name|1.0";
        QTest::newRow("blank in front") << " name"
                                        << "|name";
        QTest::newRow("blank behind") << "name "
                                      << "name|";
        QTest::newRow("tab is no blank") << "name\t1.0"
                                         << "name\t1.0|";
        QTest::newRow("empty") << ""
                               << "|";
    }
    void contentsEntries()
    {
        QFETCH(QString, entry);
        const Descriptor item = descriptor(QStringLiteral("<package>%1</package>").arg(entry));
        QVERIFY(item);
        const ItemDetailsDialog dialog(item);
        QVERIFY(!dialog.findChild<QScrollArea *>()->isHidden());
        QCOMPARE(contents(dialog).size(), 1);
        QTEST(contents(dialog).constFirst(), "row");
    }

    void manyContents_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("last");
        QTest::newRow("as many as are shown") << 1000 << 1000 << "p00999|1";
        QTest::newRow("one more") << 1001 << 1001 << "and 1 more";
        QTest::newRow("ten thousand") << 10000 << 1001 << "and 9000 more";
    }
    void manyContents()
    {
        QFETCH(int, count);
        QFETCH(int, rows);
        QString packages;
        for (int i = 0; i < count; ++i) {
            packages += QStringLiteral("<package>p%1 1</package>").arg(i, 5, 10, QLatin1Char('0'));
        }
        const Descriptor item = descriptor(packages);
        QVERIFY(item);
        std::unique_ptr<ItemDetailsDialog> shown;
        const double cost = CpuCost::of([&] {
            shown = std::make_unique<ItemDetailsDialog>(item);
            shown->show();
        });
        QVERIFY2(cost < 1500, qPrintable(QString::number(cost)));
        const ItemDetailsDialog &dialog = *shown;
        QCOMPARE(contents(dialog).size(), rows);
        QTEST(contents(dialog).constLast(), "last");
        const auto *area = dialog.findChild<QScrollArea *>();
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
        QVERIFY(area->height() <= area->maximumHeight());
    }

    void layout()
    {
        const Descriptor item = descriptor(QStringLiteral("<package>a 1</package>"));
        QVERIFY(item);
        ItemDetailsDialog dialog(item);
        dialog.show();
        const auto *area = dialog.findChild<QScrollArea *>();
        QVERIFY(area->maximumHeight() >= 80 && area->maximumHeight() < 160);
        QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        const auto *grid = qobject_cast<QGridLayout *>(area->widget()->layout());
        QCOMPARE(grid->contentsMargins(), QMargins());
        QCOMPARE(grid->verticalSpacing(), 0);
        QCOMPARE(grid->sizeConstraint(), QLayout::SetFixedSize);
        const auto *label = dialog.findChild<QLabel *>(QStringLiteral("information"));
        QVERIFY(label->wordWrap());
        QVERIFY(label->maximumWidth() >= 800 && label->maximumWidth() < 1600);
        QCOMPARE(dialog.focusWidget(),
                 dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
    }

    // Long words do not make the dialog wider than a screen.
    void longTexts()
    {
        const QString word(10000, QLatin1Char('w'));
        const Descriptor item =
            descriptor(QStringLiteral("<name>%1</name><title>%1</title><version>%1</version>"
                                      "<base_releases>%1</base_releases><package>%1 %1</package>")
                           .arg(word),
                       QStringLiteral("http://h/%1.xml").arg(word));
        QVERIFY(item);
        ItemDetailsDialog dialog(item);
        dialog.show();
        QVERIFY2(dialog.minimumSizeHint().width() < 1000,
                 qPrintable(QString::number(dialog.minimumSizeHint().width())));
        QVERIFY(information(dialog).size() < 20000);
        QVERIFY(dialog.windowTitle().size() < 100);
        QVERIFY(contents(dialog).constFirst().size() < 200);
    }

    void notes_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "just text"
                               << "just text";
        QTest::newRow("markup") << "<![CDATA[<p>one</p><p>two</p>]]>"
                                << "one\ntwo";
        QTest::newRow("none") << ""
                              << "";
    }
    void notes()
    {
        QFETCH(QString, notes);
        const Descriptor item = descriptor(QStringLiteral("<notes>%1</notes>").arg(notes));
        QVERIFY(item);
        QTEST(ItemDetailsDialog(item).findChild<QTextEdit *>()->toPlainText(), "text");
    }

    void notesOpenAtTheTop()
    {
        const Descriptor item = descriptor(QStringLiteral("<notes><![CDATA[%1]]></notes>")
                                               .arg(QStringLiteral("<p>line</p>").repeated(500)));
        QVERIFY(item);
        ItemDetailsDialog dialog(item);
        dialog.show();
        const auto *view = dialog.findChild<QTextEdit *>();
        QTRY_VERIFY_WITH_TIMEOUT(view->verticalScrollBar()->maximum() > 0, 5000);
        QCOMPARE(view->verticalScrollBar()->value(), 0);
        QVERIFY(view->textCursor().atStart());
    }

    void notesCannotHang()
    {
        QTemporaryDir dir;
        const QString fifo = dir.filePath(QStringLiteral("fifo"));
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        const Descriptor item =
            descriptor(QStringLiteral("<notes><![CDATA[<img src=\"%1\">%2x]]></notes>")
                           .arg(fifo, QStringLiteral("<table><tr><td>").repeated(30)));
        QVERIFY(item);
        const double cost = CpuCost::of([&item] {
            ItemDetailsDialog dialog(item);
            dialog.show();
            dialog.grab();
        });
        QVERIFY2(cost < 1500, qPrintable(QString::number(cost)));
    }

    void sizes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *text, qint64 bytes) {
            QTest::newRow(qPrintable(QStringLiteral("%1 bytes").arg(bytes)))
                << bytes << QString::fromLatin1(text);
        };
        row("-1", -1);
        row("-2048", -2048);
        row("0", 0);
        row("1023", 1023);
        row("1.0 KiB", 1024);
        row("1.5 KiB", 1536);
        row("10.0 KiB", 10239);
        row("10 KiB", 10240);
        row("1000 KiB", 1024000);
        row("1024 KiB", 1048575);
        row("1.0 MiB", 1048576);
        row("1.5 MiB", 1572864);
        row("10.0 MiB", 10485759);
        row("10 MiB", 10485760);
        row("1024 MiB", 1073741823);
        row("1.0 GiB", 1073741824);
        row("2.5 GiB", 2684354560);
        row("10.0 GiB", 10737418239);
        row("10 GiB", 10737418240);
        row("8589934592 GiB", std::numeric_limits<qint64>::max());
    }
    void sizes()
    {
        QFETCH(qint64, bytes);
        const DescriptorGeneric item((QUrl()));
        QTEST(ItemDetailsDialog(&item).sizeStr(bytes), "text");
    }

    void closing_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how : {"OK", "Escape", "window"}) {
            QTest::newRow(how) << QString::fromLatin1(how);
        }
    }
    void closing()
    {
        QFETCH(QString, how);
        const Descriptor item = descriptor(QString());
        QVERIFY(item);
        QPointer<ItemDetailsDialog> dialog = new ItemDetailsDialog(item);
        dialog->show();
        if (how == QLatin1String("OK")) {
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        } else if (how == QLatin1String("Escape")) {
            QTest::keyClick(dialog.data(), Qt::Key_Escape);
        } else {
            dialog->close();
        }
        QVERIFY(!dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialog.isNull());
    }

    // The table that opened the dialog may be replaced meanwhile.
    void keepsTheDescriptor()
    {
        Descriptor item = descriptor(QStringLiteral("<name>kept</name>"));
        QVERIFY(item);
        const QWeakPointer<DescriptorGeneric> watched = item;
        auto dialog = std::make_unique<ItemDetailsDialog>(item);
        item.reset();
        dialog->setWindowTitle(QString());
        dialog->retranslateUi();
        QCOMPARE(dialog->windowTitle(), QStringLiteral("kept"));
        dialog.reset();
        QVERIFY(watched.isNull());
    }

    void languageChange()
    {
        const Descriptor item = descriptor(
            QStringLiteral("<name>n</name><title>t</title><size>2048</size>"
                           "<base_releases>1</base_releases><base_releases>2</base_releases>"
                           "<package>a 1</package><package>b 2</package><notes>x</notes>"));
        QVERIFY(item);
        ItemDetailsDialog dialog(item);
        const QString before = information(dialog);
        Marking translator;
        QCoreApplication::installTranslator(&translator);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&dialog, &event);
        const QString changed = information(dialog);
        QCoreApplication::removeTranslator(&translator);
        QVERIFY(changed.startsWith(QLatin1String("xx Title:  <b>t</b><br />")));
        QVERIFY(changed.contains(QLatin1String("<b>1 + 2</b>")));
        QVERIFY(changed.contains(QLatin1String("<b>xx 2.0 KiB</b>")));
        QVERIFY(changed.endsWith(QLatin1String("xx Service Pack Contents: <br />")));
        QCoreApplication::sendEvent(&dialog, &event);
        QCOMPARE(information(dialog), before);
        QCOMPARE(contents(dialog), QStringList({QStringLiteral("a|1"), QStringLiteral("b|2")}));
        QCOMPARE(dialog.findChild<QTextEdit *>()->toPlainText(), QStringLiteral("x"));
    }

    void accessibleNames()
    {
        const Descriptor item =
            descriptor(QStringLiteral("<title>t</title><package>a 1</package><notes>n</notes>"));
        QVERIFY(item);
        const ItemDetailsDialog dialog(item);
        QCOMPARE(unspoken(dialog), QString());
    }

private:
    std::unique_ptr<WarningGuard> m_guard;
};

QTEST_MAIN(tst_ItemDetailsDialog)
#include "tst_ItemDetailsDialog.moc"
