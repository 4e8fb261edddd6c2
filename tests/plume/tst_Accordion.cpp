// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/WarningGuard.h"

#include <plume/Accordion.h>
#include <plume/AccordionItem.h>
#include <plume/ControlFrame.h>

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>

#include <memory>

namespace
{

class Frame : public ControlFrame
{
public:
    explicit Frame(const QString &title)
        : m_title(title)
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(QStringLiteral("content")));
    }

    QString title() const override { return m_title; }
    QString helpText() const override { return QStringLiteral("<p>Help of <b>it</b></p>"); }
    QIcon icon() const override { return m_icon; }

    QString m_title;
    QIcon m_icon;
};

QToolButton *heading(const AccordionItem *item)
{
    return item->findChild<QToolButton *>(QStringLiteral("accordionHeading"));
}

QIcon plainIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class tst_Accordion : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Accordion> m_accordion;
    QList<AccordionItem *> m_items;

    QString open() const
    {
        QString result;
        for (const AccordionItem *item : m_items) {
            result += item->isExpanded() ? QLatin1Char('1') : QLatin1Char('0');
            // What is open and what is shown is one thing.
            if (item->isVisible() && item->isExpanded() != item->frame()->isVisible()) {
                return QStringLiteral("frame and heading differ");
            }
        }
        return result;
    }

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<AccordionItem *>(); }

    void init()
    {
        m_accordion = std::make_unique<Accordion>();
        m_items.clear();
        for (const char *title : {"Images", "Service packs", "Packages"}) {
            m_items.append(new AccordionItem(new Frame(QString::fromLatin1(title))));
        }
    }

    void cleanup() { m_accordion.reset(); }

    void addAll(bool show = true)
    {
        for (AccordionItem *item : qAsConst(m_items)) {
            m_accordion->addItem(item);
        }
        if (show) {
            m_accordion->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_accordion.get()));
        }
    }

    void takesOwnershipAndKeepsOrder()
    {
        addAll();
        QCOMPARE(m_accordion->items(), m_items);
        QPointer<AccordionItem> guard(m_items.constFirst());
        m_accordion.reset();
        QVERIFY(guard.isNull());
    }

    void firstItemOpensByItself()
    {
        addAll();
        QCOMPARE(open(), QStringLiteral("100"));
    }

    void firstVisibleItemOpensWhenEarlierOnesAreHidden()
    {
        m_items.at(0)->hide();
        addAll();
        QCOMPARE(open(), QStringLiteral("010"));
    }

    void addedTwiceIsThereOnce()
    {
        addAll();
        m_accordion->addItem(m_items.at(0));
        m_accordion->addItem(nullptr);
        QCOMPARE(m_accordion->items(), m_items);
    }

    void itemHiddenRightAfterItWasAddedHandsOver()
    {
        addAll(false);
        m_items.at(0)->hide();
        m_items.at(1)->hide();
        m_accordion->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_accordion.get()));
        QCOMPARE(open(), QStringLiteral("001"));
    }

    void itemHiddenWhileOpenHandsOver_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the first to the next") << 0 << "010";
        QTest::newRow("the middle one to the next") << 1 << "001";
        QTest::newRow("the last round to the first") << 2 << "100";
    }

    void itemHiddenWhileOpenHandsOver()
    {
        QFETCH(int, index);
        addAll();
        m_items.at(index)->setExpanded(true);
        m_items.at(index)->hide();
        QTEST(open(), "expected");
    }

    void closedItemHiddenChangesNothing()
    {
        addAll();
        m_items.at(2)->hide();
        QCOMPARE(open(), QStringLiteral("100"));
    }

    void onlyItemLeftOpensWhenItAppears()
    {
        addAll();
        for (AccordionItem *item : qAsConst(m_items)) {
            item->hide();
        }
        QCOMPARE(open(), QStringLiteral("000"));
        m_items.at(1)->show();
        QCOMPARE(open(), QStringLiteral("010"));
        m_items.at(0)->show();
        QCOMPARE(open(), QStringLiteral("010"));
    }

    void deletedOpenItemHandsOver()
    {
        addAll();
        delete m_items.takeFirst();
        QCOMPARE(m_accordion->items(), m_items);
        QCOMPARE(open(), QStringLiteral("10"));
    }

    void atMostOneIsOpen()
    {
        addAll();
        m_items.at(2)->setExpanded(true);
        QCOMPARE(open(), QStringLiteral("001"));
        auto *opened = new AccordionItem(new Frame(QStringLiteral("Opened before")));
        opened->setExpanded(true);
        m_items.append(opened);
        m_accordion->addItem(opened);
        QCOMPARE(open(), QStringLiteral("0001"));
    }

    void clickOpensAndTellsOnce()
    {
        addAll();
        QSignalSpy first(m_items.at(0), &AccordionItem::selected);
        QSignalSpy second(m_items.at(1), &AccordionItem::selected);
        QTest::mouseClick(heading(m_items.at(1)), Qt::LeftButton);
        QCOMPARE(open(), QStringLiteral("010"));
        QCOMPARE(first.count(), 0);
        QCOMPARE(second.count(), 1);
        QCOMPARE(second.at(0).at(0).value<AccordionItem *>(), m_items.at(1));
    }

    void clickOnTheOpenOneClosesItAndTellsNobody()
    {
        addAll();
        QSignalSpy selected(m_items.at(0), &AccordionItem::selected);
        QTest::mouseClick(heading(m_items.at(0)), Qt::LeftButton);
        QCOMPARE(open(), QStringLiteral("000"));
        QCOMPARE(selected.count(), 0);
    }

    void aUserWhoClosedAllKeepsThemClosed()
    {
        addAll();
        m_items.at(2)->hide();
        QTest::mouseClick(heading(m_items.at(0)), Qt::LeftButton);
        m_items.at(2)->show();
        QCOMPARE(open(), QStringLiteral("000"));
    }

    void openingByProgramTellsNobody()
    {
        addAll();
        QSignalSpy selected(m_items.at(1), &AccordionItem::selected);
        QSignalSpy changed(m_items.at(1), &AccordionItem::expandedChanged);
        m_items.at(1)->setExpanded(true);
        m_items.at(1)->setExpanded(true);
        QCOMPARE(selected.count(), 0);
        QCOMPARE(changed.count(), 1);
    }

    void keyboard_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Space") << int(Qt::Key_Space);
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter of the number pad") << int(Qt::Key_Enter);
    }

    void keyboard()
    {
        QFETCH(int, key);
        addAll();
        m_accordion->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_accordion.get()));
        heading(m_items.at(0))->setFocus();
        QTest::keyClick(m_accordion->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_accordion->focusWidget(), heading(m_items.at(1)));
        QSignalSpy selected(m_items.at(1), &AccordionItem::selected);
        QTest::keyClick(m_accordion->focusWidget(), Qt::Key(key));
        QCOMPARE(open(), QStringLiteral("010"));
        QCOMPARE(selected.count(), 1);
    }

    void headingSaysWhatTheFrameSays()
    {
        addAll();
        auto *frame = static_cast<Frame *>(m_items.at(0)->frame());
        QToolButton *button = heading(m_items.at(0));
        QCOMPARE(button->accessibleName(), QStringLiteral("Images"));
        QCOMPARE(button->accessibleDescription(), QStringLiteral("Help of it"));
        QVERIFY(button->icon().isNull());
        QVERIFY(button->isCheckable());

        frame->m_title = QStringLiteral("Fish & Chips");
        frame->m_icon = plainIcon();
        QCOMPARE(button->accessibleName(), QStringLiteral("Images"));
        Q_EMIT frame->headingChanged();
        QCOMPARE(button->accessibleName(), QStringLiteral("Fish & Chips"));
        QCOMPARE(button->text(), QStringLiteral("Fish && Chips"));
        QVERIFY(!button->icon().isNull());
    }

    void headingFollowsTheLanguage()
    {
        addAll();
        auto *frame = static_cast<Frame *>(m_items.at(0)->frame());
        frame->m_title = QStringLiteral("Abbilder");
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_items.at(0), &change);
        QCOMPARE(heading(m_items.at(0))->accessibleName(), QStringLiteral("Abbilder"));
    }

    void paintsInEveryState_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("light") << false << false;
        QTest::newRow("dark") << true << false;
        QTest::newRow("right to left") << false << true;
    }

    // The title has to stand out from its background: a fifth of the range is far below what is
    // readable, and far above no difference.
    void paintsInEveryState()
    {
        QFETCH(bool, dark);
        QFETCH(bool, rightToLeft);
        WarningGuard guard;
        addAll();
        QPalette palette;
        palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
        palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
        m_accordion->setPalette(palette);
        m_accordion->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        m_accordion->resize(400, m_accordion->sizeHint().height());
        for (AccordionItem *item : qAsConst(m_items)) {
            const QImage image = heading(item)->grab().toImage();
            int darkest = 255;
            int lightest = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    darkest = qMin(darkest, qGray(image.pixel(x, y)));
                    lightest = qMax(lightest, qGray(image.pixel(x, y)));
                }
            }
            QVERIFY2(lightest - darkest > 51, qPrintable(heading(item)->text()));
        }
    }

    void closedItemsTakeNoMoreThanTheirHeadings()
    {
        addAll();
        QCOMPARE(m_items.at(1)->sizeHint().height(), heading(m_items.at(1))->sizeHint().height());
        QVERIFY(m_items.at(0)->sizeHint().height() > heading(m_items.at(0))->sizeHint().height());
    }
};

QTEST_MAIN(tst_Accordion)
#include "tst_Accordion.moc"
