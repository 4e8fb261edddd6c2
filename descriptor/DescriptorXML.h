// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorBaseClass.h"

#include <plume/LocaleString.h>

class DataXML;
class QDomElement;

/// The descriptor that is an XML document of its own: a flat one with the root "update_data", or
/// one with the root "xar" and the description in its "subdoc" elements. A second read() appends to
/// the lists again. Read failures show only in the result: nothing is logged here.
class DescriptorXML : public DescriptorBaseClass
{
    Q_OBJECT

public:
    explicit DescriptorXML(const QUrl &url, QObject *parent = nullptr);
    ~DescriptorXML() override;

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

    /// Always true: nothing is required of the document.
    bool readUpdateStyleXML(DataXML &doc);
    /// True when the root has at least one child "subdoc".
    bool readXarStyleXML(DataXML &doc);

public Q_SLOTS:
    bool read(QIODevice *source) override;
    bool read(QNetworkReply *reply) override;

private:
    Q_DISABLE_COPY_MOVE(DescriptorXML)

    void readVersion(const DataXML &doc, const QDomElement &elem);

    bool m_urlHandled;
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
};
