// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVProxy.h"
#include "core/RVSettings.h"

#include <QString>
#include <QStringList>

#include <array>

/// The network proxies as they are stored: one for each type of connection, or one for all. A
/// value; read() and write() go to the program's settings.
struct RVProxySettings {
    enum Type {
        Http = 0,
        Https = 1,
        Ftp = 2,
    };
    static constexpr int typeCount = 3;
    enum Style {
        None = 0,
        /// 1 and 3 are reserved; whoever reads them uses no proxy.
        Manual = 2,
    };
    struct Proxy {
        QString host;
        int port = -1;

        bool isSet() const { return isProxy(host, port); }
        bool operator==(const Proxy &other) const
        {
            return host == other.host && port == other.port;
        }
    };

    /// "HTTP", "HTTPS", "FTP": how the settings and the options page call the types.
    static const QStringList &typeNames();

    static RVProxySettings
    read(const QString &organisation = QLatin1String(RVSettings::organisation),
         const QString &application = QLatin1String(RVSettings::application));
    /// False when the settings could not be stored.
    bool write(const QString &organisation = QLatin1String(RVSettings::organisation),
               const QString &application = QLatin1String(RVSettings::application)) const;

    /// What connections of that type use.
    Proxy effective(Type type) const;
    /// The same by a URL's scheme; one without a type uses none.
    Proxy forScheme(const QString &scheme) const;

    int style = None;
    bool useForAll = false;
    /// As stored, also where the style says that they are not used.
    std::array<Proxy, typeCount> proxies;
};
