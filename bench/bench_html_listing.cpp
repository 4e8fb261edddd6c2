// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Reading an index page of 100,000 links as a browser would, against a regular expression that
// looks for nothing but href="…" and makes the same URLs of what it finds.
#include "network/NetworkDirRequestHttp.h"
#include "network/XNetworkReply.h"

#include <QRegularExpression>
#include <QSet>

#include <cstring>
#include <ctime>

#include "bench/Bench.h"

namespace
{

/// A transfer that is finished.
class PageReply : public QNetworkReply
{
public:
    PageReply(const QUrl &url, const QByteArray &page)
        : m_page(page)
    {
        setUrl(url);
        setFinished(true);
        open(QIODevice::ReadOnly);
    }
    void abort() override { }
    qint64 bytesAvailable() const override
    {
        return m_page.size() - m_at + QNetworkReply::bytesAvailable();
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const int size = static_cast<int>(qMin<qint64>(maxSize, m_page.size() - m_at));
        std::memcpy(data, m_page.constData() + m_at, static_cast<size_t>(size));
        m_at += size;
        return size;
    }

private:
    const QByteArray m_page;
    int m_at = 0;
};

/// The quickest of five runs, in milliseconds of this thread's own time: what else the machine does
/// would drown the difference.
template<typename Function>
double quickest(Function &&function)
{
    const auto now = [] {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    };
    double best = 0;
    for (int i = 0; i < 5; ++i) {
        const double start = now();
        function();
        best = i == 0 ? now() - start : std::min(best, now() - start);
    }
    return best;
}

int scan(const QString &base, const QByteArray &page)
{
    static const QRegularExpression href(QStringLiteral("href=\"([^\"]*)\""));
    QSet<QString> names;
    auto match = href.globalMatch(QString::fromUtf8(page));
    while (match.hasNext()) {
        names.insert(QUrl(base + match.next().captured(1)).toString());
    }
    return names.size();
}

bool measure(const char *what, const QByteArray &page, int links, double limit, double factor)
{
    const QString base = QStringLiteral("http://192.0.2.1/updates/");
    const QUrl url(base);
    int found = 0;
    const double ours = quickest([&] {
        PageReply reply(url, page);
        XNetworkReply out;
        NetworkDirRequestHttp(url).parseHtmlDirectory(&reply, &out);
        found = out.entries.size();
    });
    int scanned = 0;
    const double peer = quickest([&] {
        scanned = scan(base, page);
    });
    if (found != links || scanned != links) {
        std::printf("FAIL %s: %d links, %d by the expression\n", what, found, scanned);
        return false;
    }
    const bool isQuick = report(what, ours, "allowed", limit, 1.0);
    return report(what, ours, "a regular expression", peer, factor) && isQuick;
}

} // namespace

int main()
{
    constexpr int links = 100000;
    QByteArray list("<html><body><h1>Index of /</h1><hr><pre>");
    QByteArray table("<html><body><table>");
    for (int i = 0; i < links; ++i) {
        const QByteArray name = "tool-" + QByteArray::number(i) + "_1%3A2.0-1_all.deb";
        const QByteArray link = "<a href=\"" + name + "\">" + name + "</a>";
        list += link + "   20-Nov-2026 20:51                  1000\n";
        table += "<tr><td valign=\"top\">&nbsp;</td><td>" + link
            + "</td><td align=\"right\">2026-11-20 20:51  </td><td align=\"right\">  1 </td>"
              "<td>&nbsp;</td></tr>\n";
    }
    const bool good = measure("100,000 links in a list", list, links, 500, 0.3);
    return measure("100,000 links in a table", table, links, 600, 0.3) && good ? 0 : 1;
}
