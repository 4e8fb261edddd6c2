// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/BrokenDownload.h"

#include <QNetworkReply>
#include <QTest>

namespace
{

const char beginning[] = "<update_data>";

QByteArray answer(const QByteArray &status, const QByteArray &length)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + length + "\r\n\r\n" + beginning;
}

} // namespace

void BrokenDownload::addRows()
{
    using After = HttpServer::After;
    // What an FTP server answers to which command; what an HTTP server sends without one.
    QTest::addColumn<bool>("isFtp");
    QTest::addColumn<QByteArray>("verb");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<HttpServer::After>("after");
    QTest::addColumn<int>("error");

    const auto http = [](const char *name, const QByteArray &bytes, After after, int error) {
        QTest::newRow(name) << false << QByteArray() << bytes << after << error;
    };
    const QByteArray good = "200 OK";
    http("not found", answer("404 Not Found", "13"), After::Close,
         QNetworkReply::ContentNotFoundError);
    http("server error", answer("500 Internal Server Error", "13"), After::Close,
         QNetworkReply::UnknownContentError);
    http("shorter than announced", answer(good, "1000"), After::Close,
         QNetworkReply::RemoteHostClosedError);
    http("broken off in the middle", answer(good, "1000"), After::Reset,
         QNetworkReply::RemoteHostClosedError);
    http("silent", {}, After::Stay, QNetworkReply::TimeoutError);
    http("silent in the middle", answer(good, "1000"), After::Stay, QNetworkReply::TimeoutError);
    http("2 GiB announced", answer(good, "2147483648"), After::Stay,
         QNetworkReply::ProtocolFailure);

    const auto ftp = [](const char *name, const QByteArray &verb, const QByteArray &line,
                        int error) {
        QTest::newRow(name) << true << verb << line << After::Close << error;
    };
    ftp("ftp, not found", "RETR", "550 No such file\r\n", QNetworkReply::ContentNotFoundError);
    ftp("ftp, shorter than announced", "SIZE", "213 1000\r\n",
        QNetworkReply::RemoteHostClosedError);
    ftp("ftp, silent", "", "", QNetworkReply::TimeoutError);
    ftp("ftp, silent in the middle", "RETR", "150 Here it comes\r\n", QNetworkReply::TimeoutError);
    ftp("ftp, 2 GiB announced", "SIZE", "213 2147483648\r\n", QNetworkReply::ProtocolFailure);
}

BrokenDownload::BrokenDownload()
{
    QFETCH(bool, isFtp);
    QFETCH(QByteArray, verb);
    QFETCH(QByteArray, answer);
    QFETCH(HttpServer::After, after);
    QFETCH(int, error);
    m_isFtp = isFtp;
    m_answer = answer;
    m_after = after;
    m_error = error;
    if (m_isFtp) {
        m_ftp.setFile(beginning);
        m_ftp.answer(verb, answer);
    }
}

QUrl BrokenDownload::serve(const QString &file)
{
    const QString path = QLatin1Char('/') + file;
    if (m_isFtp) {
        return QUrl(
            QStringLiteral("ftp://127.0.0.1:%1%2").arg(QString::number(m_ftp.port()), path));
    }
    m_http.serveRaw(path, m_answer, m_after);
    return m_http.url(path);
}
