// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/CpuCost.h"

#include <QCryptographicHash>
#include <QtGlobal>

#include <ctime>

namespace
{

double seconds(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    };
    const double start = now();
    work();
    return now() - start;
}

double leastOfThree(const std::function<void()> &work)
{
    const double first = seconds(work);
    return qMin(first, qMin(seconds(work), seconds(work)));
}

double unit()
{
    static const double result = [] {
        const QByteArray mebibyte(1024 * 1024, 'x');
        return leastOfThree([&mebibyte] {
            QCryptographicHash::hash(mebibyte, QCryptographicHash::Sha256);
        });
    }();
    return result;
}

} // namespace

double CpuCost::of(const std::function<void()> &work)
{
    return seconds(work) / unit();
}

bool CpuCost::isLinear(const std::function<void(int size)> &work, int size)
{
    const auto costOf = [&work](int scale) {
        return leastOfThree([&work, scale] {
                   work(scale);
               })
            / unit();
    };
    const double small = qMax(costOf(size), 0.25);
    const double large = costOf(4 * size);
    qInfo("%d costs %.2f, four times as much %.2f", size, small, large);
    return large <= 10 * small;
}
