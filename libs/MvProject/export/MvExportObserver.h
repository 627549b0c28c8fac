// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

/// Watches an export and may end it. Called in the thread that exports.
class MVPROJECT_EXPORT MvExportObserver
{
public:
    MvExportObserver() = default;
    virtual ~MvExportObserver() = default;
    MvExportObserver(const MvExportObserver &) = delete;
    MvExportObserver &operator=(const MvExportObserver &) = delete;

    /// So many pages of the total have been written, or painted where all of them become one file.
    virtual void pagesDone(int done, int total) = 0;
    /// Asked before each page and before a file takes its place. From the first yes on nothing more is written.
    virtual bool isCancelled() const = 0;
};
