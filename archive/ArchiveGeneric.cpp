// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ArchiveGeneric.h"

#include "archive/ArchiveDDImage.h"
#include "archive/ArchiveDeb.h"
#include "archive/ArchiveXar.h"
#include "core/RVLogger.h"

namespace
{

template<class Backend>
QSharedPointer<ArchiveBaseClass> backendFor(const QUrl &url, const RVPaths &paths)
{
    if (!Backend(url, nullptr, paths).urlIsHandled()) {
        return {};
    }
    return QSharedPointer<Backend>::create(url, nullptr, paths);
}

} // namespace

ArchiveGeneric::ArchiveGeneric(const QUrl &url, QObject *parent, const RVPaths &paths)
    : ArchiveBaseClass(url, parent)
{
    matchBackend(url, paths);
}

ArchiveGeneric::ArchiveGeneric(const ArchiveGeneric &other)
    : ArchiveBaseClass(other.m_url, other.parent())
    , m_backend(other.m_backend)
{
}

ArchiveGeneric &ArchiveGeneric::operator=(const ArchiveGeneric &other)
{
    m_backend = other.m_backend;
    return *this;
}

ArchiveGeneric::~ArchiveGeneric() = default;

bool ArchiveGeneric::isHandled(const QUrl &url)
{
    return ArchiveXar(url).urlIsHandled() || ArchiveDeb(url).urlIsHandled()
        || ArchiveDDImage(url).urlIsHandled();
}

bool ArchiveGeneric::urlIsHandled() const
{
    return !m_backend.isNull();
}

bool ArchiveGeneric::useExtract() const
{
    return m_backend && m_backend->useExtract();
}

void ArchiveGeneric::setProxy(const QString &host, int port)
{
    if (m_backend) {
        m_backend->setProxy(host, port);
    }
}

InstallCommand ArchiveGeneric::installCommand() const
{
    return m_backend ? m_backend->installCommand() : InstallCommand();
}

bool ArchiveGeneric::isImage() const
{
    return qobject_cast<const ArchiveDDImage *>(m_backend.data()) != nullptr;
}

RVSentence ArchiveGeneric::orderFault() const
{
    const auto *image = qobject_cast<const ArchiveDDImage *>(m_backend.data());
    return image ? image->orderFault() : RVSentence();
}

void ArchiveGeneric::setImageQuestion(ImageQuestion *question)
{
    if (auto *image = qobject_cast<ArchiveDDImage *>(m_backend.data())) {
        image->setImageQuestion(question);
    }
}

bool ArchiveGeneric::extract(QIODevice *source) const
{
    // What a failed download left is the beginning of an archive at most: an installer that
    // accepted it would install half an update.
    const auto *reply = qobject_cast<const QNetworkReply *>(source);
    const bool complete = !reply || reply->error() == QNetworkReply::NoError;

    const bool extracted = m_backend && complete && m_backend->extract(source);
    Q_EMIT extractFinished();
    return extracted;
}

bool ArchiveGeneric::extract(QNetworkReply *source)
{
    return extract(static_cast<QIODevice *>(source));
}

void ArchiveGeneric::install(QProcess *proc)
{
    if (!m_backend) {
        return;
    }
    // A backend may ask the user and so run an event loop in which this front goes away.
    const QSharedPointer<ArchiveBaseClass> backend = m_backend;
    connect(backend.data(), &ArchiveBaseClass::installStarted, this,
            &ArchiveGeneric::relayInstallStarted, Qt::UniqueConnection);
    connect(backend.data(), &ArchiveBaseClass::installDeclined, this,
            &ArchiveBaseClass::installDeclined, Qt::UniqueConnection);
    backend->install(proc);
}

void ArchiveGeneric::installAll(QProcess *proc)
{
    if (auto *pack = qobject_cast<ArchiveXar *>(m_backend.data())) {
        connect(pack, &ArchiveBaseClass::installStarted, this, &ArchiveGeneric::relayInstallStarted,
                Qt::UniqueConnection);
        pack->installAll(proc);
    }
}

InstallCommand ArchiveGeneric::installAllCommand() const
{
    const auto *pack = qobject_cast<const ArchiveXar *>(m_backend.data());
    return pack ? pack->installAllCommand() : InstallCommand();
}

void ArchiveGeneric::relayInstallStarted()
{
    Q_EMIT installStarted();
}

bool ArchiveGeneric::matchBackend(const QUrl &url, const RVPaths &paths)
{
    m_backend = backendFor<ArchiveXar>(url, paths);
    if (!m_backend) {
        m_backend = backendFor<ArchiveDeb>(url, paths);
    }
    if (!m_backend) {
        m_backend = backendFor<ArchiveDDImage>(url, paths);
    }
    if (!m_backend) {
        const QByteArray text = RVLogger::oneLine(url);
        qWarning("Found no backend for archive format:\n  %s", text.constData());
        RVLogger().log(4, "Found no backend for archive format:\n  %s", text.constData());
    }
    return !m_backend.isNull();
}
