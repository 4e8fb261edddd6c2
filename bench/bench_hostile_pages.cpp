// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Pages that are made to keep a parser busy: none may take more than it is allowed, whether it is
// read or refused.
#include "network/HtmlLinks.h"
#include "network/NetworkDirRequestHttp.h"

#include <QFile>

#include <ctime>
#include <malloc.h>

#include "bench/Bench.h"

namespace
{

/// Milliseconds of this thread's own time: others use the machine too.
constexpr double allowedTime = 1000;
/// Beside the page itself.
constexpr double allowedMemory = 96;

double now()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// MiB that the process has, or the most that it had since forgetPeak().
double memory(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    const QByteArray text = status.readAll();
    const int at = text.indexOf(field) + static_cast<int>(qstrlen(field));
    return text.mid(at, text.indexOf("kB", at) - at).trimmed().toDouble() / 1024;
}

void forgetPeak()
{
    malloc_trim(0);
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    if (reset.open(QIODevice::WriteOnly)) {
        reset.write("5");
    }
}

/// `piece` after `before`, as often as it fits or `count` times; each "%" becomes a number.
QByteArray pageOf(const QByteArray &before, const QByteArray &piece, int count)
{
    constexpr auto size = static_cast<int>(NetworkDirRequestHttp::maximumPage);
    QByteArray page = before;
    page.reserve(size + 100);
    for (int i = 0; page.size() < size && (count == 0 || i < count); ++i) {
        page += piece.contains('%') ? QByteArray(piece).replace('%', QByteArray::number(i)) : piece;
    }
    page.truncate(size);
    return page;
}

bool measure(const QByteArray &before, const char *piece, int count = 0)
{
    const QByteArray page = pageOf(before, piece, count);
    forgetPeak();
    const double resident = memory("VmRSS:");
    const double start = now();
    const auto entries =
        NetworkDirRequestHttp::entriesOf(page, QUrl(QStringLiteral("http://192.0.2.1/")));
    const double took = now() - start;
    const double used = memory("VmHWM:") - resident;
    const bool good = took <= allowedTime && used <= allowedMemory;
    std::printf("%-4s %s%s: %.0f ms, %.0f MiB; allowed: %.0f ms, %.0f MiB; %s\n",
                good ? "ok" : "SLOW", before.left(9).constData(),
                *piece == '\xe4' ? "(no UTF-8)" : QByteArray(piece).left(60).constData(), took,
                used, allowedTime, allowedMemory, entries ? "read" : "refused");
    return good;
}

} // namespace

int main()
{
    bool good = true;
    for (const char *piece : {"<div>",
                              "<b>",
                              "<font>",
                              "<a>",
                              "<table>",
                              "<select>",
                              "<svg>",
                              "<template>",
                              "<br>",
                              "<p>",
                              "<td>",
                              "<!--",
                              "<!-- -->",
                              "<!doctype html>",
                              "<",
                              "</",
                              "&",
                              "&amp;",
                              "&not",
                              "x",
                              "\xe4",
                              "<script>",
                              "<title></t",
                              "<table>x",
                              "<a href=\"javascript:\">x</a>",
                              "<a href=%>x</a>",
                              "<a href=%>",
                              "<body a%>",
                              "<a x1 x2 x3 x4 x5 x6 x7 x8 x9 %>"}) {
        good = measure({}, piece) && good;
    }
    good = measure("<a href=\"", "x") && good;
    good = measure("<x", "x") && good;
    good = measure("<a", " a%", 100000) && good;
    good = measure("<table>", "x<b>%</b>") && good;
    good = measure({}, "<form><div></form>") && good;
    good = measure({}, "<b a b c d e f g h i j k l m n o p q r s t u v w x y z %>") && good;
    // As much as is not refused.
    constexpr int bytes = HtmlLinks::maximumBytes;
    good = measure({}, "<a href=%>", HtmlLinks::maximumTags) && good;
    good = measure({}, "<a href=\"./../../a/../../../pool/main/t/tool/tool_%:1.0-1_all.deb\">",
                   HtmlLinks::maximumTags)
        && good;
    for (const QByteArray &text : {QByteArray("&"), QByteArray("&amp;"), QByteArray("\""),
                                   QByteArray("\xe4"), QByteArray("\xc3\xa4")}) {
        constexpr int size = HtmlLinks::maximumTag;
        const QByteArray tag = "<a href='%" + text.repeated((size - 20) / text.size()) + "'>";
        good = measure({}, tag.constData(), bytes / size) && good;
    }
    QByteArray attributes;
    for (int i = 1; i < HtmlLinks::maximumAttributes; ++i) {
        attributes += " x" + QByteArray::number(i);
    }
    const QByteArray tag = "<a href=%" + attributes + ">";
    good = measure({}, tag.constData(), bytes / (tag.size() + 5)) && good;
    return good ? 0 : 1;
}
