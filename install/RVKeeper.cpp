// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVKeeper.h"

#include "core/RVLogger.h"
#include "core/RVOwnFolder.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <sys/file.h>
#include <unistd.h>

namespace
{

void closeFile(int *file)
{
    if (*file >= 0) {
        ::close(*file);
        *file = -1;
    }
}

void noteMissing(const char *what, const QString &folder)
{
    const QByteArray reason = qt_error_string(errno).toUtf8();
    RVLogger().log(4, "%s cannot be kept in '%s': %s", what, RVLogger::oneLine(folder).constData(),
                   reason.constData());
}

} // namespace

RVKeeper::RVKeeper(const RVPaths &paths)
    : m_paths(paths)
{
}

RVKeeper::~RVKeeper()
{
    release();
}

QString RVKeeper::recordFolder(const RVPaths &paths)
{
    return paths.runFolder();
}

QString RVKeeper::outputFolder(const RVPaths &paths)
{
    return paths.stateFolder() + QStringLiteral("/output");
}

void RVKeeper::prepare(bool isMerged, const QVector<int> &held)
{
    release();
    m_isMerged = isMerged;
    m_files = {};
    std::copy_n(held.cbegin(), qMin(held.size(), int(m_files.held.size())), m_files.held.begin());
    m_record = {};
    m_record.started = QDateTime::currentDateTimeUtc();
    // In the order of their names the runs are in the order of their start.
    m_id = m_record.started.toString(QStringLiteral("yyyyMMdd-hhmmss-zzz")) + QLatin1Char('-')
        + QString::number(::getpid());
    openOutput();
    openRecord();
}

void RVKeeper::openOutput()
{
    const QString path = outputFolder(m_paths);
    const RVOwnFolder folder(path);
    const QString name = m_id + outputSuffix;
    m_files.output = folder.isOpen() ? folder.openFile(QFile::encodeName(name)) : -1;
    if (m_files.output < 0) {
        noteMissing("The installer's output", path);
        return;
    }
    m_record.outputFile = path + QLatin1Char('/') + name;
    const QStringList names = QDir(path).entryList({QLatin1Char('*') + outputSuffix},
                                                   QDir::Files | QDir::Hidden, QDir::Name);
    for (int i = 0; i < names.size() - keptOutputs; ++i) {
        folder.removeFile(QFile::encodeName(names.at(i)));
    }
}

void RVKeeper::openRecord()
{
    const QString path = recordFolder(m_paths);
    const RVOwnFolder folder(path);
    m_files.record = folder.isOpen() ? folder.openFile(QFile::encodeName(m_id + recordSuffix)) : -1;
    const QByteArray text = m_record.toText();
    // The lock is the open file's: the keeper, which inherits it, holds it without a gap.
    if (m_files.record < 0 || ::flock(m_files.record, LOCK_EX) != 0
        || ::write(m_files.record, text.constData(), size_t(text.size())) != text.size()) {
        noteMissing("The installer's result", path);
        closeFile(&m_files.record);
    }
}

void RVKeeper::keep() const
{
    RVKeeperLoop::fork(m_isMerged, m_files);
}

void RVKeeper::release()
{
    closeFile(&m_files.record);
    closeFile(&m_files.output);
    m_files = {};
}

void RVKeeper::forget()
{
    release();
    if (!m_id.isEmpty()) {
        RVOwnFolder(recordFolder(m_paths)).removeFile(QFile::encodeName(m_id + recordSuffix));
    }
}
