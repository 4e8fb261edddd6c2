// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/VersionString.h"

#include <QIODevice>
#include <QNetworkReply>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// What one update is, read from a document at url(). Sizes are bytes, -1 for unknown; texts are
/// given for a language code, the empty code being the running language.
class DescriptorBaseClass : public QObject
{
    Q_OBJECT

public:
    explicit DescriptorBaseClass(const QUrl &url, QObject *parent = nullptr);
    ~DescriptorBaseClass() override;

    const QUrl &url() const { return m_url; }

    virtual bool urlIsHandled() const = 0;
    virtual QString name(const QString &lang) const = 0;
    virtual QString title(const QString &lang) const = 0;
    virtual QString contentNotes(const QString &lang) const = 0;
    virtual VersionString version() const = 0;
    virtual QStringList contentFiles() const = 0;
    virtual QStringList baseReleases() const = 0;
    virtual qint64 size() const = 0;
    virtual qint64 unpackedSize() const = 0;
    virtual qint64 installedSize() const = 0;
    virtual QStringList architectureList() const = 0;
    virtual QStringList thinClientList() const = 0;

public Q_SLOTS:
    /// True when the document was understood; the fields are filled either way as far as it went.
    virtual bool read(QIODevice *source) = 0;
    virtual bool read(QNetworkReply *reply) = 0;

protected:
    QUrl m_url;

private:
    Q_DISABLE_COPY_MOVE(DescriptorBaseClass)
};
