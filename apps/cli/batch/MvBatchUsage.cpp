// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchUsage.h"

#include <QByteArray>
#include <QFile>

#include <cmath>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

double rounded(double value, double steps)
{
    return std::round(value * steps) / steps;
}

/// A line "VmHWM:   1234 kB" of the process's status, in MiB; 0 where there is none.
double statusValue(const QByteArray &status, const QByteArray &name)
{
    const qsizetype at = status.indexOf('\n' + name + ':');
    const QByteArray rest = at < 0 ? QByteArray() : status.mid(at + name.size() + 2, 40);
    return rest.trimmed().split(' ').value(0).toDouble() / 1024.0;
}

} // namespace

MvBatchUsage::MvBatchUsage()
    : m_cpuBefore(cpuSeconds())
{
    m_clock.start();
    QFile marks(u"/proc/self/clear_refs"_s);
    if (marks.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        marks.write("5"); // the peak begins anew
}

double MvBatchUsage::cpuSeconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + 1e-6 * double(time.tv_usec); };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

QJsonObject MvBatchUsage::toJson() const
{
    QFile file(u"/proc/self/status"_s);
    const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return {{u"seconds"_s, rounded(double(m_clock.elapsed()) / 1000.0, 1000.0)},
            {u"cpuSeconds"_s, rounded(cpuSeconds() - m_cpuBefore, 1000.0)},
            {u"peakMemory"_s, rounded(statusValue(status, "VmHWM"), 10.0)},
            {u"memory"_s, rounded(statusValue(status, "VmRSS"), 10.0)}};
}
