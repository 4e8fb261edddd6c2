// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVProxySettings.h"

#include "core/RVSettings.h"

#include <QSettings>

namespace
{

const QString group = QStringLiteral("ProxySettings");
const QString styleKey = QStringLiteral("style");
const QString useForAllKey = QStringLiteral("useForAll");
const QString serverKey = QStringLiteral("server_%1");
const QString portKey = QStringLiteral("port_%1");

} // namespace

const QStringList &RVProxySettings::typeNames()
{
    static const QStringList names{QStringLiteral("HTTP"), QStringLiteral("HTTPS"),
                                   QStringLiteral("FTP")};
    return names;
}

RVProxySettings RVProxySettings::read(const QString &organisation, const QString &application)
{
    QSettings settings(organisation, application);
    settings.beginGroup(group);
    RVProxySettings result;
    result.style = settings.value(styleKey, None).toInt();
    result.useForAll = settings.value(useForAllKey, false).toBool();
    for (std::size_t type = 0; type < typeCount; ++type) {
        const QString &name = typeNames().at(static_cast<int>(type));
        bool isNumber = false;
        const int port = settings.value(portKey.arg(name)).toInt(&isNumber);
        result.proxies[type] = {settings.value(serverKey.arg(name)).toString(),
                                isNumber ? port : -1};
    }
    return result;
}

bool RVProxySettings::write(const QString &organisation, const QString &application) const
{
    QSettings settings(organisation, application);
    RVSettings::makePrivate(settings.fileName());
    settings.beginGroup(group);
    settings.setValue(styleKey, style);
    settings.setValue(useForAllKey, useForAll);
    for (std::size_t type = 0; type < typeCount; ++type) {
        const QString &name = typeNames().at(static_cast<int>(type));
        const Proxy &proxy = proxies[type];
        if (proxy.host.isEmpty() && proxy.port < 0) {
            settings.remove(serverKey.arg(name));
            settings.remove(portKey.arg(name));
        } else {
            settings.setValue(serverKey.arg(name), proxy.host);
            settings.setValue(portKey.arg(name), proxy.port);
        }
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}

RVProxySettings::Proxy RVProxySettings::effective(Type type) const
{
    if (style != Manual) {
        return {};
    }
    return proxies[useForAll ? Http : type];
}

RVProxySettings::Proxy RVProxySettings::forScheme(const QString &scheme) const
{
    const int type = typeNames().indexOf(scheme.toUpper());
    return type < 0 ? Proxy() : effective(static_cast<Type>(type));
}
