// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace
{

int modeOf(const QString &path)
{
    struct stat info = {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

} // namespace

class tst_RVSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesTheFile();
    void closesAFileThatIsThere();

private:
    const QTemporaryDir m_dir;
};

void tst_RVSettings::makesTheFile()
{
    const QString path = m_dir.filePath(QStringLiteral("a/b/new"));
    // Whatever the mask would leave open.
    const mode_t mask = ::umask(0);
    RVSettings::makePrivate(path);
    ::umask(mask);
    QCOMPARE(modeOf(path), 0600);
    QCOMPARE(QFile(path).size(), 0);
}

void tst_RVSettings::closesAFileThatIsThere()
{
    const QString path = m_dir.filePath(QStringLiteral("old"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("kept"), 4);
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    RVSettings::makePrivate(path);
    QCOMPARE(modeOf(path), 0600);
    QCOMPARE(file.size(), 4);
}

QTEST_APPLESS_MAIN(tst_RVSettings)
#include "tst_RVSettings.moc"
