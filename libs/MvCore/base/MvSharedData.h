// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSharedData>

/// Base of the shared records behind value classes. Unlike QSharedData it compares equal to every other base, so that
/// a record can default its operator== without comparing reference counts.
struct MvSharedData : QSharedData
{
    bool operator==(const MvSharedData &) const { return true; }
};
