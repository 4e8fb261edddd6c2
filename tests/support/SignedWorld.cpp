// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/SignedWorld.h"

#include <QCryptographicHash>

const QString SignedWorld::publisher = QStringLiteral("Publisher <publisher@example.org>");
const QString SignedWorld::stranger = QStringLiteral("Stranger <stranger@example.org>");
const QString SignedWorld::id = QStringLiteral("org.example.packages");
const QString SignedWorld::keyring = QStringLiteral("vendor.gpg");

SignedWorld::SignedWorld(SigningKeys *keys)
    : paths(root.paths())
    , m_keys(keys)
{
    FakeRoot::write(paths.keyringDir + QLatin1Char('/') + keyring, keys->keyring({publisher}));
    for (const QByteArray &name : {QByteArray("a"), QByteArray("b")}) {
        add(name + ".deb", "package " + name);
        add(name + ".xml", descriptor(name));
    }
    list.repositoryId = id;
    list.serial = 5;
    list.validUntil = QDateTime::currentDateTimeUtc().addDays(30);
    publish();
}

bool SignedWorld::makeKeys(SigningKeys *keys)
{
    return keys->make(publisher) && keys->make(stranger);
}

QByteArray SignedWorld::descriptor(const QByteArray &name, const QByteArray &more)
{
    return "<update_data><name>" + name
        + "</name><version>1</version><thin_client>all</thin_client>"
          "<architecture>all</architecture>"
        + more + "</update_data>";
}

void SignedWorld::add(const QByteArray &name, const QByteArray &content)
{
    files.insert(name, content);
    list.sums.insert(name, QCryptographicHash::hash(content, QCryptographicHash::Sha256));
}

void SignedWorld::publish()
{
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        serve(file.key(), file.value());
    }
    publishText(list.toText());
}

void SignedWorld::publishText(const QByteArray &text, const QString &by, const QStringList &options)
{
    serve("SHA256SUMS", text);
    serve("SHA256SUMS.gpg", m_keys->sign(text, {by}, options));
}

void SignedWorld::serve(const QByteArray &name, const QByteArray &content)
{
    server.serve(url(name).path(), content);
    if (!m_served.contains(name)) {
        m_served.append(name);
    }
    serveIndex();
}

void SignedWorld::lose(const QByteArray &name)
{
    server.serve(url(name).path(), "not here", 404);
    m_served.removeAll(name);
    serveIndex();
}

void SignedWorld::serveIndex()
{
    QByteArray page = "<html><body>";
    for (const QByteArray &name : qAsConst(m_served)) {
        page += "<a href=\"" + name + "\">" + name + "</a>\n";
    }
    server.serve(QStringLiteral("/r/"), page + "</body></html>", 200,
                 "Content-Type: text/html\r\n");
}

int SignedWorld::requests(const QByteArray &name, const QByteArray &with) const
{
    int count = 0;
    for (const QByteArray &head : server.requests()) {
        count += head.startsWith("GET /r/" + name + ' ') && head.contains(with) ? 1 : 0;
    }
    return count;
}

RVTrustPolicy SignedWorld::policy() const
{
    RVTrustPolicy policy;
    policy.kind = RVTrustPolicy::Signed;
    policy.keyring = keyring;
    policy.repositoryId = id;
    return policy;
}

std::unique_ptr<RVRepository> SignedWorld::repository(const RVTrustPolicy &policy,
                                                      const QUrl &location) const
{
    auto repository =
        std::make_unique<RVRepository>(QStringLiteral("Ravel tests"), QStringLiteral("signed"),
                                       QString(), location.isEmpty() ? url() : location,
                                       QStringLiteral("signed"), SortByName, nullptr, paths);
    repository->setTrustPolicy(policy);
    repository->addFilter(QRegExp(QStringLiteral("\\.deb$")), QRegExp(QStringLiteral("\\.xml$")));
    return repository;
}
