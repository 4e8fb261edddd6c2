// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

namespace
{

constexpr int timeout = 20000;

} // namespace

/// The real program, from outside.
class tst_HostProgram : public QObject
{
    Q_OBJECT

private:
    struct Result {
        int exitCode;
        QString output;
        QString errors;
    };

    static Result
    run(const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(RAVEL_HOST), arguments);
        const bool ended =
            program.waitForFinished(timeout) && program.exitStatus() == QProcess::NormalExit;
        return {ended ? program.exitCode() : -1,
                QString::fromLocal8Bit(program.readAllStandardOutput()),
                QString::fromLocal8Bit(program.readAllStandardError())};
    }

private Q_SLOTS:
    void helpAndVersionNeedNoDisplay_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("expected");
        QTest::newRow("help") << "--help"
                              << "--root <DIR>";
        QTest::newRow("version") << "--version"
                                 << "ravel-host ";
    }

    void helpAndVersionNeedNoDisplay()
    {
        QFETCH(QString, argument);
        QFETCH(QString, expected);
        for (const bool display : {true, false}) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            if (!display) {
                environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
                environment.remove(QStringLiteral("DISPLAY"));
                environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
            }
            const Result result = run({argument}, environment);
            QCOMPARE(result.exitCode, 0);
            QVERIFY2(result.output.contains(expected), qPrintable(result.output));
        }
    }

    void noDisplayIsSaid()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        const Result result = run({}, environment);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.errors,
                 QStringLiteral("ravel-host: There is no display: DISPLAY is not set.\n"));
    }

    void badArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown option")
            << QStringList{QStringLiteral("--frobnicate")} << "Unknown option 'frobnicate'.";
        QTest::newRow("root without a value")
            << QStringList{QStringLiteral("--root")} << "Missing value after '--root'.";
        QTest::newRow("surplus after root")
            << QStringList{QStringLiteral("--root=/"), QStringLiteral("x")}
            << "Unexpected argument 'x'.";
        QTest::newRow("root that is not there")
            << QStringList{QStringLiteral("--root"), QStringLiteral("/nonexistent")}
            << "'/nonexistent' is not a directory.";
        QTest::newRow("root that is a file")
            << QStringList{QStringLiteral("--root"), QStringLiteral(RAVEL_HOST)}
            << "'" RAVEL_HOST "' is not a directory.";
        QTest::newRow("surplus argument")
            << QStringList{QStringLiteral("surplus")} << "Unexpected argument 'surplus'.";
    }

    void badArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Result result = run(arguments);
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains(QLatin1String("ravel-host: ") + message),
                 qPrintable(result.errors));
    }

    // The sentence is on standard error as well as in a box; the signal closes the box.
    void brokenRootIsSaidAndEndsWithOne()
    {
        QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(QStringLiteral("etc")));
        QProcess program;
        program.start(QStringLiteral(RAVEL_HOST), {QStringLiteral("--root"), root.path()});
        QByteArray errors;
        QTRY_VERIFY_WITH_TIMEOUT((errors += program.readAllStandardError())
                                     .contains("ravel-host: The file that identifies"),
                                 timeout);
        program.terminate();
        QVERIFY(program.waitForFinished(timeout));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
    }

    void worldOpensAndASignalClosesIt()
    {
        QTemporaryDir world;
        QCOMPARE(QProcess::execute(QStringLiteral("cp"),
                                   {QStringLiteral("-a"), QStringLiteral(RAVEL_DEMO_WORLD "/root"),
                                    world.path()}),
                 0);

        QProcess program;
        program.start(QStringLiteral(RAVEL_HOST),
                      {QStringLiteral("--root=") + world.path() + QLatin1String("/root")});
        const QString log = world.path()
            + (getuid() == 0 ? QLatin1String("/root/var/log/Ravel.log")
                             : QLatin1String("/root/tmp/Ravel.log"));
        const auto listed = [&log] {
            QFile file(log);
            return file.open(QIODevice::ReadOnly)
                && file.readAll().count("Descriptor fetch finished") >= 3;
        };
        QTRY_VERIFY_WITH_TIMEOUT(listed(), timeout);
        program.terminate();
        QVERIFY(program.waitForFinished(timeout));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY(
            QFile::exists(world.path() + QLatin1String("/root/.config/Corvane/ravel-host.conf")));
    }
};

QTEST_GUILESS_MAIN(tst_HostProgram)
#include "tst_HostProgram.moc"
