// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVRegularFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace
{

RVRegularFile::Fault faultOf(int reason)
{
    return reason == ENOENT || reason == ENOTDIR || reason == ENAMETOOLONG || reason == ELOOP
        ? RVRegularFile::Fault::NotFound
        : RVRegularFile::Fault::Denied;
}

RVRegularFile::Fault faultOf(const struct stat &info, const struct statfs &system)
{
    // Their files look regular.
    using Magic = decltype(system.f_type);
    constexpr std::array<unsigned, 8> madeUp = {
        PROC_SUPER_MAGIC,   SYSFS_MAGIC,         DEBUGFS_MAGIC,    TRACEFS_MAGIC,
        CGROUP_SUPER_MAGIC, CGROUP2_SUPER_MAGIC, SECURITYFS_MAGIC, BPF_FS_MAGIC};
    if (S_ISDIR(info.st_mode)) {
        return RVRegularFile::Fault::Directory;
    }
    const bool isMadeUp = std::any_of(madeUp.cbegin(), madeUp.cend(), [&](unsigned magic) {
        return static_cast<Magic>(magic) == system.f_type;
    });
    return S_ISREG(info.st_mode) && !isMadeUp ? RVRegularFile::Fault::None
                                              : RVRegularFile::Fault::Special;
}

} // namespace

RVRegularFile::RVRegularFile(const QString &path)
{
    if (path.contains(QChar(0))) {
        // The system would take the name for a shorter one.
        fail(Fault::NotFound, qt_error_string(ENOENT));
        return;
    }
    const QByteArray name = QFile::encodeName(path);
    struct stat info = {};
    struct statfs system = {};
    // Looked at before it is opened, since opening some devices acts on them, and once more on the
    // descriptor, since the name may lead to another file by then.
    if (::stat(name.constData(), &info) != 0 || ::statfs(name.constData(), &system) != 0) {
        fail(faultOf(errno), qt_error_string(errno));
        return;
    }
    m_fault = faultOf(info, system);
    int descriptor = -1;
    if (m_fault == Fault::None) {
        descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (descriptor < 0) {
            fail(faultOf(errno), qt_error_string(errno));
            return;
        }
        if (::fstat(descriptor, &info) != 0 || ::fstatfs(descriptor, &system) != 0) {
            fail(Fault::Denied, qt_error_string(errno));
        } else {
            m_fault = faultOf(info, system);
        }
    }
    if (m_fault == Fault::None) {
        m_file = std::make_unique<QFile>();
        m_file->open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                     QFileDevice::AutoCloseHandle);
        return;
    }
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    if (m_fault == Fault::Directory) {
        m_text = qt_error_string(EISDIR);
    } else if (m_fault == Fault::Special) {
        m_text = QStringLiteral("Not a regular file");
    }
}

void RVRegularFile::fail(Fault fault, const QString &text)
{
    m_fault = fault;
    m_text = text;
}
