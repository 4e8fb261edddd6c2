// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorBaseClass.h"

#include <plume/LocaleString.h>

/// The descriptor inside a xar archive: two subdocuments of its table of contents, known by the
/// name of their root element, "sp-attrs" with the sizes and "service-pack-description" with the
/// rest. The archive's members are not looked at.
class DescriptorXar : public DescriptorBaseClass
{
    Q_OBJECT

public:
    explicit DescriptorXar(const QUrl &url, QObject *parent = nullptr);
    ~DescriptorXar() override;

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
    bool read(QIODevice *source) override;
    bool read(QNetworkReply *reply) override;

private:
    Q_DISABLE_COPY_MOVE(DescriptorXar)

    void readSubdocument(const QByteArray &text);

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
