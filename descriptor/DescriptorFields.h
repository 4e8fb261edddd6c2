// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorBaseClass.h"

#include <plume/LocaleString.h>

class DataXML;
class QDomElement;

/// The fields of a descriptor, which every format fills in its own read(): what its backends share.
class DescriptorFields : public DescriptorBaseClass
{
    Q_OBJECT

public:
    ~DescriptorFields() override;

    bool urlIsHandled() const override { return m_urlHandled; }
    QString name(const QString &lang) const override { return m_name.value(lang); }
    QString title(const QString &lang) const override { return m_title.value(lang); }
    QString contentNotes(const QString &lang) const override { return m_notes.value(lang); }
    VersionString version() const override { return m_version; }
    QStringList contentFiles() const override { return m_contentFiles; }
    QStringList baseReleases() const override { return m_baseReleases; }
    qint64 size() const override { return m_size; }
    qint64 unpackedSize() const override { return m_unpackedSize; }
    qint64 installedSize() const override { return m_installedSize; }
    QStringList architectureList() const override { return m_architectureList; }
    QStringList thinClientList() const override { return m_thinClientList; }

public Q_SLOTS:
    bool read(QIODevice *source) override = 0;
    bool read(QNetworkReply *reply) override;

protected:
    /// Handles URLs whose path ends in `suffix`, in any letter case.
    DescriptorFields(const QUrl &url, const QString &suffix, QObject *parent);

    /// Reads a service pack's subdocument, "sp-attrs" or "service-pack-description"; any other is
    /// ignored.
    void readSubdocument(const DataXML &doc, const QDomElement &elem);
    void readVersion(const DataXML &doc, const QDomElement &elem);

    LocaleString m_name;
    LocaleString m_title;
    LocaleString m_notes;
    VersionString m_version;
    QStringList m_contentFiles;
    QStringList m_baseReleases;
    qint64 m_size = -1;
    qint64 m_unpackedSize = -1;
    qint64 m_installedSize = -1;
    QStringList m_architectureList;
    QStringList m_thinClientList;

private:
    Q_DISABLE_COPY_MOVE(DescriptorFields)

    const bool m_urlHandled;
};
