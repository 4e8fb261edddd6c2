// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/DescriptorGeneric.h"

#include "core/RVLogger.h"
#include "descriptor/DescriptorDeb.h"
#include "descriptor/DescriptorXML.h"
#include "descriptor/DescriptorXar.h"

DescriptorGeneric::DescriptorGeneric(const QUrl &url, QObject *parent)
    : DescriptorBaseClass(url, parent)
{
    matchBackend(url);
}

DescriptorGeneric::DescriptorGeneric(const DescriptorGeneric &other)
    : DescriptorBaseClass(other.m_url)
    , m_backend(other.m_backend)
    , m_understood(other.m_understood)
{
}

DescriptorGeneric &DescriptorGeneric::operator=(const DescriptorGeneric &other)
{
    m_url = other.m_url;
    m_backend = other.m_backend;
    m_understood = other.m_understood;
    return *this;
}

DescriptorGeneric::~DescriptorGeneric() = default;

bool DescriptorGeneric::matchBackend(const QUrl &url)
{
    DescriptorBaseClass *backend = nullptr;
    if (DescriptorXML(url).urlIsHandled()) {
        backend = new DescriptorXML(url);
    } else if (DescriptorXar(url).urlIsHandled()) {
        backend = new DescriptorXar(url);
    } else if (DescriptorDeb(url).urlIsHandled()) {
        backend = new DescriptorDeb(url);
    }
    if (!backend) {
        RVLogger().log(4, "Found no backend for archive descriptor:\n  %s",
                       RVLogger::oneLine(url).constData());
        return false;
    }
    m_backend.reset(backend);
    return true;
}

bool DescriptorGeneric::urlIsHandled() const
{
    return !m_backend.isNull();
}

QString DescriptorGeneric::name(const QString &lang) const
{
    return m_backend ? m_backend->name(lang) : QString();
}

QString DescriptorGeneric::title(const QString &lang) const
{
    return m_backend ? m_backend->title(lang) : QString();
}

QString DescriptorGeneric::contentNotes(const QString &lang) const
{
    return m_backend ? m_backend->contentNotes(lang) : QString();
}

VersionString DescriptorGeneric::version() const
{
    return m_backend ? m_backend->version() : VersionString();
}

QStringList DescriptorGeneric::contentFiles() const
{
    return m_backend ? m_backend->contentFiles() : QStringList();
}

QStringList DescriptorGeneric::baseReleases() const
{
    return m_backend ? m_backend->baseReleases() : QStringList();
}

qint64 DescriptorGeneric::size() const
{
    return m_backend ? m_backend->size() : -1;
}

qint64 DescriptorGeneric::unpackedSize() const
{
    return m_backend ? m_backend->unpackedSize() : -1;
}

qint64 DescriptorGeneric::installedSize() const
{
    return m_backend ? m_backend->installedSize() : -1;
}

QStringList DescriptorGeneric::architectureList() const
{
    return m_backend ? m_backend->architectureList() : QStringList(QStringLiteral("all"));
}

QStringList DescriptorGeneric::thinClientList() const
{
    return m_backend ? m_backend->thinClientList() : QStringList(QStringLiteral("all"));
}

bool DescriptorGeneric::read(QIODevice *source)
{
    const bool understood = m_backend && m_backend->read(source);
    m_understood = understood;
    Q_EMIT readFinished();
    return understood;
}

bool DescriptorGeneric::read(QNetworkReply *reply)
{
    return read(static_cast<QIODevice *>(reply));
}
