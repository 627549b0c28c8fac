// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvImageDevice.h"

#include <ctime>
#include <limits>

namespace {

/// Computing time of this thread in seconds.
double computingTime()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

} // namespace

MvImageDevice::MvImageDevice(QIODevice *source)
    : m_source(source)
    , m_end(std::numeric_limits<double>::infinity())
{
    setStretches({{0, source->size()}});
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void MvImageDevice::setTimeLimit(double seconds)
{
    m_end = computingTime() + seconds;
}

void MvImageDevice::setStretches(const QList<Stretch> &stretches)
{
    m_stretches = stretches;
    m_size = 0;
    for (const Stretch &stretch : stretches)
        m_size += stretch.length;
}

qint64 MvImageDevice::readData(char *data, qint64 maxSize)
{
    if (m_hasRunOut || computingTime() >= m_end) {
        m_hasRunOut = true;
        return -1;
    }
    qint64 offset = pos();
    for (const Stretch &stretch : m_stretches) {
        if (offset < stretch.length) {
            if (!m_source->seek(stretch.start + offset))
                return -1;
            return m_source->read(data, qMin(maxSize, stretch.length - offset));
        }
        offset -= stretch.length;
    }
    return 0;
}
