// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/RVOrigin.h"

namespace
{

int impliedPort(const QString &scheme)
{
    if (scheme == QLatin1String("http")) {
        return 80;
    }
    if (scheme == QLatin1String("https")) {
        return 443;
    }
    return scheme == QLatin1String("ftp") ? 21 : -1;
}

} // namespace

QString originOf(const QUrl &url)
{
    if (url.host().isEmpty()) {
        return {};
    }
    // Scheme and host of a QUrl are lower case.
    QUrl origin;
    origin.setScheme(url.scheme());
    origin.setHost(url.host());
    origin.setPort(url.port(impliedPort(url.scheme())));
    return origin.toString();
}

bool isSameOrigin(const QUrl &a, const QUrl &b)
{
    const QString origin = originOf(a);
    return !origin.isEmpty() && origin == originOf(b);
}

bool mayLeadTo(const QUrl &location, const QUrl &link)
{
    const auto isLocal = [](const QUrl &url) {
        return url.scheme().isEmpty() || url.isLocalFile();
    };
    if (isLocal(location) || isLocal(link)) {
        return isLocal(location) && isLocal(link);
    }
    if (link.scheme() == QLatin1String("https")) {
        return true;
    }
    return location.scheme() != QLatin1String("https")
        && (link.scheme() == QLatin1String("http") || link.scheme() == QLatin1String("ftp"));
}
