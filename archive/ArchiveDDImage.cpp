// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveDDImage.h"

#include "archive/ImageQuestion.h"
#include "archive/InstallScript.h"
#include "core/RVLogger.h"
#include "core/RVRegularFile.h"
#include "core/RVUrl.h"

#include <QCoreApplication>
#include <QPointer>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>

namespace
{

/// A line of the script's here-document, in which the shell still expands.
QByteArray inHereDocument(const QByteArray &line)
{
    QByteArray escaped;
    for (const char c : line) {
        if (c == '\\' || c == '$' || c == '`') {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

/// A text between the script's single quotes.
QByteArray inQuotes(const QString &text)
{
    return text.toUtf8().replace('\'', "'\\''");
}

/// A path as one word of the script; the device's own paths need no quotes.
QByteArray word(const QString &path)
{
    static const QRegularExpression harmless(QStringLiteral("\\A[A-Za-z0-9/._-]+\\z"));
    return harmless.match(path).hasMatch() ? path.toUtf8() : '\'' + inQuotes(path) + '\'';
}

/// A host in front of a port, where an IPv6 address needs its brackets.
QString hostBeforePort(const QString &host)
{
    return host.contains(QLatin1Char(':')) && !host.startsWith(QLatin1Char('['))
        ? QLatin1Char('[') + host + QLatin1Char(']')
        : host;
}

/// Why a file is not the one that was written; empty when it is.
RVSentence difference(const QString &path, const QByteArray &written)
{
    RVRegularFile gate(path);
    const std::unique_ptr<QFile> file = gate.take();
    if (!file) {
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "%1 cannot be read back: %2"),
                          {path, gate.text()});
    }
    return file->read(written.size() + 1) == written
        ? RVSentence()
        : RVSentence(QT_TRANSLATE_NOOP("RVSentence", "%1 does not hold what was written to it."),
                     {path});
}

bool isHost(const QString &text)
{
    QUrl url;
    url.setHost(text);
    return !url.host().isEmpty();
}

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control;
    });
}

} // namespace

ArchiveDDImage::ArchiveDDImage(const QUrl &url, QObject *parent, const RVPaths &paths)
    : ArchiveBaseClass(url, parent)
    , m_paths(paths)
    , m_urlHandled(!url.isEmpty()
                   && url.path().endsWith(QLatin1String(".dd.gz"), Qt::CaseInsensitive))
{
}

ArchiveDDImage::~ArchiveDDImage() = default;

bool ArchiveDDImage::extract(QIODevice *source) const
{
    Q_UNUSED(source)
    throw NotExtractable;
}

void ArchiveDDImage::install(QProcess *proc)
{
    RVLogger().log(5, "Preparing for image installation of '%s'",
                   RVLogger::oneLine(m_url).constData());
    const InstallCommand command = installCommand();
    if (command.program.isEmpty()) {
        failInstallation(proc, QStringLiteral("The image's file name holds a control character"),
                         m_paths);
        return;
    }
    // The question runs an event loop, in which the section and its process may go away.
    const QPointer<QProcess> process(proc);
    const bool confirmed = m_question && m_question->confirmImageInstall();
    if (!process) {
        return;
    }
    if (!confirmed) {
        RVLogger().log(5, "Image installation aborted by user.");
        Q_EMIT installDeclined();
        proc->start(m_paths.trueTool, QStringList());
        return;
    }
    Q_EMIT installStarted();
    if (!writeInstallScript(command.script)) {
        failInstallation(
            proc, QStringLiteral("Could not write ./RVinstall.sh: %1").arg(qt_error_string(errno)),
            m_paths);
        return;
    }
    proc->start(command.program, command.arguments);
}

void ArchiveDDImage::setProxy(const QString &host, int port)
{
    m_proxyHost = host;
    m_proxyPort = port;
}

InstallCommand ArchiveDDImage::installCommand() const
{
    if (hasControlCharacter(fileName())) {
        return {};
    }
    return {QStringLiteral("bash"), {QStringLiteral("./RVinstall.sh")}, script()};
}

QString ArchiveDDImage::fileName() const
{
    return RVUrl::fileName(m_url);
}

QByteArrayList ArchiveDDImage::proxyLines() const
{
    if (m_proxyHost.isEmpty() || m_proxyPort <= 0) {
        return {};
    }
    if (!isHost(m_proxyHost)) {
        RVLogger().log(4, "The proxy '%s' is no host name and is left out",
                       qUtf8Printable(m_proxyHost));
        return {};
    }
    const bool isFtp = m_url.scheme().compare(QLatin1String("ftp"), Qt::CaseInsensitive) == 0;
    return {QByteArray("remote-deploy.proxy=") + (isFtp ? "ftp://" : "")
            + hostBeforePort(m_proxyHost).toUtf8() + ':' + QByteArray::number(m_proxyPort)};
}

QString ArchiveDDImage::deployDir() const
{
    return m_paths.writableDir + QStringLiteral("/CV");
}

QString ArchiveDDImage::autoUpdateDir() const
{
    return (m_paths.isEtcReadOnly() ? m_paths.writableDir : m_paths.etcDir)
        + QStringLiteral("/auto-update");
}

QByteArrayList ArchiveDDImage::configuration() const
{
    const QByteArray port = m_url.port() >= 0 ? ':' + QByteArray::number(m_url.port()) : "";
    return QByteArrayList{
               "[General]",
               "autostart=remote-deploy",
               "remote-deploy.proto=" + m_url.scheme().toUtf8(),
               "remote-deploy.host=" + hostBeforePort(m_url.host(QUrl::FullyEncoded)).toUtf8()
                   + port,
               "remote-deploy.user=" + m_url.userName(QUrl::FullyEncoded).toUtf8(),
               "remote-deploy.pass=" + m_url.password(QUrl::FullyEncoded).toUtf8(),
               "remote-deploy.path=" + m_url.path(QUrl::FullyEncoded).toUtf8(),
           }
    + proxyLines();
}

RVSentence ArchiveDDImage::orderFault() const
{
    const RVSentence fault = difference(deployDir() + QStringLiteral("/Snapstow.conf"),
                                        configuration().join('\n') + '\n');
    return fault.isEmpty()
        ? difference(autoUpdateDir() + QStringLiteral("/new_image"), fileName().toUtf8() + '\n')
        : fault;
}

QByteArray ArchiveDDImage::script() const
{
    // Concatenated: a value that looks like a placeholder stays what it is.
    const QByteArrayList start{
        "#!/bin/bash",
        // Until the device restarts, what was there before lies beside what is written, and comes
        // back whenever this ends early: half an order, or one whose restart failed, would be
        // carried out by any later restart.
        "changed=()",
        "put_aside() {",
        "    rm -f \"$1.ravel\" || exit 1",
        "    if [ -e \"$1\" ] || [ -L \"$1\" ]; then",
        "        mv \"$1\" \"$1.ravel\" || exit 1",
        "    fi",
        "    changed+=(\"$1\")",
        "}",
        "put_back() {",
        "    for file in \"${changed[@]}\"; do",
        "        mv -f \"$file.ravel\" \"$file\" 2>/dev/null || rm -f \"$file\"",
        "    done",
        "}",
        "trap put_back EXIT",
        "mkdir -p " + word(deployDir()),
        "if ! cd " + word(deployDir()) + "; then",
        "    echo 'Could not mkdir " + inQuotes(deployDir()) + "!' >&2",
        "    exit 1",
        "fi",
        "put_aside \"$PWD/Snapstow.conf\"",
        // It holds a password.
        "install -m 600 /dev/null Snapstow.conf || exit 1",
        "cat >Snapstow.conf <<EOF",
    };
    const QByteArrayList end{
        "EOF",
        "[ $? -eq 0 ] || exit 1",
        "mkdir -p " + word(autoUpdateDir()),
        "if ! cd " + word(autoUpdateDir()) + "; then",
        "  echo 'Could not mkdir " + inQuotes(autoUpdateDir()) + "' >&2",
        "  exit 1",
        "fi",
        "put_aside \"$PWD/new_image\"",
        "echo '" + inQuotes(fileName()) + "' >new_image",
        // Some file systems tell of a full disk no earlier.
        "[ $? -eq 0 ] && sync \"${changed[@]}\" || exit 1",
        "cd /",
        // The end of the system may reach this script before the restart's: then nothing is put
        // back.
        "trap - EXIT",
        word(m_paths.rebootTool),
        "status=$?",
        "if [ $status -ne 0 ]; then",
        "    put_back",
        "    echo 'The restart failed.' >&2",
        "    exit $status",
        "fi",
        "rm -f \"${changed[@]/%/.ravel}\"",
    };
    return (start + QByteArrayList{inHereDocument(configuration().join('\n'))} + end).join('\n')
        + '\n';
}
