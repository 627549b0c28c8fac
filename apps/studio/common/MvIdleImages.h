// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBasicTimer>
#include <QImage>
#include <QList>
#include <QObject>

#include <functional>

/// Numbered small pictures that take a while to make: one at a time, when the program has nothing else to do.
///
/// A picture that is to be made anew is kept until its successor is there. To be used from the GUI thread.
class MvIdleImages : public QObject
{
    Q_OBJECT

public:
    /// `make` paints the picture with a number; a null image means that there is none.
    explicit MvIdleImages(std::function<QImage(int)> make, QObject *parent = nullptr);

    /// Changes the number of pictures. All of them are to be made; those that there are stay meanwhile.
    void reset(int count);
    /// Forgets all pictures: those that there are show something else.
    void forget();
    int count() const { return int(m_slots.size()); }

    /// Has a picture, or all of them, made anew after a delay; further calls within it prolong it.
    void invalidate(int number, int delay = 0);
    void invalidateAll(int delay = 0);
    /// These come before all others, in this order.
    void prefer(const QList<int> &numbers) { m_preferred = numbers; }

    /// Null when it has not been made yet.
    QImage image(int number) const { return m_slots.value(number).image; }
    /// True when no picture waits to be made.
    bool isComplete() const;

    /// Nothing is made meanwhile, for example while nobody sees the pictures.
    void setPaused(bool paused);

Q_SIGNALS:
    void imageReady(int number);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Slot
    {
        QImage image;
        bool isDue = true;
    };

    void start(int delay);
    int next() const;

    std::function<QImage(int)> m_make;
    QList<Slot> m_slots;
    QList<int> m_preferred;
    QBasicTimer m_timer;
    bool m_isPaused = false;
};
