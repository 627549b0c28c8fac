// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <functional>

class QThreadPool;

/// Work beside the thread that begins it, also on a computer that has no thread left to give, as with little memory: a
/// pool would wait there for ever.
class MVCORE_EXPORT MvBackground
{
public:
    /// Has the pool do the work. Where it cannot begin a thread, the calling one does it before this returns, so the
    /// work must not wait for its caller.
    static void start(QThreadPool &pool, const std::function<void()> &work);
    /// Whether the computer gives a thread at this moment.
    static bool hasThread();
};
