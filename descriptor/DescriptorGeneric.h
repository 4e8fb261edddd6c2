// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "descriptor/DescriptorBaseClass.h"

#include <QSharedPointer>

/// The descriptor that the rest of the system uses: it chooses the backend for its URL once and
/// forwards to it, or answers with fixed defaults when none reads that kind of file.
/// Its final signal after each read is readFinished().
class DescriptorGeneric : public DescriptorBaseClass
{
    Q_OBJECT

public:
    explicit DescriptorGeneric(const QUrl &url, QObject *parent = nullptr);
    /// Copies share the backend.
    DescriptorGeneric(const DescriptorGeneric &other);
    DescriptorGeneric &operator=(const DescriptorGeneric &other);
    ~DescriptorGeneric() override;

    bool urlIsHandled() const override;
    /// True once a read() through this object has understood what it was given.
    bool isUnderstood() const { return m_understood; }
    QString name(const QString &lang) const override;
    QString title(const QString &lang) const override;
    QString contentNotes(const QString &lang) const override;
    VersionString version() const override;
    QStringList contentFiles() const override;
    QStringList baseReleases() const override;
    qint64 size() const override;
    qint64 unpackedSize() const override;
    qint64 installedSize() const override;
    QStringList architectureList() const override;
    QStringList thinClientList() const override;

public Q_SLOTS:
    bool read(QIODevice *source) override;
    bool read(QNetworkReply *reply) override;

Q_SIGNALS:
    /// After every read, whether or not it succeeded and whether or not there is a backend.
    void readFinished();

private:
    bool matchBackend(const QUrl &url);

    QSharedPointer<DescriptorBaseClass> m_backend;
    bool m_understood = false;
};
