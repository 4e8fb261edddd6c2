// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlRefresh.h"

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlDeadline.h"
#include "core/RVUrl.h"
#include "network/XNetworkError.h"
#include "network/XNetworkReply.h"
#include "repository/RVRepository.h"

#include <QEventLoop>

QJsonObject RVCtlRefresh::Failure::toJson() const
{
    QJsonObject object{
        {QStringLiteral("code"), code},
        {QStringLiteral("text"), text},
        {QStringLiteral("url"), RVUrl::shown(url)},
    };
    if (!certificate.isEmpty()) {
        object.insert(QStringLiteral("certificate"), certificate);
    }
    return object;
}

RVCtlRefresh::RVCtlRefresh(RVRepository *repository, RVCtlAccess *access, RVCtlDeadline *deadline)
    : m_repository(repository)
    , m_access(access)
    , m_deadline(deadline)
{
    connect(repository, &RVRepository::networkError, this, &RVCtlRefresh::networkError);
    connect(repository, &RVRepository::refreshDone, this, [this] {
        m_done = true;
    });
    connect(repository, &RVRepository::refreshEnded, this, [this] {
        m_ended = true;
        Q_EMIT ended();
    });
    connect(repository, &RVRepository::sslErrors, this,
            [this](QNetworkReply *reply, const QList<QSslError> &errors) {
                m_access->judge(reply, errors);
            });
    // Nobody can be asked: a request whose login is refused ends as one that has none.
}

RVCtlRefresh::~RVCtlRefresh() = default;

void RVCtlRefresh::run()
{
    if (m_deadline->isOver()) {
        return;
    }
    m_repository->setAuthenticationCredentials(m_access->user(), m_access->password());
    QEventLoop loop;
    connect(this, &RVCtlRefresh::ended, &loop, &QEventLoop::quit);
    connect(m_deadline, &RVCtlDeadline::over, &loop, &QEventLoop::quit);
    m_repository->refresh();
    if (!m_ended && !m_deadline->isOver()) {
        loop.exec();
    }
    m_repository->disconnect(this);
    if (!m_ended) {
        m_repository->cancel();
    }
    const RVTrustFault &fault = m_repository->trustFault();
    if (m_ended && fault.isSet()) {
        m_failure = Failure();
        m_failure.text = fault.text;
        m_failure.url = m_repository->url();
        m_failure.isTrust = true;
    }
    if (m_ended && !m_done && !m_failure.isSet()) {
        m_failure = m_descriptorFailures.isEmpty()
            ? Failure{QNetworkReply::UnknownContentError,
                      QStringLiteral("No descriptor can be fetched."),
                      m_repository->url(),
                      {}}
            : m_descriptorFailures.constLast();
    }
}

void RVCtlRefresh::networkError(const QNetworkReply *reply)
{
    if (!reply) {
        return;
    }
    Failure failure;
    failure.code = qt4Error(reply->error());
    failure.text = reply->errorString();
    failure.url = reply->url();
    failure.certificate = m_access->refusedCertificate(failure.url.host());
    if (qobject_cast<const XNetworkReply *>(reply)) {
        m_failure = failure;
    } else {
        m_descriptorFailures.append(failure);
    }
}
