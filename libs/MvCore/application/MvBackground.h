// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

class QThreadPool;

/// Work beside the thread that begins it, also on a computer that has no thread left to give, as with little memory: a
/// pool would wait there for ever.
class MVCORE_EXPORT MvBackground
{
    Q_DECLARE_TR_FUNCTIONS(MvBackground)

public:
    /// Has the pool do the work. Where it cannot begin a thread, the calling one does it before this returns, so the
    /// work must not wait for its caller.
    static void start(QThreadPool &pool, const std::function<void()> &work);
    /// Whether the computer gives a thread at this moment.
    static bool hasThread();
    /// Begins threads of the pool of all, in which Qt paints large pictures, and keeps them: it would wait for ever
    /// for one that it cannot begin. Whether there is one; what is kept already stays. Needs an application.
    static bool keepThreads();
    /// What a person is told where there is none.
    static QString noThreads();
};
