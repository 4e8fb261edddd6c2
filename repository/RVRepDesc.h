// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repository/RVTrustPolicy.h"

#include <plume/LocaleString.h>

#include <QObject>
#include <QStringList>
#include <QUrl>

class QDomElement;

/// One repository as its definition file describes it.
class RVRepDesc : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVRepDesc)

public:
    explicit RVRepDesc(QObject *parent = nullptr);
    ~RVRepDesc() override;

    /// Fills the fields from a `repository` element; what is missing stays as it was.
    void parse(QDomElement &repository);
    /// Whether exactly one entry of the section can be chosen.
    bool picksOne() const;

    LocaleString title;
    LocaleString description;
    LocaleString uriDescription;
    QString settingsKey;
    QUrl defaultUri;
    /// Pairs: one descriptor pattern for each archive pattern.
    QStringList archivePatterns;
    QStringList descriptorPatterns;
    QString selectorType;
    QString icon;
    bool filterSps = false;
    RVTrustPolicy trust;
};
