// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvIdleImages.h"

#include <QTimerEvent>

#include <algorithm>

MvIdleImages::MvIdleImages(std::function<QImage(int)> make, QObject *parent)
    : QObject(parent)
    , m_make(std::move(make))
{}

void MvIdleImages::reset(int count)
{
    m_slots.resize(std::max(count, 0));
    invalidateAll();
}

void MvIdleImages::forget()
{
    const int number = count();
    m_slots.clear();
    reset(number);
}

void MvIdleImages::invalidate(int number, int delay)
{
    if (number < 0 || number >= count())
        return;
    m_slots[number].isDue = true;
    start(delay);
}

void MvIdleImages::invalidateAll(int delay)
{
    for (Slot &slot : m_slots)
        slot.isDue = true;
    start(delay);
}

bool MvIdleImages::isComplete() const
{
    return next() < 0;
}

void MvIdleImages::setPaused(bool paused)
{
    if (m_isPaused == paused)
        return;
    m_isPaused = paused;
    if (paused)
        m_timer.stop();
    else
        start(0);
}

void MvIdleImages::start(int delay)
{
    if (!m_isPaused && !isComplete())
        m_timer.start(delay, this); // a timer that runs begins anew
}

int MvIdleImages::next() const
{
    for (const int number : m_preferred) {
        if (number >= 0 && number < count() && m_slots[number].isDue)
            return number;
    }
    const auto due = std::find_if(m_slots.begin(), m_slots.end(), [](const Slot &slot) { return slot.isDue; });
    return due == m_slots.end() ? -1 : int(due - m_slots.begin());
}

/// One picture per turn of the event loop, so that input and painting come in between.
void MvIdleImages::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    const int number = next();
    if (number < 0) {
        m_timer.stop();
        return;
    }
    m_slots[number].isDue = false;
    m_slots[number].image = m_make(number);
    if (isComplete())
        m_timer.stop();
    else
        m_timer.start(0, this);
    Q_EMIT imageReady(number);
}
