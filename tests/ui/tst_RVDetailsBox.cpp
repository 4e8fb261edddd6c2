// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/WarningGuard.h"
#include "ui/RVDetailsBox.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QStyleFactory>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

class tst_RVDetailsBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_guard = std::make_unique<WarningGuard>(); }
    void cleanup() { m_guard.reset(); }

    void startsClosed()
    {
        const RVDetailsBox box;
        QVERIFY(box.isCheckable());
        QVERIFY(!box.isChecked());
        QVERIFY(box.maximumHeight() < 2 * box.fontMetrics().height());
    }

    void paintsNoFrameWhileClosed_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<bool>("open");
        for (const char *style : {"fusion", "windows"}) {
            for (const bool open : {false, true}) {
                QTest::newRow(
                    qPrintable(QLatin1String(style) + QLatin1String(open ? ", open" : ", closed")))
                    << QString::fromLatin1(style) << open;
            }
        }
    }
    void paintsNoFrameWhileClosed()
    {
        QFETCH(QString, style);
        QFETCH(bool, open);
        QApplication::setStyle(QStyleFactory::create(style));
        RVDetailsBox box;
        box.setTitle(QStringLiteral("Show"));
        auto *layout = new QVBoxLayout(&box);
        layout->setContentsMargins({});
        auto *content = new QLabel;
        layout->addWidget(content);
        box.setChecked(open);
        content->setVisible(open);
        QVERIFY(!open || box.maximumHeight() == QWIDGETSIZE_MAX);
        box.resize(400, open ? 100 : box.maximumHeight());
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));

        // Behind the title there is nothing, no piece of a frame either.
        const QImage image = box.grab().toImage();
        bool isEmpty = true;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = image.width() / 2; x < image.width(); ++x) {
                isEmpty =
                    isEmpty && image.pixelColor(x, y) == box.palette().color(QPalette::Window);
            }
        }
        QCOMPARE(isEmpty, !open);
    }

private:
    std::unique_ptr<WarningGuard> m_guard;
};

QTEST_MAIN(tst_RVDetailsBox)
#include "tst_RVDetailsBox.moc"
