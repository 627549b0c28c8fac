// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QElapsedTimer>
#include <QJsonObject>

/// What one calendar costs the process that makes it: from the object's making on.
class MvBatchUsage
{
public:
    MvBatchUsage();

    /// "seconds", "cpuSeconds" (of all threads), and in MiB "peakMemory" and "memory", what stays.
    QJsonObject toJson() const;

private:
    static double cpuSeconds();

    QElapsedTimer m_clock;
    double m_cpuBefore = 0.0;
};
