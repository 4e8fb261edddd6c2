// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlText.h"
#include "core/RVLogger.h"
#include "repository/RVProxySettings.h"

#include <QJsonArray>
#include <QUrl>

namespace
{

constexpr int highestPort = 65535;
const QString none = QStringLiteral("none");
const QString all = QStringLiteral("ALL");

using Proxy = RVProxySettings::Proxy;

QString toText(const Proxy &proxy)
{
    if (!proxy.isSet()) {
        return none;
    }
    return (proxy.host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2")
                                                  : QStringLiteral("%1:%2"))
        .arg(proxy.host)
        .arg(proxy.port);
}

QString toText(const RVProxySettings &settings)
{
    QVector<QStringList> rows;
    for (int type = 0; type < RVProxySettings::typeCount; ++type) {
        rows.append({RVProxySettings::typeNames().at(type),
                     toText(settings.effective(static_cast<RVProxySettings::Type>(type)))});
    }
    return RVCtlText::table({QStringLiteral("TYPE"), QStringLiteral("PROXY")}, rows);
}

QJsonValue toJson(const Proxy &proxy)
{
    if (!proxy.isSet()) {
        return {};
    }
    return QJsonObject{{QStringLiteral("server"), proxy.host},
                       {QStringLiteral("port"), proxy.port}};
}

QJsonObject toJson(const RVProxySettings &settings)
{
    QJsonArray proxies;
    for (int type = 0; type < RVProxySettings::typeCount; ++type) {
        proxies.append(QJsonObject{
            {QStringLiteral("type"), RVProxySettings::typeNames().at(type)},
            {QStringLiteral("stored"), toJson(settings.proxies[static_cast<std::size_t>(type)])},
            {QStringLiteral("used"),
             toJson(settings.effective(static_cast<RVProxySettings::Type>(type)))},
        });
    }
    return {
        {QStringLiteral("style"),
         settings.style == RVProxySettings::Manual ? QStringLiteral("manual") : none},
        {QStringLiteral("useForAll"), settings.useForAll},
        {QStringLiteral("proxies"), proxies},
    };
}

/// HOST:PORT, an IPv6 address in brackets, or "none".
bool parse(const QString &text, Proxy *proxy)
{
    if (text == none) {
        *proxy = {};
        return true;
    }
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    QString host = text.left(colon);
    bool isNumber = false;
    const uint port = text.midRef(colon + 1).toUInt(&isNumber);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']'))) {
        host = host.mid(1, host.size() - 2);
    } else if (host.contains(QLatin1Char(':'))) {
        return false;
    }
    QUrl url;
    url.setHost(host);
    if (colon < 0 || !isNumber || port < 1 || port > highestPort || url.host().isEmpty()) {
        return false;
    }
    *proxy = {host, static_cast<int>(port)};
    return true;
}

/// The proxies that are used, each in its own row.
void spread(RVProxySettings *settings)
{
    const RVProxySettings before = *settings;
    settings->useForAll = false;
    settings->style = RVProxySettings::Manual;
    for (int type = 0; type < RVProxySettings::typeCount; ++type) {
        settings->proxies[static_cast<std::size_t>(type)] =
            before.effective(static_cast<RVProxySettings::Type>(type));
    }
}

/// What the other types use stays as it is.
void setOne(RVProxySettings *settings, int type, const Proxy &proxy)
{
    spread(settings);
    settings->proxies[static_cast<std::size_t>(type)] = proxy;
}

void setAll(RVProxySettings *settings, const Proxy &proxy)
{
    settings->style = RVProxySettings::Manual;
    settings->useForAll = true;
    settings->proxies[RVProxySettings::Http] = proxy;
}

/// The error, or empty.
QString apply(const QStringList &arguments, RVProxySettings *settings)
{
    if (arguments.size() == 1) {
        if (arguments.constFirst() != none) {
            return QStringLiteral("'%1' needs HOST:PORT or none.").arg(arguments.constFirst());
        }
        settings->style = RVProxySettings::None;
        return {};
    }
    Proxy proxy;
    const QString name = arguments.constFirst().toUpper();
    const int type = RVProxySettings::typeNames().indexOf(name);
    if (type < 0 && name != all) {
        return QStringLiteral("'%1' is not a type of proxy; use http, https, ftp or all.")
            .arg(arguments.constFirst());
    }
    if (!parse(arguments.at(1), &proxy)) {
        return QStringLiteral("'%1' is not a proxy; use HOST:PORT or none.").arg(arguments.at(1));
    }
    if (name != all) {
        setOne(settings, type, proxy);
    } else if (proxy.isSet()) {
        setAll(settings, proxy);
    } else {
        settings->style = RVProxySettings::None;
    }
    return {};
}

} // namespace

RVCtlResult RVCtlCommands::proxy(const RVCtlCall &call)
{
    RVProxySettings settings = RVProxySettings::read();
    if (!call.arguments.isEmpty()) {
        const QString error = apply(call.arguments, &settings);
        if (!error.isEmpty()) {
            return RVCtlResult::failed(RVCtlExit::Usage, error);
        }
        if (!settings.write()) {
            return RVCtlResult::failed(RVCtlExit::Failed,
                                       QStringLiteral("The settings cannot be stored."));
        }
        for (int type = 0; type < RVProxySettings::typeCount; ++type) {
            const Proxy proxy = settings.effective(static_cast<RVProxySettings::Type>(type));
            RVLogger().log(5, "Proxy for %s is %s:%d",
                           qUtf8Printable(RVProxySettings::typeNames().at(type)),
                           qUtf8Printable(proxy.host), proxy.port);
        }
    }
    return {RVCtlExit::Done, toText(settings), toJson(settings), {}};
}
