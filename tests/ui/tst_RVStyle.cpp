// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVLogger.h"
#include "tests/support/LogFile.h"
#include "tests/support/WarningGuard.h"
#include "ui/RVStyle.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QStyle>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

// An icon directory of our own whose files are all of one colour.
class IconDir
{
public:
    explicit IconDir(const QByteArray &colour)
        : m_colour(colour)
    {
    }

    RVPaths paths() const
    {
        RVPaths result;
        result.iconDir = m_dir.path();
        return result;
    }

    bool add(const QString &name) const
    {
        QFile file(m_dir.filePath(name));
        return file.open(QIODevice::WriteOnly)
            && file.write("<svg xmlns='http://www.w3.org/2000/svg' width='24' height='24'>"
                          "<rect width='24' height='24' fill='"
                          + m_colour + "'/></svg>")
            > 0;
    }

    QString path(const QString &name) const { return m_dir.filePath(name); }

private:
    QTemporaryDir m_dir;
    QByteArray m_colour;
};

QRgb centre(const QIcon &icon)
{
    const QImage image = icon.pixmap(24, 24).toImage();
    return image.isNull() ? 0 : image.pixel(image.width() / 2, image.height() / 2);
}

int paintedPixels(const QIcon &icon)
{
    const QImage image = icon.pixmap(24, 24).toImage().convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class tst_RVStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");

        int number = 0;
        const auto row = [&number](const char *name, const char *file) {
            QTest::newRow(name) << number++ << QString::fromLatin1(name)
                                << QString::fromLatin1(file);
        };
        row("Abort", "stock_cancel.svg");
        row("Apply", "stock_apply.svg");
        row("Cancel", "stock_cancel.svg");
        row("Close", "stock_close.svg");
        row("Info", ":/images/info.svg");
        row("Install", "stock_download.svg");
        row("Ok", "stock_ok.svg");
        row("Refresh", "stock_refresh.svg");
        row("RestoreDefaults", "stock_revert-to-saved.svg");
        row("SelectAll", "stock_add.svg");
        row("SelectNone", "stock_remove.svg");
        row("Yes", "stock_yes.svg");
        row("No", "stock_no.svg");
        row("ImageRepository", ":/images/image_file.svg");
        row("SPRepository", ":/images/service_pack.svg");
        row("PackageRepository", ":/images/update_pack.svg");
    }

    // The row's own file is taken where it is there, by number and by name in any letter case.
    void rows()
    {
        QFETCH(int, number);
        QFETCH(QString, name);
        QFETCH(QString, file);
        WarningGuard guard;
        LogFile log;
        IconDir dir("#123456");
        const bool ownDrawing = file.startsWith(QLatin1Char(':'));
        if (!ownDrawing) {
            QVERIFY(dir.add(file));
        }
        const RVStyle style(dir.paths());
        const auto byNumber = style.StdIcon(static_cast<RVStyle::StdIcon_t>(number));
        if (ownDrawing) {
            QCOMPARE(byNumber.pixmap(24).toImage(), QIcon(file).pixmap(24).toImage());
        } else {
            QCOMPARE(centre(byNumber), qRgb(0x12, 0x34, 0x56));
        }
        for (const QString &variant : {name, name.toUpper(), name.toLower()}) {
            QCOMPARE(style.StdIcon(variant).pixmap(24).toImage(), byNumber.pixmap(24).toImage());
        }
        QVERIFY(log.lines().isEmpty());
    }

    void neverBlank_data() { rows_data(); }
    void neverBlank()
    {
        QFETCH(int, number);
        QFETCH(QString, file);
        WarningGuard guard;
        guard.allow(QStringLiteral("Could not parse|Cannot read|parse error"));
        IconDir dir("#123456");
        QVERIFY(paintedPixels(RVStyle(dir.paths()).StdIcon(static_cast<RVStyle::StdIcon_t>(number)))
                > 20);
        if (!file.startsWith(QLatin1Char(':'))) {
            QFile broken(dir.path(file));
            QVERIFY(broken.open(QIODevice::WriteOnly));
            QVERIFY(broken.write("no drawing") > 0);
            broken.close();
            QVERIFY(
                paintedPixels(RVStyle(dir.paths()).StdIcon(static_cast<RVStyle::StdIcon_t>(number)))
                > 20);
        }
    }

    void themeBeforeStyle()
    {
        QTemporaryDir themes;
        QVERIFY(QDir(themes.path()).mkpath(QStringLiteral("mine/24x24/actions")));
        QFile index(themes.filePath(QStringLiteral("mine/index.theme")));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=mine\nComment=c\nDirectories=24x24/actions\n"
                    "[24x24/actions]\nSize=24\nType=Fixed\n");
        index.close();
        QImage image(24, 24, QImage::Format_RGB32);
        image.fill(QColor(1, 2, 3));
        QVERIFY(image.save(themes.filePath(QStringLiteral("mine/24x24/actions/view-refresh.png"))));

        const QStringList oldPaths = QIcon::themeSearchPaths();
        const QString oldName = QIcon::themeName();
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setThemeName(QStringLiteral("mine"));
        IconDir dir("#123456");
        const QRgb fromTheme = centre(RVStyle(dir.paths()).StdIcon(RVStyle::Refresh));
        QVERIFY(dir.add(QStringLiteral("stock_refresh.svg")));
        const QRgb fromFile = centre(RVStyle(dir.paths()).StdIcon(RVStyle::Refresh));
        QIcon::setThemeSearchPaths(oldPaths);
        QIcon::setThemeName(oldName);
        QCOMPARE(fromTheme, qRgb(1, 2, 3));
        QCOMPARE(fromFile, qRgb(0x12, 0x34, 0x56));
    }

    void styleBeforeDrawing()
    {
        IconDir dir("#123456");
        QCOMPARE(
            RVStyle(dir.paths()).StdIcon(RVStyle::Ok).pixmap(24).toImage(),
            QApplication::style()->standardIcon(QStyle::SP_DialogOkButton).pixmap(24).toImage());
    }

    // Every drawing is compiled in and can be painted, the stand-ins of the rows with a file too.
    void drawings_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *name :
             {"info", "image_file", "service_pack", "update_pack", "stock/add", "stock/apply",
              "stock/cancel", "stock/close", "stock/download", "stock/no", "stock/ok",
              "stock/refresh", "stock/remove", "stock/revert", "stock/yes"}) {
            QTest::newRow(name) << QStringLiteral(":/images/%1.svg").arg(QLatin1String(name));
        }
    }
    void drawings()
    {
        QFETCH(QString, path);
        WarningGuard guard;
        const RVStyle style;
        QVERIFY(paintedPixels(QIcon(path)) > 20);
    }

    void unknownNumber_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("one beyond the table") << 16;
        QTest::newRow("below the table") << -1;
    }
    void unknownNumber()
    {
        QFETCH(int, number);
        LogFile log;
        QVERIFY(RVStyle().StdIcon(static_cast<RVStyle::StdIcon_t>(number)).isNull());
        QCOMPARE(log.lines(),
                 QStringList(QStringLiteral("No match for std icon number %1").arg(number)));
    }

    void unknownName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("unknown") << QStringLiteral("Okay");
        QTest::newRow("empty") << QString();
        QTest::newRow("looks like a format") << QStringLiteral("%s%n%d");
        QTest::newRow("name with a blank behind") << QStringLiteral("Ok ");
    }
    void unknownName()
    {
        QFETCH(QString, name);
        LogFile log;
        QVERIFY(RVStyle().StdIcon(name).isNull());
        QCOMPARE(log.lines(), QStringList(QStringLiteral("No match for std icon name ") + name));
    }

    void unknownIsLevelFour()
    {
        LogFile log;
        const int level = RVLogger::m_level;
        RVLogger::m_level = 3;
        RVStyle().StdIcon(QStringLiteral("nothing"));
        RVLogger::m_level = level;
        QVERIFY(log.lines().isEmpty());
        RVLogger::m_level = 4;
        RVStyle().StdIcon(QStringLiteral("nothing"));
        RVLogger::m_level = level;
        QCOMPARE(log.lines().size(), 1);
    }
};

QTEST_MAIN(tst_RVStyle)
#include "tst_RVStyle.moc"
