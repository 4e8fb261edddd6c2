// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVTrustPolicy.h"

#include "descriptor/DataXML.h"
#include "repository/RVChecksums.h"
#include "repository/RVKeyringFile.h"

#include <QDomElement>

#include <optional>

namespace
{

/// Unlike other elements, these are never read generously: what is there is there once.
bool read(const QDomElement &repository, const QString &tag, std::optional<QString> *value)
{
    const int count = repository.elementsByTagName(tag).size();
    if (count == 0) {
        return true;
    }
    QString text;
    DataXML().elementsToQString(repository, tag, &text);
    *value = text;
    return count == 1;
}

} // namespace

RVTrustPolicy RVTrustPolicy::parse(const QDomElement &repository)
{
    RVTrustPolicy policy;
    const auto fail = [&policy](const QString &text) {
        policy.fault = {
            RVTrustFault::Definition,
            QStringLiteral("The definition of the section cannot be used: %1").arg(text)};
        return policy;
    };
    std::optional<QString> signedBy;
    std::optional<QString> id;
    std::optional<QString> checksums;
    for (const auto &element : {std::pair{QStringLiteral("signed_by"), &signedBy},
                                std::pair{QStringLiteral("repository_id"), &id},
                                std::pair{QStringLiteral("checksums"), &checksums}}) {
        if (!read(repository, element.first, element.second)) {
            return fail(QStringLiteral("'%1' stands there twice.").arg(element.first));
        }
    }
    policy.kind = signedBy ? Signed : checksums ? Checksums : None;
    if (checksums && *checksums != QLatin1String("required")) {
        return fail(QStringLiteral("'checksums' is not 'required'."));
    }
    if (signedBy && !RVKeyringFile::isName(*signedBy)) {
        return fail(QStringLiteral("'signed_by' is no plain name of a .gpg file."));
    }
    // Without a keyring an id is a misspelt signed_by, and no section is to lose its signature so.
    if (signedBy.has_value() != id.has_value()) {
        return fail(signedBy ? QStringLiteral("'signed_by' needs a 'repository_id'.")
                             : QStringLiteral("'repository_id' needs a 'signed_by'."));
    }
    if (id && !RVChecksums::isRepositoryId(*id)) {
        return fail(QStringLiteral("'repository_id' is not made of letters, digits, '.', '_' and "
                                   "'-'."));
    }
    policy.keyring = signedBy.value_or(QString());
    policy.repositoryId = id.value_or(QString());
    return policy;
}
