// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "archive/ArchiveBaseClass.h"
#include "core/RVPaths.h"
#include "core/RVSentence.h"

#include <QByteArrayList>

class ImageQuestion;

/// A compressed full disk image. The program never downloads it: installing it means asking, then
/// writing a configuration with which the device fetches the image itself at its next start, and
/// rebooting. installStarted() comes only after a yes.
class ArchiveDDImage : public ArchiveBaseClass
{
    Q_OBJECT

public:
    explicit ArchiveDDImage(const QUrl &url, QObject *parent = nullptr, const RVPaths &paths = {});
    ~ArchiveDDImage() override;

    bool urlIsHandled() const override { return m_urlHandled; }
    bool useExtract() const override { return false; }
    /// Throws NotExtractable.
    bool extract(QIODevice *source) const override;
    void install(QProcess *proc) override;
    /// The proxy goes into the configuration; a port of 0 or less means no proxy.
    void setProxy(const QString &host, int port) override;
    InstallCommand installCommand() const override;
    /// Not owned. Without one nobody can say yes, so every install() counts as aborted.
    void setImageQuestion(ImageQuestion *question) { m_question = question; }
    /// Reads back what install() has the script write, once that has ended well: what the device's
    /// next start would miss. Empty when both files hold all of it.
    RVSentence orderFault() const;

private:
    Q_DISABLE_COPY_MOVE(ArchiveDDImage)

    QString fileName() const;
    QString deployDir() const;
    QString autoUpdateDir() const;
    /// Empty without a proxy.
    QByteArrayList proxyLines() const;
    /// The lines of the configuration.
    QByteArrayList configuration() const;
    QByteArray script() const;

    const RVPaths m_paths;
    bool m_urlHandled;
    ImageQuestion *m_question = nullptr;
};
