// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

/// The wish from outside that the program ends in good order: SIGTERM, SIGINT (Ctrl+C), SIGHUP.
///
/// Until watch() these end the program as usual. After it they only set a mark, which exports look at between two
/// pages, and wake whoever has an object of this class and an event loop.
class MvInterruption : public QObject
{
    Q_OBJECT

public:
    /// What a second signal does: somebody who presses Ctrl+C twice does not want to wait.
    enum class Again { EndsTheProgram, ChangesNothing };

    /// For a program's start. A call of the system that is waiting when a signal comes is not begun again.
    static void watch(Again again);
    /// Signals end the program as usual again; so does the one that came meanwhile.
    static void endWatch();
    /// Whether there was such a signal. Any thread.
    static bool isAsked();

    /// One at a time, after watch().
    explicit MvInterruption(QObject *parent = nullptr);

Q_SIGNALS:
    void asked();
};
