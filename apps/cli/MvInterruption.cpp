// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvInterruption.h"

#include <QSocketNotifier>

#include <atomic>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::atomic_int askedFor{0}; // the signal
std::atomic_bool endsAtSecond{false};
static_assert(std::atomic_bool::is_always_lock_free && std::atomic_int::is_always_lock_free, "a signal must not wait");
int ends[2] = {-1, -1}; // of the pipe that wakes the event loop

extern "C" void take(int signal)
{
    if (askedFor.exchange(signal) != 0) {
        if (endsAtSecond)
            ::_exit(128 + signal);
        return;
    }
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(ends[1], &byte, 1);
}

} // namespace

void MvInterruption::watch(Again again)
{
    endsAtSecond = again == Again::EndsTheProgram;
    if (ends[0] < 0 && ::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    struct sigaction action = {};
    action.sa_handler = take; // without SA_RESTART
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(signal, &action, nullptr);
}

bool MvInterruption::isAsked()
{
    return askedFor != 0;
}

void MvInterruption::endWatch()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        ::signal(signal, SIG_DFL);
    if (const int signal = askedFor; signal != 0)
        ::raise(signal);
}

MvInterruption::MvInterruption(QObject *parent)
    : QObject(parent)
{
    auto *notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Q_EMIT asked();
    });
}
